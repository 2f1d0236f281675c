#include "platform/HandOver.h"
#include "platform/HandOverReceiver_linux.h"
#include "tests/platform/PrivateUser.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <csignal>
#include <fcntl.h>
#include <future>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using enum HandOverOutcome;
using Clock = std::chrono::steady_clock;

/// Runs the event loop until the condition holds; false when that takes too long.
template <class Condition> bool RunUntil(Condition condition)
{
    const auto end = Clock::now() + 30s;
    bool holds = condition();
    while (!holds && Clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        holds = condition();
    }
    return holds;
}

using Sending = std::future<HandOverOutcome>;

Sending SendBeside(const std::string& handle, const std::string& text, HandOverLimits limits = { 30s, 30s })
{
    return std::async(std::launch::async, [=] { return SendHandOverTextWithin(handle, text, limits); });
}

bool IsDone(const Sending& sending)
{
    return sending.wait_for(0s) == std::future_status::ready;
}

/// What came of it, while the receiver's loop runs.
HandOverOutcome OutcomeOf(Sending& sending)
{
    EXPECT_TRUE(RunUntil([&] { return IsDone(sending); }));
    return sending.get();
}

/// A player in a process of its own; it writes every text that it receives.
class OtherPlayer {
public:
    OtherPlayer()
    {
        EXPECT_EQ(pipe2(m_pipe, O_CLOEXEC), 0);
        process = StartProcess([this] {
            int count = 0;
            const QCoreApplication application(count, nullptr);
            const auto ends = HandOverEnds::Listen();
            Say((*ends)->CommandHandle());
            (*ends)->Deliver([this](const std::string& text, const HandOverDone&) { Say(text); });
            QCoreApplication::exec();
        });
        close(m_pipe[1]);
        handle = NextText();
    }
    OtherPlayer(const OtherPlayer&) = delete;
    ~OtherPlayer()
    {
        Kill();
        close(m_pipe[0]);
    }

    std::string NextText() const
    {
        std::string text;
        for (char next = 0; read(m_pipe[0], &next, 1) == 1 && next != '\n';)
            text += next;
        return text;
    }
    void Stop() const
    {
        kill(process, SIGSTOP);
        int status = 0;
        waitpid(process, &status, WUNTRACED);
    }
    void Kill()
    {
        if (process > 0) {
            kill(process, SIGKILL);
            WaitForProcess(std::exchange(process, -1));
        }
    }

    std::string handle;
    pid_t process = -1;

private:
    void Say(const std::string& text) const
    {
        [[maybe_unused]] const auto size = write(m_pipe[1], (text + '\n').data(), text.size() + 1);
    }
    int m_pipe[2]{};
};

class HandOverOnLinux : public PrivateUser {
protected:
    /// Texts come to `received`, their tokens to `tokens`.
    void Listen(HandOverLimits limits = { 30s, 30s })
    {
        auto made = HandOverEnds::ListenWithin(limits);
        ASSERT_TRUE(made) << made.error().text;
        ends = std::move(*made);
        ends->Deliver(Keep());
    }
    HandOverReceiver::Handler Keep()
    {
        return [this](std::string text, HandOverDone done) {
            received.push_back(std::move(text));
            tokens.push_back(std::move(done));
        };
    }

    sockaddr_un AddressOf(const std::string& handle) const
    {
        sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = {} };
        InRuntimeFolder(handle).copy(address.sun_path, sizeof address.sun_path - 1);
        return address;
    }
    /// A sender that says nothing; none when nobody accepts it at once.
    FileDescriptor ConnectSilently(const std::string& handle) const
    {
        FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        const auto address = AddressOf(handle);
        if (connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            socket.Close();
        return socket;
    }

    int count = 0;
    QCoreApplication application{ count, nullptr };
    std::unique_ptr<HandOverEnds> ends;
    std::vector<std::string> received;
    std::vector<HandOverDone> tokens;
};

TEST_F(HandOverOnLinux, a_sender_waits_for_its_own_token_and_for_no_other)
{
    Listen();
    const std::string text = "/clips/my \"b\xFF\n\".avi *Add" + std::string(1'000'000, 'x');
    auto probe = SendBeside(ends->ProbeHandle(), "Hello");
    EXPECT_EQ(OutcomeOf(probe), Opened);
    auto first = SendBeside(ends->CommandHandle(), text + std::string("\0cut", 4));
    ASSERT_TRUE(RunUntil([&] { return received.size() == 1; }));
    auto second = SendBeside(ends->CommandHandle(), "second.avi");
    ASSERT_TRUE(RunUntil([&] { return received.size() == 2; }));
    EXPECT_EQ(received, (std::vector<std::string>{ text, "second.avi" }));
    tokens[1]();
    EXPECT_EQ(OutcomeOf(second), Opened);
    EXPECT_FALSE(IsDone(first));
    tokens[1]();
    tokens[0]();
    tokens[0]();
    EXPECT_EQ(OutcomeOf(first), Opened);
    auto third = SendBeside(ends->CommandHandle(), "third.avi");
    ASSERT_TRUE(RunUntil([&] { return received.size() == 3; }));
    ends.reset();
    EXPECT_EQ(OutcomeOf(third), Silent);
    for (const auto& token : tokens)
        token();
    EXPECT_EQ(SendHandOverText("77", std::string(desktop::kHandOverTextLimit + 1, 'a')), Silent);
}

