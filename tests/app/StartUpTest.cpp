#include "app/StartUp.h"

#include <gtest/gtest.h>

using namespace zentaro;
using Kind = StartRole::Kind;

namespace {

StartupRequest Read(const std::string& commandLine, const std::string& existing = {})
{
    return ReadCommandLine(commandLine, [&](const std::string& path) { return path == existing; });
}

StartRole Decide(const std::string& commandLine, const PublishedHandles& handles, bool alive, bool useNewPlayer = false)
{
    return DecideRole(
        Read(commandLine), handles, useNewPlayer, [&](const std::string&) { return alive; }, '\\');
}

const PublishedHandles kRunning{ "4711", "4712" };

} // namespace

TEST(CommandLine, quotes_go_and_blanks_stay)
{
    EXPECT_EQ(Read("\"C:\\My Clips\\a.avi\"").StartupArgument, "C:\\My Clips\\a.avi");
    EXPECT_EQ(Read("C:\\a.avi C:\\b.avi").StartupArgument, "C:\\a.avi C:\\b.avi");
    EXPECT_EQ(Read("").StartupArgument, "");
}

TEST(CommandLine, the_add_word_is_cut_with_its_blank_but_handed_over)
{
    const auto request = Read("\"C:\\Clips\\a.avi\" \"*Add\"");
    EXPECT_EQ(request.StartupArgument, "C:\\Clips\\a.avi");
    EXPECT_EQ(request.handOverText, "C:\\Clips\\a.avi *Add");
    EXPECT_FALSE(request.ReplaceOnOpen);
    EXPECT_TRUE(Read("C:\\Clips\\a.avi").ReplaceOnOpen);
    EXPECT_EQ(Read("*Add").StartupArgument, "");
    EXPECT_FALSE(Read("*Add").ReplaceOnOpen);
}

TEST(CommandLine, quotes_that_belong_to_a_files_name_stay)
{
    const std::string name = "/clips/she said \"go\".mp4";
    EXPECT_EQ(Read(name, name).StartupArgument, name);
    EXPECT_EQ(Read(name + " *Add", name).StartupArgument, name);
    EXPECT_EQ(Read(name).StartupArgument, "/clips/she said go.mp4");
}

TEST(StartRole, a_media_file_goes_to_the_running_player_and_anything_else_ends_silently)
{
    EXPECT_EQ(Decide("C:\\a.avi", kRunning, true), (StartRole{ Kind::Messenger, "4711", "C:\\a.avi" }));
    EXPECT_EQ(Decide("C:\\a.avi *Add", kRunning, true), (StartRole{ Kind::Messenger, "4711", "C:\\a.avi *Add" }));
    EXPECT_EQ(Decide("C:\\a.txt", kRunning, true), (StartRole{ Kind::Messenger, "", "" }));
    EXPECT_EQ(Decide("", kRunning, true), (StartRole{ Kind::Messenger, "4712", "Hello" }));
}

TEST(StartRole, a_player_that_is_gone_or_not_wanted_is_passed_over)
{
    EXPECT_EQ(Decide("C:\\a.avi", {}, true).kind, Kind::Player); // there has never been one
    EXPECT_EQ(Decide("C:\\a.avi", kRunning, false).kind, Kind::Player);
    EXPECT_EQ(Decide("", kRunning, false).kind, Kind::Player);
    EXPECT_EQ(Decide("C:\\a.avi", kRunning, true, true).kind, Kind::Player);
    EXPECT_EQ(Decide("", kRunning, true, true).kind, Kind::Player);
}
