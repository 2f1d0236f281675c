#include "tests/desktop/Process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace zentaro::desktop {

namespace {

constexpr int kPassedDescriptor = 3;
constexpr int kCouldNotStart = 127;

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& more)
{
    std::vector<std::string> texts;
    for (char** each = environ; *each != nullptr; ++each) {
        const std::string text = *each;
        if (!more.contains(text.substr(0, text.find('='))))
            texts.push_back(text);
    }
    for (const auto& [name, value] : more)
        texts.push_back(name + "=" + value);
    return texts;
}

std::string ProcFile(pid_t id, const char* name)
{
    return "/proc/" + std::to_string(id) + "/" + name;
}

/// The number behind a label such as "Threads:".
long NumberIn(const std::string& path, const std::string& label)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(label))
            return std::stol(line.substr(label.size()));
    }
    return 0;
}

std::vector<pid_t> AllProcesses()
{
    std::vector<pid_t> ids;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const auto name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") == std::string::npos)
            ids.push_back(std::stoi(name));
    }
    return ids;
}

} // namespace

Process::Process(const Start& start)
    : m_errorFile(start.errorFile)
{
    std::vector<std::string> arguments = { start.program };
    arguments.insert(arguments.end(), start.arguments.begin(), start.arguments.end());
    auto environment = EnvironmentWith(start.environment);
    const auto argumentPointers = Pointers(arguments);
    const auto environmentPointers = Pointers(environment);
    const auto output = start.errorFile.empty() ? std::string("/dev/null") : start.errorFile;
    const pid_t parent = getpid();
    m_id = fork();
    if (m_id < 0)
        throw std::runtime_error("cannot fork");
    if (m_id > 0)
        return;
    // Nothing but plain system calls from here: other threads may have held any lock.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(kCouldNotStart);
    setpgid(0, 0);
    const int out = open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    const int in = open("/dev/null", O_RDONLY);
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    if (start.passedDescriptor >= 0)
        dup2(start.passedDescriptor, kPassedDescriptor);
    const unsigned firstUnwanted = start.passedDescriptor >= 0 ? kPassedDescriptor + 1 : kPassedDescriptor;
    close_range(firstUnwanted, ~0U, 0);
    if (start.folder.empty() || chdir(start.folder.c_str()) == 0)
        execve(start.program.c_str(), argumentPointers.data(), environmentPointers.data());
    _exit(kCouldNotStart);
}

Process::Process(Process&& other) noexcept
    : m_id(std::exchange(other.m_id, -1))
    , m_result(other.m_result)
    , m_errorFile(std::move(other.m_errorFile))
{
}

Process& Process::operator=(Process&& other) noexcept
{
    std::swap(m_id, other.m_id);
    std::swap(m_result, other.m_result);
    std::swap(m_errorFile, other.m_errorFile);
    return *this;
}

Process::~Process()
{
    Kill();
}

bool Process::IsRunning()
{
    if (m_id <= 0 || m_result)
        return false;
    int status = 0;
    if (waitpid(m_id, &status, WNOHANG) != m_id)
        return true;
    m_result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return false;
}

std::optional<int> Process::WaitForEnd(std::chrono::milliseconds limit)
{
    WaitUntil([this] { return !IsRunning(); }, limit);
    return m_result;
}

void Process::Signal(int signal) const
{
    if (m_id > 0 && !m_result)
        kill(m_id, signal);
}

void Process::Kill()
{
    if (m_id <= 0)
        return;
    // Its children, too, unless they lead groups of their own.
    if (IsRunning())
        kill(-m_id, SIGKILL);
    WaitForEnd();
}

std::string Process::ErrorText() const
{
    return ReadWholeFile(m_errorFile);
}

int Process::ThreadCount() const
{
    return static_cast<int>(NumberIn(ProcFile(m_id, "status"), "Threads:"));
}

long Process::PssKiB() const
{
    return NumberIn(ProcFile(m_id, "smaps_rollup"), "Pss:");
}

int Process::OpenDescriptors() const
{
    std::error_code gone;
    const std::filesystem::directory_iterator entries(ProcFile(m_id, "fd"), gone);
    return gone ? 0 : static_cast<int>(std::distance(begin(entries), end(entries)));
}

std::vector<pid_t> Process::Children() const
{
    std::vector<pid_t> children;
    for (const auto id : AllProcesses()) {
        if (NumberIn(ProcFile(id, "status"), "PPid:") == m_id)
            children.push_back(id);
    }
    return children;
}

std::vector<pid_t> ProcessesAtHome(const std::string& home)
{
    std::vector<pid_t> found;
    const auto wanted = '\0' + ("HOME=" + home) + '\0';
    for (const auto id : AllProcesses()) {
        if (('\0' + ReadWholeFile(ProcFile(id, "environ"))).find(wanted) != std::string::npos && id != getpid())
            found.push_back(id);
    }
    return found;
}

std::string ReadWholeFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void WriteWholeFile(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace zentaro::desktop
