#include "platform/HandOver.h"
#include "platform/HandOverReceiver_linux.h"
#include "tests/platform/PrivateUser.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <csignal>
#include <fcntl.h>
#include <future>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

/// Runs the event loop until the condition holds; false when that takes too long.
template <class Condition> bool RunUntil(Condition condition)
{
    const auto end = std::chrono::steady_clock::now() + 20s;
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        holds = condition();
    }
    return holds;
}

std::future<bool> SendBeside(const std::string& handle, const std::string& text)
{
    return std::async(std::launch::async, [=] { return SendHandOverText(handle, text); });
}

bool IsDone(const std::future<bool>& sending)
{
    return sending.wait_for(0s) == std::future_status::ready;
}

class HandOverOnLinux : public PrivateUser {
protected:
    void Listen()
    {
        auto made = HandOverEnds::Listen();
        ASSERT_TRUE(made) << made.error().text;
        ends = std::move(*made);
    }

    /// A sender that does not keep to the rules.
    FileDescriptor ConnectRaw(const std::string& handle) const
    {
        FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        InRuntimeFolder(handle).copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(connect(socket.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        return socket;
    }

    int count = 0;
    QCoreApplication application{ count, nullptr };
    std::unique_ptr<HandOverEnds> ends;
    std::vector<std::string> received;
};

TEST_F(HandOverOnLinux, a_process_that_sends_ends_only_after_the_handler)
{
    Listen();
    const auto mark = folder / "handled";
    ends->Deliver([&](const std::string& text) {
        received.push_back(text);
        close(open(mark.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    });
    const std::string text = "/clips/my \"b\xFF\n\".avi *Add" + std::string(1'000'000, 'x');
    const auto sender = StartProcess([&] {
        const bool sent = SendHandOverText(ends->CommandHandle(), text + std::string("\0cut", 4));
        _exit(sent && access(mark.c_str(), F_OK) == 0 ? 0 : 1);
    });
    ASSERT_TRUE(RunUntil([&] { return !received.empty(); }));
    int status = -1;
    EXPECT_TRUE(RunUntil([&] { return waitpid(sender, &status, WNOHANG) == sender; }));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(received, std::vector{ text });
    EXPECT_FALSE(SendHandOverText(ends->CommandHandle(), std::string(kHandOverTextLimit + 1, 'a')));
}

TEST_F(HandOverOnLinux, a_text_that_comes_while_the_handler_runs_is_handled_after_it)
{
    Listen();
    std::future<bool> second;
    std::string order;
    ends->Deliver([&](const std::string& text) {
        order += "<" + text;
        if (text == "1") {
            second = SendBeside(ends->CommandHandle(), "2");
            const auto end = std::chrono::steady_clock::now() + 100ms;
            while (std::chrono::steady_clock::now() < end)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            EXPECT_FALSE(IsDone(second));
        }
        order += ">";
    });
    auto first = SendBeside(ends->CommandHandle(), "1");
    EXPECT_TRUE(RunUntil([&] { return IsDone(first) && second.valid() && IsDone(second); }));
    EXPECT_EQ(order, "<1><2>");
    EXPECT_TRUE(first.get() && second.get());
}

TEST_F(HandOverOnLinux, a_silent_sender_is_let_go_and_makes_room)
{
    Listen();
    const FileDescriptor listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const auto path = InRuntimeFolder("77");
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(listening.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listening.Number(), 8), 0);
    HandOverReceiver receiver(
        listening.Number(), [this](const std::string& text) { received.push_back(text); }, { 50ms, 2 });
    const auto first = ConnectRaw("77");
    const auto second = ConnectRaw("77");
    auto third = SendBeside("77", "third.avi");
    EXPECT_TRUE(RunUntil([&] { return IsDone(third); }));
    EXPECT_TRUE(third.get());
    char byte = 0;
    EXPECT_EQ(recv(first.Number(), &byte, 1, 0), 0);
}

TEST_F(HandOverOnLinux, the_handler_may_end_the_player)
{
    Listen();
    const auto handle = ends->CommandHandle();
    ends->Deliver([&](const std::string& text) {
        ends.reset();
        received.push_back(text);
    });
    auto sending = SendBeside(handle, "last.avi");
    EXPECT_TRUE(RunUntil([&] { return IsDone(sending); }));
    EXPECT_FALSE(sending.get());
    EXPECT_EQ(received.size(), 1U);
    EXPECT_FALSE(IsHandOverAlive(handle));
    EXPECT_FALSE(std::filesystem::exists(InRuntimeFolder(handle)));
}

TEST_F(HandOverOnLinux, a_killed_receiver_is_dead_for_all_and_its_sockets_are_tidied_away)
{
    int pipes[2];
    ASSERT_EQ(pipe2(pipes, O_CLOEXEC), 0);
    const auto receiver = StartProcess([&] {
        const auto made = HandOverEnds::Listen();
        const auto handle = made ? (*made)->CommandHandle() : "";
        [[maybe_unused]] const auto size = write(pipes[1], handle.data(), handle.size());
        pause();
    });
    char text[64];
    const auto size = read(pipes[0], text, sizeof text);
    close(pipes[0]);
    close(pipes[1]);
    ASSERT_GT(size, 0);
    const std::string handle(text, static_cast<std::size_t>(size));
    struct stat facts { };
    ASSERT_EQ(stat(InRuntimeFolder(handle).c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600U);
    EXPECT_TRUE(IsHandOverAlive(handle));
    auto waiting = SendBeside(handle, "a.avi");
    EXPECT_EQ(waiting.wait_for(50ms), std::future_status::timeout);
    kill(receiver, SIGKILL);
    WaitForProcess(receiver);
    EXPECT_FALSE(waiting.get());
    EXPECT_FALSE(IsHandOverAlive(handle));
    EXPECT_FALSE(SendHandOverText(handle, "a.avi"));
    Listen();
    EXPECT_FALSE(std::filesystem::exists(InRuntimeFolder(handle)));
    EXPECT_TRUE(IsHandOverAlive(ends->CommandHandle()));
}

TEST_F(HandOverOnLinux, the_lock_has_one_holder_and_falls_with_its_process)
{
    const auto holder = StartProcess([] {
        const auto lock = HandOverLock::Take(1s);
        raise(SIGSTOP);
        pause();
    });
    int status = 0;
    waitpid(holder, &status, WUNTRACED);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(HandOverLock::Take(50ms));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 50ms);
    kill(holder, SIGKILL);
    WaitForProcess(holder);
    EXPECT_TRUE(HandOverLock::Take(1s));
    EXPECT_TRUE(HandOverLock::Take(0ms));
}

} // namespace
} // namespace zentaro::platform
