#include "platform/HandOver.h"
#include "platform/HandOverReceiver_linux.h"
#include "platform/HandOverRules.h"
#include "platform/RuntimeFolder_linux.h"
#include "platform/SystemError_linux.h"

#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zentaro::platform {
namespace {

constexpr int kBacklog = 1024;

/// The address of a socket in an opened folder: short however long the folder's path is, and sure to be in the
/// folder that has been checked.
sockaddr_un AddressOf(const FileDescriptor& folder, const std::string& handle)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto path = "/proc/self/fd/" + std::to_string(folder.Number()) + "/" + handle;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

FileDescriptor NewSocket(int flags = 0)
{
    return FileDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | flags, 0));
}

const sockaddr* Plain(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

/// 0, or the system's error number.
int Connect(const FileDescriptor& socket, const FileDescriptor& folder, const std::string& handle)
{
    const auto address = AddressOf(folder, handle);
    while (connect(socket.Number(), Plain(address), sizeof address) != 0) {
        if (errno != EINTR)
            return errno;
    }
    return IsOwnUserAt(socket.Number()) ? 0 : EPERM;
}

int TryConnect(const FileDescriptor& folder, const std::string& handle)
{
    const auto socket = NewSocket(SOCK_NONBLOCK);
    const int error = Connect(socket, folder, handle);
    // A full queue belongs to a listener that lives and is busy.
    return error == EAGAIN ? 0 : error;
}

/// What killed players have left behind. No other process may be between naming a socket and listening at it.
void RemoveDeadSockets(const FileDescriptor& folder)
{
    const int copy = openat(folder.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* entries = copy >= 0 ? fdopendir(copy) : nullptr;
    if (!entries) {
        FileDescriptor unused(copy);
        return;
    }
    while (const dirent* entry = readdir(entries)) {
        const std::string name = entry->d_name;
        if (ParseHandOverHandle(name) && TryConnect(folder, name) == ECONNREFUSED)
            unlinkat(folder.Number(), name.c_str(), 0);
    }
    closedir(entries);
}

/// A random number: one that a dead player has published must not lead to us by accident.
std::string NewHandle()
{
    std::random_device random;
    const auto number = static_cast<std::uint64_t>(random()) << 20 | random() >> 12;
    return std::to_string(number | 1);
}

struct End {
    std::string handle;
    FileDescriptor socket;
};

Result<End> ListenIn(const FileDescriptor& folder)
{
    End end{ NewHandle(), NewSocket(SOCK_NONBLOCK) };
    const auto address = AddressOf(folder, end.handle);
    if (!end.socket || bind(end.socket.Number(), Plain(address), sizeof address) != 0)
        return SystemError("Cannot make a socket");
    // The sticky bit asks those who tidy the runtime folder to leave it alone.
    fchmodat(folder.Number(), end.handle.c_str(), S_ISVTX | 0600, 0);
    if (listen(end.socket.Number(), kBacklog) != 0) {
        auto error = SystemError("Cannot listen");
        unlinkat(folder.Number(), end.handle.c_str(), 0);
        return error;
    }
    return end;
}

class SocketEnds : public HandOverEnds {
public:
    SocketEnds(FileDescriptor folder, End command)
        : m_folder(std::move(folder))
        , m_command(std::move(command))
    {
    }
    ~SocketEnds() override
    {
        for (const auto* end : { &m_command, &m_probe }) {
            if (end->socket)
                unlinkat(m_folder.Number(), end->handle.c_str(), 0);
        }
    }

    Result<void> AddProbe()
    {
        auto probe = ListenIn(m_folder);
        if (!probe)
            return probe.error();
        m_probe = std::move(*probe);
        return {};
    }

    std::string CommandHandle() const override { return m_command.handle; }
    std::string ProbeHandle() const override { return m_probe.handle; }

    void Deliver(std::function<void(std::string)> onCommand) override
    {
        const HandOverReceiver::Limits limits;
        m_commands = std::make_unique<HandOverReceiver>(m_command.socket.Number(), std::move(onCommand), limits);
        m_probes = std::make_unique<HandOverReceiver>(
            m_probe.socket.Number(), [](const std::string&) {}, limits);
    }

private:
    FileDescriptor m_folder;
    End m_command;
    End m_probe;
    std::unique_ptr<HandOverReceiver> m_commands;
    std::unique_ptr<HandOverReceiver> m_probes;
};

bool SendAll(const FileDescriptor& socket, const std::string& bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const auto size = send(socket.Number(), bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (size < 0 && errno != EINTR)
            return false;
        done += size > 0 ? static_cast<std::size_t>(size) : 0;
    }
    return shutdown(socket.Number(), SHUT_WR) == 0;
}

bool WaitForAnswer(const FileDescriptor& socket)
{
    char answer = 0;
    ssize_t size = 0;
    do {
        size = recv(socket.Number(), &answer, 1, 0);
    } while (size < 0 && errno == EINTR);
    return size == 1 && answer == kHandOverAnswer;
}

class FolderLock : public HandOverLock {
public:
    explicit FolderLock(FileDescriptor file)
        : m_file(std::move(file))
    {
    }

private:
    FileDescriptor m_file;
};

Result<FileDescriptor> OpenRuntimeFile(const std::string& name)
{
    const auto folder = OpenRuntimeFolder();
    if (!folder)
        return folder.error();
    constexpr int kFlags = O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
    FileDescriptor file(openat(folder->Number(), name.c_str(), kFlags, 0600));
    if (!file)
        return SystemError("Cannot open " + name);
    return file;
}

} // namespace

Result<std::unique_ptr<HandOverEnds>> HandOverEnds::Listen()
{
    auto folder = OpenRuntimeFolder();
    if (!folder)
        return folder.error();
    const FileDescriptor locked(openat(folder->Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (LockWithin(locked.Number(), std::chrono::seconds(2)))
        RemoveDeadSockets(*folder);
    auto command = ListenIn(*folder);
    if (!command)
        return command.error();
    auto ends = std::make_unique<SocketEnds>(std::move(*folder), std::move(*command));
    if (const auto probe = ends->AddProbe(); !probe)
        return probe.error();
    return std::unique_ptr<HandOverEnds>(std::move(ends));
}

bool IsHandOverAlive(const std::string& handle)
{
    const auto folder = OpenRuntimeFolder();
    return folder && ParseHandOverHandle(handle) && TryConnect(*folder, handle) == 0;
}

bool SendHandOverText(const std::string& handle, const std::string& text)
{
    const auto part = HandOverText(text);
    const auto folder = OpenRuntimeFolder();
    if (!folder || !ParseHandOverHandle(handle) || part.size() > kHandOverTextLimit)
        return false;
    const auto socket = NewSocket();
    return Connect(socket, *folder, handle) == 0 && SendAll(socket, EncodeHandOverFrame(part)) && WaitForAnswer(socket);
}

std::unique_ptr<HandOverLock> HandOverLock::Take(std::chrono::milliseconds timeout)
{
    auto file = OpenRuntimeFile("start.lock");
    if (!file || !LockWithin(file->Number(), timeout))
        return nullptr;
    return std::make_unique<FolderLock>(std::move(*file));
}

void MarkPlayerRunning(const std::string& name)
{
    // Kept open to the end of the process, which alone takes the mark away.
    static FileDescriptor mark;
    if (auto file = OpenRuntimeFile(name)) {
        flock(file->Number(), LOCK_SH | LOCK_NB);
        mark = std::move(*file);
    }
}

} // namespace zentaro::platform
