#include "tests/desktop/PlayerDesk.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace zentaro::trial {
namespace {

class Playing : public PlayerDesk {
protected:
    /// Whether the process has the file open just now.
    static bool Reads(const Process& process, const std::string& path)
    {
        const auto files = "ls -l /proc/" + std::to_string(process.Id()) + "/fd";
        return std::system((files + " | grep -qF '" + path + "'").c_str()) == 0;
    }
    /// Whether the video's place shows the picture that stands for sound, in its coarse look: how it was scaled does
    /// not matter.
    bool ShowsAudioLogo(const ShownPlayer& player) const
    {
        const auto blocks = [](const QImage& picture) {
            return picture.scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        const QImage logo(QString::fromStdString(InHome("program/Audio.JPG")));
        return WaitUntil([&] {
            const auto video = Screen().Grab(player.Video());
            return !video.isNull() && ShareThatDiffers(blocks(video), blocks(logo)) < 0.05;
        });
    }
    /// Whether the time label changes; the first time can be the new file's length.
    static bool ClockRuns(const ShownPlayer& player, int changes = 2)
    {
        const auto label = player.OnScreen(player.Layout().TimeLabel());
        const auto before = Screen().Grab(label);
        return changes == 0
            || (WaitUntil([&] { return Screen().Grab(label) != before; }) && ClockRuns(player, changes - 1));
    }
};

TEST_F(Playing, EveryContainerMovesItsPictureOrShowsTheLogoWhileTheClockRuns)
{
    auto player = StartAndShow();
    for (const auto* const name : { "c.mp4", "c.mkv", "c.mp3", "c.avi", "c.mpg", "c.wav", "c.flv", "c.wmv", "c.ogg",
             "c.mov", "c.3gp", "c.m4a", "c.ogm", "c.wma", "c.mka" }) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(player.process.IsRunning()) << player.process.Output();
        EXPECT_EQ(Start({ Clips::Make(name) }).WaitForEnd(), 0);
        EXPECT_TRUE(player.WaitForTitle(name));
        EXPECT_TRUE(Clips::IsSoundOnly(name) ? ShowsAudioLogo(player) && ClockRuns(player) : player.PictureMoves());
    }
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Playing, WorksWithoutAnyDisplayAndSaysSo)
{
    const auto first = ClipNamed("first.mp4");
    const auto second = ClipNamed("second.mp4");
    auto player = Start({ first }, ".", { "DISPLAY=" });
    EXPECT_TRUE(WaitUntil([&] { return Reads(player, first); }));
    EXPECT_EQ(Start({ second }, ".", { "DISPLAY=" }).WaitForEnd(), 0);
    EXPECT_TRUE(WaitUntil([&] { return Reads(player, second) && !Reads(player, first); }));
    player.Signal(SIGTERM);
    EXPECT_EQ(player.WaitForEnd(), 0);
    const auto said = player.Output();
    EXPECT_TRUE(said.starts_with("There is no display")) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    EXPECT_EQ(StoredSettings().WindowWidth, WindowLayout::kFirstWidth);
}

} // namespace
} // namespace zentaro::trial
