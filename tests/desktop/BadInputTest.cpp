#include "tests/desktop/PlayerDesk.h"

#include <filesystem>

namespace zentaro::trial {
namespace {

class BadInput : public PlayerDesk { };

TEST_F(BadInput, WhatIsNoMediaIsRefusedInABoxOrSilently)
{
    WriteWholeFile(InHome("empty.mp4"), "");
    WriteWholeFile(InHome("text.avi"), "Only words, no picture.\n");
    WriteWholeFile(InHome("notes.txt"), "Only words.\n");
    std::filesystem::create_directory(InHome("folder.mkv"));
    for (const auto* const refused : { "empty.mp4", "text.avi", "folder.mkv" }) {
        SCOPED_TRACE(refused);
        auto player = StartAndShow({ InHome(refused) });
        EXPECT_EQ(player.AnswerDialog(), "Zentaro");
        EXPECT_EQ(player.Title(), "Zentaro");
        EXPECT_CLOSES_CLEANLY(player);
    }
    int names = 0;
    for (const auto& ignored : { InHome("notes.txt"), Home(), std::string(4000, 'x') + ".mp4", std::string("-platform"),
             std::string("\xFF\xFE*Add") }) {
        SCOPED_TRACE(ignored);
        auto player = StartAndShow({ ignored });
        EXPECT_EQ(player.Title(), "Zentaro");
        // The next file comes through: nothing is in its way.
        EXPECT_EQ(Start({ ClipNamed(std::to_string(++names) + ".mp4") }).WaitForEnd(), 0);
        EXPECT_TRUE(player.Dialogs().empty());
        EXPECT_CLOSES_CLEANLY(player);
    }
}

TEST_F(BadInput, AnyNameThatAFileCanHavePlays)
{
    std::string deep;
    while (Home().size() + deep.size() < 3800)
        deep += std::string(150, 'd') + "/";
    for (const auto& name : { std::string("line\nbreak \"quoted\" 'too' %20 ?#.mp4"),
             std::string("not \xFF\xC0 UTF-8.mp4"), deep + "clip.mp4" }) {
        SCOPED_TRACE(name);
        auto player = StartAndShow({ ClipNamed(name) });
        EXPECT_TRUE(player.WaitForTitle(".mp4)"));
        EXPECT_TRUE(player.PictureMoves());
        EXPECT_CLOSES_CLEANLY(player);
    }
}

} // namespace
} // namespace zentaro::trial
