#include "playback/EngineOptions.h"
#include "playback/Snapshot.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(EngineOptions, follow_the_settings_and_are_always_PNG)
{
    PlayerSettings settings;
    settings.SnapshotPrefix = "Shot ";
    EXPECT_EQ(OptionsFromSettings(settings),
        (EngineOptions{ "overlay", "snapshot-prefix=Shot ", "snapshot-path=C:\\", "snapshot-format=PNG",
            "snapshot-preview", "snapshot-sequential", "disable-screensaver", "snapshot-Width=640",
            "snapshot-Height=480" }));
    settings.SnapshotPreview = 0;
    settings.DisableScreenSaver = 0;
    settings.SnapshotPng = -1;
    const auto options = OptionsFromSettings(settings);
    EXPECT_EQ(options[3], "snapshot-format=PNG");
    EXPECT_EQ(options[4], "no-snapshot-preview");
    EXPECT_EQ(options[6], "no-disable-screensaver");
}

TEST(EngineOptions, a_list_of_plugins_knows_their_times)
{
    const auto list = "cache vlc 3.0.21 libx_plugin.dll" + std::string("\x15\x40\x0E\x67\0\0\0\0", 8) + "\x02";
    EXPECT_TRUE(KnowsPlugin(list, 0x670E4015));
    EXPECT_FALSE(KnowsPlugin(list, 0x670E4016));
    EXPECT_FALSE(KnowsPlugin("", 0x670E4015));
}

TEST(Snapshot, names_end_where_five_digits_do)
{
    EXPECT_EQ(NextSnapshotName("x", '/', [](const std::string& name) { return name != "x99999.png"; }), "x99999.png");
    EXPECT_EQ(NextSnapshotName("x", '/', [](const std::string&) { return true; }), "");
}