TEST_F(HandOverOnLinux, a_text_that_is_not_opened_in_time_counts_as_taken_over_for_both_sides)
{
    Listen();
    auto impatient = SendBeside(ends->CommandHandle(), "a.avi", { 30s, 50ms });
    EXPECT_EQ(OutcomeOf(impatient), TakenOver);
    tokens.at(0)();
    Listen({ 30s, 50ms });
    auto patient = SendBeside(ends->CommandHandle(), "b.avi");
    EXPECT_EQ(OutcomeOf(patient), TakenOver);
    tokens.at(1)();
    EXPECT_EQ(received, (std::vector<std::string>{ "a.avi", "b.avi" }));
}

TEST_F(HandOverOnLinux, a_stopped_player_is_given_up_and_opens_nothing_later)
{
    const OtherPlayer player;
    player.Stop();
    const auto start = Clock::now();
    EXPECT_EQ(SendHandOverTextWithin(player.handle, "late.avi", { 200ms, 30s }), Silent);
    EXPECT_EQ(SendHandOverTextWithin(player.handle, std::string(4'000'000, 'x'), { 200ms, 30s }), Silent);
    std::vector<FileDescriptor> senders; // until the system's queue is full
    do {
        senders.push_back(ConnectSilently(player.handle));
    } while (senders.back());
    EXPECT_EQ(SendHandOverTextWithin(player.handle, "no-room.avi", { 200ms, 30s }), Silent);
    EXPECT_GE(Clock::now() - start, 600ms);
    EXPECT_LT(Clock::now() - start, 20s);
    EXPECT_TRUE(IsHandOverAlive(player.handle));
    senders.clear();
    kill(player.process, SIGCONT);
    EXPECT_EQ(SendHandOverTextWithin(player.handle, "next.avi", { 30s, 1ms }), TakenOver);
    EXPECT_EQ(player.NextText(), "next.avi");
}

TEST_F(HandOverOnLinux, silent_senders_are_let_go_and_waiting_ones_make_room)
{
    Listen();
    const FileDescriptor listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const auto address = AddressOf("77");
    ASSERT_EQ(bind(listening.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listening.Number(), 8), 0);
    HandOverReceiver receiver(listening.Number(), Keep(), { 50ms, 30s, 2 });
    const auto silent = ConnectSilently("77");
    const auto alsoSilent = ConnectSilently("77");
    auto first = SendBeside("77", "first.avi");
    ASSERT_TRUE(RunUntil([&] { return received.size() == 1; }));
    char bytes[2];
    EXPECT_EQ(recv(silent.Number(), bytes, sizeof bytes, 0), 1);
    EXPECT_EQ(recv(silent.Number(), bytes, sizeof bytes, 0), 0);
    auto second = SendBeside("77", "second.avi");
    ASSERT_TRUE(RunUntil([&] { return received.size() == 2; }));
    auto third = SendBeside("77", "third.avi");
    EXPECT_EQ(OutcomeOf(first), TakenOver);
    ASSERT_TRUE(RunUntil([&] { return received.size() == 3; }));
    tokens[0]();
    tokens[1]();
    tokens[2]();
    EXPECT_EQ(OutcomeOf(second), Opened);
    EXPECT_EQ(OutcomeOf(third), Opened);
}

TEST_F(HandOverOnLinux, the_handler_may_end_the_player_and_drops_all_who_wait)
{
    Listen();
    const auto handle = ends->CommandHandle();
    ends->Deliver([&](const std::string& text, HandOverDone done) {
        tokens.push_back(std::move(done));
        if (text == "last.avi")
            ends.reset();
    });
    auto waiting = SendBeside(handle, "waiting.avi");
    ASSERT_TRUE(RunUntil([&] { return tokens.size() == 1; }));
    auto last = SendBeside(handle, "last.avi");
    EXPECT_EQ(OutcomeOf(waiting), Silent);
    EXPECT_EQ(OutcomeOf(last), Silent);
    tokens.at(1)();
    EXPECT_FALSE(IsHandOverAlive(handle));
    EXPECT_FALSE(std::filesystem::exists(InRuntimeFolder(handle)));
}

TEST_F(HandOverOnLinux, a_killed_receiver_is_dead_for_all_and_its_sockets_are_tidied_away)
{
    OtherPlayer player;
    struct stat facts { };
    ASSERT_EQ(stat(InRuntimeFolder(player.handle).c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600U);
    EXPECT_TRUE(IsHandOverAlive(player.handle));
    auto waiting = SendBeside(player.handle, "a.avi");
    EXPECT_EQ(player.NextText(), "a.avi");
    player.Kill();
    EXPECT_EQ(waiting.get(), Silent);
    EXPECT_FALSE(IsHandOverAlive(player.handle));
    EXPECT_EQ(SendHandOverText(player.handle, "a.avi"), Silent);
    Listen();
    EXPECT_FALSE(std::filesystem::exists(InRuntimeFolder(player.handle)));
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
    const auto start = Clock::now();
    EXPECT_FALSE(HandOverLock::Take(50ms));
    EXPECT_GE(Clock::now() - start, 50ms);
    kill(holder, SIGKILL);
    WaitForProcess(holder);
    EXPECT_TRUE(HandOverLock::Take(1s));
    EXPECT_TRUE(HandOverLock::Take(0ms));
}

} // namespace
} // namespace zentaro::platform
