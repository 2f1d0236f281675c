#include "app/VideoChoices.h"
#include "tests/desktop/Clips.h"
#include "tests/desktop/Process.h"
#include "tests/live/LivePlayer.h"

namespace zentaro::live {
namespace {

/// Index of the one choice that is in force; -1 for none, -2 for several.
int Present(const std::vector<VideoChoice>& choices)
{
    int present = -1;
    for (int i = 0; i < static_cast<int>(choices.size()); ++i) {
        if (choices[static_cast<std::size_t>(i)].isChecked)
            present = present == -1 ? i : -2;
    }
    return present;
}

class VideoMenuOfAnItem : public LivePlayer {
protected:
    /// A film with sound in two languages.
    std::string MakeFilm() const
    {
        const auto film = folder + "film.mkv";
        trial::Process ffmpeg(trial::Words(
            "ffmpeg -v error -i " + trial::Clips::Make("clip.mp4") + " -map 0:v -map 0:a -map 0:a -c copy " + film));
        EXPECT_EQ(ffmpeg.WaitForEnd(), 0);
        return film;
    }
    bool RunUntilVideo()
    {
        return RunUntil([&] { return ReadVideoChoices(player).hasVideo && Time() > 0; });
    }
    bool BecomesPresent(std::vector<VideoChoice> VideoChoices::*choices, int index)
    {
        return RunUntil([&] { return Present(ReadVideoChoices(player).*choices) == index; });
    }
};

TEST_F(VideoMenuOfAnItem, OffersWhatTheEngineHasAndStartsAnewWithTheNext)
{
    EXPECT_TRUE(ReadVideoChoices(player).audioTracks.empty());
    AddEntries({ MakeFilm() });
    player.Sequence().CMDPlayClick();
    ASSERT_TRUE(RunUntilVideo());
    auto choices = ReadVideoChoices(player);
    ASSERT_EQ(choices.audioTracks.size(), 3U);
    EXPECT_EQ(choices.audioTracks[0].caption, "Off");
    EXPECT_EQ(Present(choices.audioTracks), 1);
    EXPECT_TRUE(choices.subtitles.empty());
    choices.audioTracks[2].choose();
    EXPECT_TRUE(BecomesPresent(&VideoChoices::audioTracks, 2));

    const auto file = folder + "Ä & 100% #1.srt";
    trial::WriteWholeFile(file, "1\n00:00:00,000 --> 00:00:59,000\nHello\n");
    LoadSubtitleFile(player);
    world.dialogs.chooseSubtitles(file);
    EXPECT_TRUE(BecomesPresent(&VideoChoices::subtitles, 1));
    ReadVideoChoices(player).subtitles[0].choose();
    EXPECT_TRUE(BecomesPresent(&VideoChoices::subtitles, 0));

    EXPECT_EQ(Present(choices.aspectRatios), 0);
    for (const std::size_t ratio : { 2, 8, 0, 5 }) {
        choices.aspectRatios[ratio].choose();
        EXPECT_TRUE(BecomesPresent(&VideoChoices::aspectRatios, static_cast<int>(ratio)));
    }
    EXPECT_EQ(choices.deinterlacing[0].caption, "Automatic");
    EXPECT_EQ(Present(choices.deinterlacing), 0);
    choices.deinterlacing[4].choose();
    EXPECT_EQ(Present(ReadVideoChoices(player).deinterlacing), 3); // "Automatic" is gone
    RunFor(1s);
    EXPECT_TRUE(player.State().mediaControlsEnabled);

    player.Sequence().PlayItem(0, false);
    ASSERT_TRUE(RunUntilVideo());
    choices = ReadVideoChoices(player);
    EXPECT_EQ(Present(choices.aspectRatios), 0);
    EXPECT_EQ(choices.deinterlacing[0].caption, "Automatic");
    player.Transporting().cmdStopClick();
    for (const auto* const group : { &choices.audioTracks, &choices.aspectRatios, &choices.deinterlacing })
        group->back().choose(); // the menu was left open
    EXPECT_FALSE(ReadVideoChoices(player).hasVideo);
}

TEST_F(VideoMenuOfAnItem, StandsAtItsBeginningUntilItIsTaken)
{
    const auto film = MakeFilm();
    for (const auto& path : { film, trial::Clips::Make("short.mp4", 1.4) }) {
        const EngineOptions options{};
        engines.MakeReady({ path, false }, options);
        RunFor(3s);
        const auto engine = engines.Create();
        engine->Add({ path, false }, options);
        EXPECT_LT(engine->State(), Engine::kEnded) << path;
        EXPECT_LT(engine->Time(), 300) << path;
        engine->Play();
        EXPECT_TRUE(RunUntil([&] { return engine->State() == Engine::kPlaying; })) << path;
        EXPECT_TRUE(RunUntil([&] { return engine->State() == Engine::kEnded || engine->Time() > 300; })) << path;
    }
}

TEST_F(VideoMenuOfAnItem, LeavesOutItsPicturesWhileNobodySeesThem)
{
    AddEntries({ MakeFilm() });
    player.Sequence().CMDPlayClick();
    ASSERT_TRUE(RunUntilVideo());
    auto& engine = *player.Transporting().LoadedEngine();
    const auto hasPicture = [&] { return engine.TakeSnapshot(folder + "shot.png"); };
    ASSERT_TRUE(RunUntil(hasPicture));
    engine.SetSeen(false);
    EXPECT_TRUE(RunUntil([&] { return !hasPicture(); }));
    const auto before = Time();
    EXPECT_TRUE(RunUntil([&] { return Time() > before + 1500; }));
    EXPECT_FALSE(hasPicture());
    EXPECT_TRUE(player.State().hasVideoOutput && !player.State().showAudioLogo);
    engine.SetSeen(true);
    EXPECT_TRUE(RunUntil(hasPicture));
    EXPECT_GE(Time(), before + 1500);
}

} // namespace
} // namespace zentaro::live
