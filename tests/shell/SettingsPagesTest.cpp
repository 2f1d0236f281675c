#include "shell/SettingsPages.h"
#include "platform/Files.h"

#include <gtest/gtest.h>

#include <set>

namespace zentaro {
namespace {

struct FlagPair {
    bool SettingsPages::*shown;
    std::int16_t PlayerSettings::*stored;
};
constexpr FlagPair kFlags[] = {
    { &SettingsPages::alwaysOnTop, &PlayerSettings::AlwaysOnTop },
    { &SettingsPages::keepHistory, &PlayerSettings::KeepHistory },
    { &SettingsPages::launchFullScreen, &PlayerSettings::LaunchFullScreen },
    { &SettingsPages::rememberLastPos, &PlayerSettings::RememberLastPos },
    { &SettingsPages::rememberLastSize, &PlayerSettings::RememberLastSize },
    { &SettingsPages::useNewPlayer, &PlayerSettings::UseNewPlayer },
    { &SettingsPages::disableScreenSaver, &PlayerSettings::DisableScreenSaver },
    { &SettingsPages::showInTray, &PlayerSettings::ShowInTray },
    { &SettingsPages::snapshotPreview, &PlayerSettings::SnapshotPreview },
};

/// Every flag off, and what no page shows away from its default.
PlayerSettings Dark()
{
    PlayerSettings settings;
    for (const auto& flag : kFlags)
        settings.*flag.stored = 0;
    settings.SnapshotPath = platform::PicturesFolder();
    settings.Language = "Deutsch";
    settings.SnapshotPng = 7;
    settings.WindowLeft = -1200;
    return settings;
}

TEST(SettingsPagesTest, EveryFlagHasAPlaceOfItsOwnOnTheWayThereAndBack)
{
    for (std::size_t flag = 0; flag < std::size(kFlags) + 24; ++flag) {
        auto settings = Dark();
        auto pages = PagesOf(Dark());
        const auto set = [&](std::int16_t value) {
            if (flag < std::size(kFlags)) {
                settings.*kFlags[flag].stored = value;
                pages.*kFlags[flag].shown = true;
            } else {
                settings.Associations[flag - std::size(kFlags)] = value;
                pages.associations[flag - std::size(kFlags)] = true;
            }
        };
        set(7); // on like any number but 0; the way back makes it -1
        EXPECT_EQ(PagesOf(settings), pages) << "flag " << flag;
        set(-1);
        EXPECT_EQ(WithPages(Dark(), PagesOf(Dark()), pages), settings);
        EXPECT_EQ(WithPages(settings, pages, PagesOf(Dark())), Dark());
    }
}

TEST(SettingsPagesTest, ChoicesAndTextsGoThereAndBackAndOtherNumbersShowAsWhatTheyActLike)
{
    for (int position = 0; position <= 5; ++position) {
        auto settings = Dark();
        settings.TitleBarMode = static_cast<std::int16_t>(position - 1);
        settings.PlaylistPosition = position;
        settings.SnapshotPath += "/one";
        settings.SnapshotPrefix = "two";
        auto pages = PagesOf(settings);
        EXPECT_EQ(pages.titleBarMode, position == 1 || position == 2 ? position - 1 : 2);
        EXPECT_EQ(pages.playlistPosition, position % 5);
        EXPECT_EQ(pages.snapshotPath, settings.SnapshotPath);
        EXPECT_EQ(pages.snapshotPrefix, "two");
        pages.snapshotPath = "three";
        const auto written = WithPages(Dark(), PagesOf(Dark()), pages);
        EXPECT_EQ(written.TitleBarMode, pages.titleBarMode);
        EXPECT_EQ(written.PlaylistPosition, pages.playlistPosition);
        EXPECT_EQ(written.SnapshotPath, "three");
        EXPECT_EQ(written.SnapshotPrefix, "two");
    }
    auto settings = Dark();
    settings.SnapshotPath = "neither here nor there";
    EXPECT_EQ(PagesOf(settings).snapshotPath, platform::PicturesFolder());
}

TEST(SettingsPagesTest, WhatWasNotTouchedStaysAsItIsStoredHoweverItShows)
{
    PlayerSettings settings;
    settings.AlwaysOnTop = settings.Associations[5] = 7;
    settings.TitleBarMode = 9;
    settings.PlaylistPosition = -3;
    settings.SnapshotPath = "C:\\";
    settings.SnapshotPrefix = "a,b";
    const auto shown = PagesOf(settings);
    EXPECT_EQ(WithPages(settings, shown, shown), settings);
    auto chosen = shown;
    chosen.showInTray = !shown.showInTray;
    auto expected = settings;
    expected.ShowInTray = chosen.showInTray ? -1 : 0;
    EXPECT_EQ(WithPages(settings, shown, chosen), expected);
    EXPECT_FALSE(FaultIn(shown, chosen));
}

TEST(SettingsPagesTest, WhatTheFileWouldCutIsRefused)
{
    SettingsPages before;
    before.snapshotPath = platform::PicturesFolder();
    auto pages = before;
    pages.snapshotPrefix = "IMG 1_";
    EXPECT_FALSE(FaultIn(before, pages));
    for (const auto* const prefix :
        { "a,b", "\"a", " a", "a\rb", "a\nb", "a/b", "a\\b", "a:", "a*", "a?", "a\"", "<", ">", "|" }) {
        pages.snapshotPrefix = prefix;
        ASSERT_TRUE(FaultIn(before, pages)) << prefix;
        EXPECT_EQ(FaultIn(before, pages)->field, PageFault::Field::SnapshotPrefix);
    }
    for (const auto& path : { std::string(), std::string("pictures"), platform::PicturesFolder() + ",old" }) {
        pages.snapshotPath = path;
        ASSERT_TRUE(FaultIn(before, pages)) << path;
        EXPECT_EQ(FaultIn(before, pages)->field, PageFault::Field::SnapshotPath);
    }
}

TEST(SettingsPagesTest, AFamilyIsChosenAndGivenUpAsAWhole)
{
    std::array<bool, 24> chosen{};
    const auto& matroska = FileTypeFamilies()[2].members; // mka, mkv
    ASSERT_EQ(matroska, (std::vector<std::size_t>{ 2, 3 }));
    chosen[3] = true;
    EXPECT_EQ(ChosenOf(chosen, matroska), Chosen::Some);
    ToggleGroup(chosen, matroska);
    EXPECT_EQ(ChosenOf(chosen, matroska), Chosen::All);
    ToggleGroup(chosen, matroska);
    EXPECT_EQ(chosen, (std::array<bool, 24>{}));
    EXPECT_EQ(ChosenOf(chosen, matroska), Chosen::None);
    EXPECT_EQ(FileTypeFamilies().size(), 7U);
    std::multiset<std::size_t> all;
    for (const auto& family : FileTypeFamilies())
        all.insert(family.members.begin(), family.members.end());
    EXPECT_EQ(all.size(), 24U);
    EXPECT_EQ(std::set<std::size_t>(all.begin(), all.end()).size(), 24U);
}

} // namespace
} // namespace zentaro
