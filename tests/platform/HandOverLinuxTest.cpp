#include "platform/HandOverReceiver_linux.h"
#include "tests/platform/HandOverFixture.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using enum HandOverOutcome;

class HandOverOnLinux : public HandOverTest {
protected:
    sockaddr_un AddressOf(const std::string& handle) const
    {
        sockaddr_un address{ .sun_family = AF_UNIX, .sun_path = {} };
        (folder / "zentaro/" + handle).copy(address.sun_path, sizeof address.sun_path - 1);
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
};

TEST_F(HandOverOnLinux, a_full_queue_is_given_up_too_and_what_a_killed_player_left_is_tidied_away)
{
    const auto killed = StartPeer({ "listen", folder / "handles" });
    const auto [command, probe] = HandlesIn(folder / "handles");
    killed->Terminate();
    ASSERT_TRUE(killed->HasEnded(10s));
    struct stat facts { };
    ASSERT_EQ(stat(AddressOf(command).sun_path, &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600U);
    Listen();
    EXPECT_NE(stat(AddressOf(command).sun_path, &facts), 0);
    EXPECT_NE(stat(AddressOf(probe).sun_path, &facts), 0);

    std::vector<FileDescriptor> senders;
    do {
        senders.push_back(ConnectSilently(ends->CommandHandle()));
    } while (senders.back());
    EXPECT_EQ(Send(ends->CommandHandle(), "no-room.avi", { 200ms, 2min }).get(), Silent);
    EXPECT_TRUE(IsHandOverAlive(ends->CommandHandle()));
    const std::string handles[] = { ends->CommandHandle(), ends->ProbeHandle(), ends->AddHandle() };
    ends.reset();
    for (const auto& handle : handles)
        EXPECT_NE(stat(AddressOf(handle).sun_path, &facts), 0) << handle;
}

TEST_F(HandOverOnLinux, silent_senders_are_let_go_and_waiting_ones_make_room)
{
    Listen();
    const FileDescriptor listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const auto address = AddressOf("77");
    ASSERT_EQ(bind(listening.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listening.Number(), 8), 0);
    HandOverReceiver receiver(listening.Number(), Keep(), { 50ms, 2min, 2 });
    const auto silent = ConnectSilently("77");
    const auto alsoSilent = ConnectSilently("77");
    std::vector<Sending> sendings;
    for (std::size_t i = 0; i < 3; ++i) {
        sendings.push_back(Send("77", std::to_string(i)));
        ASSERT_TRUE(RunUntil([&] { return received.size() == i + 1; }));
    }
    char bytes[2];
    EXPECT_EQ(recv(silent.Number(), bytes, sizeof bytes, 0), 1);
    EXPECT_EQ(recv(silent.Number(), bytes, sizeof bytes, 0), 0);
    EXPECT_EQ(OutcomeOf(sendings[0]), TakenOver);
    for (const auto& token : tokens)
        token();
    EXPECT_EQ(OutcomeOf(sendings[1]), Opened);
    EXPECT_EQ(OutcomeOf(sendings[2]), Opened);
}

} // namespace
} // namespace zentaro::platform
