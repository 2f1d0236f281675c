// Preloaded into a program, makes a slow disk of the folder SLOW_DISK: opening a file that lies below it, and each read
// from one, takes SLOW_MS more, 60 without a word. What the first thread had to wait for, the window's, is written to
// SLOW_LOG.
#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>

namespace {

const char* Variable(const char* name, const char* usual)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : usual;
}

void Wait(const char* what, const char* path)
{
    static const std::string folder = Variable("SLOW_DISK", "/nowhere/");
    static const std::chrono::milliseconds time(std::atoi(Variable("SLOW_MS", "60")));
    if (path == nullptr || std::strncmp(path, folder.c_str(), folder.size()) != 0)
        return;
    std::this_thread::sleep_for(time);
    static const std::string log = Variable("SLOW_LOG", "");
    if (log.empty() || gettid() != getpid())
        return;
    const auto line = std::string(program_invocation_short_name) + " " + what + " " + path + "\n";
    static const auto realOpen = reinterpret_cast<int (*)(const char*, int, ...)>(dlsym(RTLD_NEXT, "open"));
    const int file = realOpen(log.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (write(file, line.data(), line.size()) < 0)
        std::abort();
    close(file);
}

void Wait(const char* what, int file)
{
    char path[4096] = {};
    const auto link = "/proc/self/fd/" + std::to_string(file);
    if (readlink(link.c_str(), path, sizeof path - 1) > 0)
        Wait(what, path);
}

/// What is not there is known without a look at the disk.
void WaitForFile(const char* path)
{
    if (faccessat(AT_FDCWD, path, F_OK, 0) == 0)
        Wait("open", path);
}

template <typename Function> Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

mode_t ModeOf(int flags, va_list rest)
{
    return (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
}

} // namespace

extern "C" {

ssize_t read(int file, void* buffer, std::size_t size)
{
    static auto* const real = Real<decltype(read)>("read");
    Wait("read", file);
    return real(file, buffer, size);
}
ssize_t pread64(int file, void* buffer, std::size_t size, off64_t at)
{
    static auto* const real = Real<decltype(pread64)>("pread64");
    Wait("pread", file);
    return real(file, buffer, size, at);
}
ssize_t readv(int file, const iovec* buffers, int count)
{
    static auto* const real = Real<decltype(readv)>("readv");
    Wait("readv", file);
    return real(file, buffers, count);
}
int open(const char* path, int flags, ...)
{
    static auto* const real = Real<int(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const auto mode = ModeOf(flags, rest);
    va_end(rest);
    WaitForFile(path);
    return real(path, flags, mode);
}
int open64(const char* path, int flags, ...)
{
    static auto* const real = Real<int(const char*, int, ...)>("open64");
    va_list rest;
    va_start(rest, flags);
    const auto mode = ModeOf(flags, rest);
    va_end(rest);
    WaitForFile(path);
    return real(path, flags, mode);
}
FILE* fopen64(const char* path, const char* mode)
{
    static auto* const real = Real<decltype(fopen64)>("fopen64");
    WaitForFile(path);
    return real(path, mode);
}
}
