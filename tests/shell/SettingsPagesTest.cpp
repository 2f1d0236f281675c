#include "shell/SettingsPages.h"
#include "base/Paths.h"
#include "platform/Files.h"

#include <gtest/gtest.h>

namespace zentaro {
namespace {

std::string SomeFolder()
{
    return platform::PicturesFolder();
}

TEST(SettingsPagesTest, APageThatChangesNothingTurnsFlagsIntoMinusOneAndNothingElse)
{
    PlayerSettings settings;
    settings.Language = "Deutsch";
    settings.KeepHistory = 7;
    settings.SnapshotPath = SomeFolder();
    settings.SnapshotPng = 1; // on no page
    settings.Associations[23] = 1;
    settings.PlaylistPosition = 4;
    settings.WindowLeft = -1200;
    auto expected = settings;
    expected.KeepHistory = expected.DisableScreenSaver = expected.SnapshotPreview = expected.Associations[23] = -1;
    const auto written = WithPages(settings, PagesOf(settings));
    EXPECT_EQ(written, expected);
    EXPECT_EQ(WithPages(written, PagesOf(written)), written);
}

TEST(SettingsPagesTest, NumbersThatNameNoChoiceShowAsWhatTheyActLike)
{
    PlayerSettings settings;
    settings.TitleBarMode = -4;
    settings.PlaylistPosition = 5;
    settings.SnapshotPath = "neither here nor there";
    const auto pages = PagesOf(settings);
    EXPECT_EQ(pages.titleBarMode, 2);
    EXPECT_EQ(pages.playlistPosition, 0);
    EXPECT_EQ(pages.snapshotPath, platform::PicturesFolder());
}

TEST(SettingsPagesTest, WhatTheFileWouldCutIsRefused)
{
    SettingsPages pages;
    pages.snapshotPath = SomeFolder();
    pages.snapshotPrefix = "IMG 1_";
    EXPECT_FALSE(FaultIn(pages));
    for (const auto* const prefix : { "a,b", "\"a", " a", "a/b", "a\\b", "a?" }) {
        pages.snapshotPrefix = prefix;
        ASSERT_TRUE(FaultIn(pages)) << prefix;
        EXPECT_EQ(FaultIn(pages)->field, PageFault::Field::SnapshotPrefix);
    }
    for (const auto& path : { std::string(), std::string("pictures"), SomeFolder() + ",old" }) {
        pages.snapshotPath = path;
        ASSERT_TRUE(FaultIn(pages)) << path;
        EXPECT_EQ(FaultIn(pages)->field, PageFault::Field::SnapshotPath);
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
}

} // namespace
} // namespace zentaro
