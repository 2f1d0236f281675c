#include "desktop/HandOverRules.h"
#include "platform/Files_linux.h"
#include "platform/HandOver.h"
#include "platform/HandOverReceiver_linux.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <random>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>

namespace zentaro::platform {

using namespace desktop;

namespace {

using namespace std::chrono_literals;

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
int ConnectTo(const FileDescriptor& socket, const FileDescriptor& folder, const std::string& handle)
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
    const int error = ConnectTo(socket, folder, handle);
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
    using Handler = HandOverReceiver::Handler;

    SocketEnds(FileDescriptor folder, HandOverLimits limits)
        : m_folder(std::move(folder))
    {
        m_limits.opening = limits.opening;
    }
    ~SocketEnds() override
    {
        for (const auto* end : { &m_command, &m_probe, &m_add }) {
            if (end->socket)
                unlinkat(m_folder.Number(), end->handle.c_str(), 0);
        }
    }

    Result<void> Listen()
    {
        for (auto* end : { &m_command, &m_probe, &m_add }) {
            auto made = ListenIn(m_folder);
            if (!made)
                return made.error();
            *end = std::move(*made);
        }
        return {};
    }

    std::string CommandHandle() const override { return m_command.handle; }
    std::string ProbeHandle() const override { return m_probe.handle; }
    std::string AddHandle() const override { return m_add.handle; }

    void Deliver(Handler onCommand) override
    {
        m_commands = Receive(m_command, std::move(onCommand));
        m_probes = Receive(m_probe, [](const std::string&, const HandOverDone& done) { done(); });
    }
    void DeliverAdded(Handler onPath) override { m_added = Receive(m_add, std::move(onPath)); }

private:
    std::unique_ptr<HandOverReceiver> Receive(const End& end, Handler handler) const
    {
        return std::make_unique<HandOverReceiver>(end.socket.Number(), std::move(handler), m_limits);
    }

    FileDescriptor m_folder;
    End m_command;
    End m_probe;
    End m_add;
    HandOverReceiver::Limits m_limits;
    std::unique_ptr<HandOverReceiver> m_commands;
    std::unique_ptr<HandOverReceiver> m_probes;
    std::unique_ptr<HandOverReceiver> m_added;
};

/// The sender's side of one hand-over.
class SenderSocket {
public:
    explicit SenderSocket(HandOverLimits limits)
        : m_limits(limits)
    {
    }

    bool Connect(const FileDescriptor& folder, const std::string& handle)
    {
        // A receiver that is stopped has a full queue sooner or later, and connecting would wait for it.
        while (true) {
            const int error = ConnectTo(m_socket, folder, handle);
            if (error != EAGAIN)
                return error == 0;
            if (Remaining() == 0ms)
                return false;
            std::this_thread::sleep_for(std::min(Remaining(), 20ms));
        }
    }

    bool Send(const std::string& bytes)
    {
        for (std::size_t done = 0; done < bytes.size();) {
            if (!WaitFor(POLLOUT))
                return false;
            const auto size = send(m_socket.Number(), bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
            if (size < 0 && errno != EINTR && errno != EAGAIN)
                return false;
            done += size > 0 ? static_cast<std::size_t>(size) : 0;
        }
        return shutdown(m_socket.Number(), SHUT_WR) == 0;
    }

    HandOverOutcome Outcome()
    {
        if (!WaitFor(POLLIN))
            shutdown(m_socket.Number(), SHUT_RD); // from now on the receiver cannot take the text over any more
        if (ReadByte() != kHandOverTaken)
            return HandOverOutcome::Silent;
        m_end = std::chrono::steady_clock::now() + m_limits.opening;
        if (!WaitFor(POLLIN))
            return HandOverOutcome::TakenOver;
        const auto answer = ReadByte();
        if (answer == kHandOverOpened)
            return HandOverOutcome::Opened;
        return answer == kHandOverLater ? HandOverOutcome::TakenOver : HandOverOutcome::Silent;
    }

private:
    std::chrono::milliseconds Remaining() const
    {
        const auto left = m_end - std::chrono::steady_clock::now();
        return std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(left));
    }

    /// False when the time was over; an error counts as event.
    bool WaitFor(short events) const
    {
        pollfd entry{ m_socket.Number(), events, 0 };
        int count = 0;
        do {
            count = poll(&entry, 1, static_cast<int>(Remaining().count()));
        } while (count < 0 && errno == EINTR);
        return count != 0;
    }

    std::optional<char> ReadByte() const
    {
        char byte = 0;
        ssize_t size = 0;
        do {
            size = recv(m_socket.Number(), &byte, 1, 0);
        } while (size < 0 && errno == EINTR);
        return size == 1 ? std::optional(byte) : std::nullopt;
    }

    HandOverLimits m_limits;
    FileDescriptor m_socket = NewSocket(SOCK_NONBLOCK);
    std::chrono::steady_clock::time_point m_end = std::chrono::steady_clock::now() + m_limits.silence;
};

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
    return ListenWithin({});
}

Result<std::unique_ptr<HandOverEnds>> HandOverEnds::ListenWithin(HandOverLimits limits)
{
    auto folder = OpenRuntimeFolder();
    if (!folder)
        return folder.error();
    const FileDescriptor locked(openat(folder->Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (LockWithin(locked.Number(), std::chrono::seconds(2)))
        RemoveDeadSockets(*folder);
    auto ends = std::make_unique<SocketEnds>(std::move(*folder), limits);
    if (const auto listening = ends->Listen(); !listening)
        return listening.error();
    return std::unique_ptr<HandOverEnds>(std::move(ends));
}

bool IsHandOverAlive(const std::string& handle)
{
    const auto folder = OpenRuntimeFolder();
    return folder && ParseHandOverHandle(handle) && TryConnect(*folder, handle) == 0;
}

HandOverOutcome SendHandOverText(const std::string& handle, const std::string& text)
{
    return SendHandOverTextWithin(handle, text, {});
}

HandOverOutcome SendHandOverTextWithin(const std::string& handle, const std::string& text, HandOverLimits limits)
{
    const auto part = HandOverText(text);
    const auto folder = OpenRuntimeFolder();
    if (!folder || !ParseHandOverHandle(handle) || part.size() > kHandOverTextLimit)
        return HandOverOutcome::Silent;
    SenderSocket socket(limits);
    if (!socket.Connect(*folder, handle) || !socket.Send(EncodeHandOverFrame(part)))
        return HandOverOutcome::Silent;
    return socket.Outcome();
}

std::unique_ptr<HandOverLock> HandOverLock::Take(std::chrono::milliseconds timeout, const std::string& purpose)
{
    auto file = OpenRuntimeFile(purpose + ".lock");
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
