#include "app/KeyMap.h"
#include "app/OwnSettings.h"
#include "base/Words.h"
#include "platform/Files.h"
#include "tests/app/PlayerFixture.h"

#include <set>

namespace zentaro {
namespace {

class OwnFile : public PlayerTest {
protected:
    std::string Path() const { return (folder / "Own.cfg").string(); }
    OwnSettings Read() const
    {
        OwnSettings settings(Path());
        settings.Load();
        return settings;
    }
};

TEST_F(OwnFile, KeepsAnyTextAndWritesOnlyWhatHasChanged)
{
    auto settings = Read();
    EXPECT_TRUE(settings.Save());
    EXPECT_FALSE(fs::exists(Path()));
    const std::string odd = "a=b\\n\nzwei\r\n\xff\\";
    settings.Set("odd", odd);
    settings.Set("gone", "x");
    settings.Set("size", "125");
    settings.Remove("gone");
    ASSERT_TRUE(settings.Save());
    const auto again = Read();
    EXPECT_EQ(again.Find("odd"), odd);
    EXPECT_EQ(again.Find("gone"), std::nullopt);
    EXPECT_EQ(again.Number("size", 100, 100, 300), 125);
    EXPECT_EQ(again.Number("size", 100, 150, 300), 100);
    EXPECT_EQ(again.Number("odd", 7, 0, 9), 7);
}

TEST_F(OwnFile, ADamagedOneCountsAsEmptyAndOneThatIsNotOursStays)
{
    auto settings = Read();
    settings.Set("a", "1");
    ASSERT_TRUE(settings.Save());
    const auto whole = *platform::ReadTextFile(Path(), 1000);
    for (std::size_t length = 0; length + 1 < whole.size(); ++length) {
        std::ofstream(Path(), std::ios::binary) << whole.substr(0, length);
        EXPECT_EQ(Read().Find("a"), std::nullopt) << length;
    }
    auto damaged = Read();
    damaged.Set("b", "2");
    EXPECT_TRUE(damaged.Save());
    EXPECT_EQ(Read().Find("b"), "2");

    const std::string newer = "zentaro own settings 2\na=1\nend\n";
    std::ofstream(Path(), std::ios::binary) << newer;
    auto foreign = Read();
    EXPECT_EQ(foreign.Find("a"), "1");
    foreign.Set("a", "3");
    EXPECT_FALSE(foreign.Save());
    EXPECT_EQ(platform::ReadTextFile(Path(), 1000), newer);
}

TEST_F(OwnFile, ChosenKeysAreKeptAndThoseOfDeliveryComeBack)
{
    auto settings = Read();
    KeyMap keys(settings);
    int changes = 0;
    keys.onChange.push_back([&] { ++changes; });
    auto table = keys.Table();
    table["Stop"] = { "Ctrl+Alt+S", ";" };
    table["Mute"].clear();
    keys.Take(table);
    EXPECT_EQ(changes, 1);
    auto kept = Read();
    EXPECT_EQ(KeyMap(kept).Table(), table);
    EXPECT_EQ(KeyMap(kept).Shown(*FindCommand("Mute")), "");
    KeyMap(kept).Take(KeyMap::Defaults());
    EXPECT_EQ(KeyMap(kept).Shown(*FindCommand("Stop")), "Ctrl+S");
    EXPECT_EQ(platform::ReadTextFile(Path(), 1000), "zentaro own settings 1\nend\n");
}

TEST(Keys, of_delivery_run_one_command_each)
{
    const auto keys = KeyMap::Defaults();
    for (const auto& [id, mine] : keys) {
        for (const auto& key : mine) {
            const auto* const other = KeyMap::UserOf(keys, key, id);
            EXPECT_EQ(other, nullptr) << key << " of " << id << " is a key of " << other->id;
        }
    }
    EXPECT_EQ(KeyMap::UserOf(keys, "Ctrl+O", "Stop")->id, "OpenFile");
    // In the list and on the video one key can mean two things.
    EXPECT_EQ(KeyMap::UserOf(keys, "Return", "PlaySelected"), nullptr);
    EXPECT_EQ(KeyMap::UserOf(keys, "Return", "Stop")->id, "PlaySelected");
}

TEST(Keys, commands_are_told_apart_by_their_names)
{
    std::set<std::string> names;
    for (const auto& command : AllCommands()) {
        const auto name = ListedName(command);
        EXPECT_TRUE(name.empty() || names.insert(name).second) << name;
        EXPECT_TRUE(command.keys.empty() || !name.empty() || command.id == "CommandList") << command.id;
    }
}

TEST_F(OwnFile, TheTimeIsToldInWordsWheneverAnotherPlaceIsChosen)
{
    auto& player = StartWithEntries(1, 0, 0);
    trace.length = 5405000;
    trace.time = 0;
    player.OnPositionTick();
    const int before = player.State().seeks;
    player.Transporting().Seek(0.5);
    EXPECT_NE(player.State().seeks, before);
    EXPECT_EQ(PlaceText(player.State()), "45:02 of 1:30:05");
    SetTranslator([](std::string_view english, auto) { return english == "%1 of %2" ? "%2: %1" : ""; });
    EXPECT_EQ(PlaceText(player.State()), "1:30:05: 45:02");
    SetTranslator(nullptr);
    Run("TellTime");
    EXPECT_EQ(world.window.notes.back(), "45:02 of 1:30:05");
    // To the second, where the bar knows hundredths.
    trace.time = 2712000;
    player.OnPositionTick();
    EXPECT_EQ(PlaceText(player.State()), "45:12 of 1:30:05");
    // The next item has nothing of the one before.
    player.Sequence().PlayChosen(0, false);
    EXPECT_EQ(PlaceText(player.State()), "0:00");
}

} // namespace
} // namespace zentaro
