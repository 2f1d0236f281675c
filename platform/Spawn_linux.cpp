#include "platform/Spawn_linux.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {

namespace {

/// In a program without standard streams a pipe's end may get one of their numbers; the child needs them free.
FileDescriptor AboveStandardStreams(int number)
{
    FileDescriptor low(number);
    return number > STDERR_FILENO ? std::move(low)
                                  : FileDescriptor(::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

class SpawnActions {
public:
    explicit SpawnActions(const SpawnRequest& request)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        Note(::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        for (const int stream : { STDOUT_FILENO, STDERR_FILENO }) {
            if (request.output < 0)
                Note(::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_WRONLY, 0));
            else
                Note(::posix_spawn_file_actions_adddup2(&m_actions, request.output, stream));
        }
        // Other libraries in this process open descriptors without the close-on-exec flag.
        Note(::posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1));
        if (!request.workDir.empty())
            Note(::posix_spawn_file_actions_addchdir_np(&m_actions, request.workDir.c_str()));
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    int Failure() const { return m_failure; }
    const posix_spawn_file_actions_t* Get() const { return &m_actions; }

private:
    void Note(int failure)
    {
        if (failure != 0)
            m_failure = failure;
    }

    posix_spawn_file_actions_t m_actions;
    int m_failure = 0;
};

/// A group of its own, no blocked signal, and the default answer to each: nothing of what this process has set.
class SpawnAttributes {
public:
    SpawnAttributes()
    {
        ::posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
        ::posix_spawnattr_setpgroup(&m_attributes, 0);
        ::posix_spawnattr_setflags(
            &m_attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }

    const posix_spawnattr_t* Get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

} // namespace

int OpenPipe(Pipe& pipe)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return errno;
    pipe.readEnd = AboveStandardStreams(ends[0]);
    pipe.writeEnd = AboveStandardStreams(ends[1]);
    if (pipe.readEnd.Number() < 0 || pipe.writeEnd.Number() < 0)
        return errno;
    // Only our end: the child's stays as every program expects it.
    return ::fcntl(pipe.readEnd.Number(), F_SETFL, O_NONBLOCK) == 0 ? 0 : errno;
}

int Spawn(const SpawnRequest& request, pid_t& pid)
{
    std::vector<char*> arguments;
    for (const auto& argument : request.arguments)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    const SpawnActions actions(request);
    if (actions.Failure() != 0)
        return actions.Failure();
    const SpawnAttributes attributes;
    return ::posix_spawn(&pid, request.image, actions.Get(), attributes.Get(), arguments.data(), environ);
}

} // namespace zentaro::platform
