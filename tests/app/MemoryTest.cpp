#include "app/StateText.h"
#include "tests/app/PlayerFixture.h"

#include <random>
#include <set>

namespace zentaro {
namespace {

using namespace std::chrono_literals;

constexpr double kMinute = 60'000;

class MemoryTest : public PlayerTest {
protected:
    /// What plays is at that time of an item of 100 minutes.
    void PlayTo(double minutes)
    {
        trace.time = minutes * kMinute;
        trace.length = 100 * kMinute;
        world.player->OnPositionTick();
    }
    /// Nothing is told of its end; what was written so far is all that is left.
    void Kill()
    {
        world.Elapse(3s);
        world.Settle();
        world.player.reset();
        world.timers.clear();
        world.background.clear();
        world.store.values.clear(); // else the dead player seems to be there
        trace.time = trace.length = 0;
        Start();
    }
    std::string Rows()
    {
        std::string rows;
        for (int i = 0; i < world.player->Entries().Count(); ++i)
            rows += world.player->Entries().PathAt(i) + " ";
        return rows;
    }
    std::string LastTime() { return world.player->Remembering().LastTime(); }
};

TEST_F(MemoryTest, a_killed_player_offers_its_list_and_where_the_film_was)
{
    StartWithEntries(3, kPlayContinuous, kNoRepeat);
    EXPECT_EQ(LastTime(), "");
    Run("Next");
    PlayTo(46.25);
    world.player->Transporting().SetVolume(40);
    Kill();
    EXPECT_EQ(world.player->Entries().Count(), 0) << "it is only offered";
    EXPECT_EQ(LastTime(), "Last time: 3 files, b.avi at 46:15");
    EXPECT_EQ(world.player->State().volume, 40);
    Run("BringBack");
    EXPECT_EQ(Rows(), "/a.avi /b.avi /c.avi ");
    EXPECT_TRUE(world.player->Entries().IsThumbnailKept(2)) << "nobody would look for it";
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EXPECT_EQ(world.player->Entries().Order().Position(), 1);
    PlayTo(0);
    EXPECT_DOUBLE_EQ(trace.time, 46.25 * kMinute);
    EXPECT_EQ(LastTime(), "") << "it is there already";
    EXPECT_TRUE(world.window.offers.empty());
}

TEST_F(MemoryTest, a_film_left_in_its_middle_offers_that_place_and_a_seen_one_is_marked)
{
    StartWithEntries(2, kPlayContinuous, kNoRepeat);
    auto& list = world.player->Entries().List();
    PlayTo(30);
    EXPECT_DOUBLE_EQ(list.Item(0).Seen, 0.3);
    Run("Next");
    PlayTo(96);
    EXPECT_EQ(list.Item(1).Seen, 1);
    Run("Previous");
    PlayTo(0.1);
    EXPECT_EQ(world.window.offers, std::vector<std::string>{ "You were at 30:00: GoToLastPlace" });
    PlayTo(0.5);
    Kill();
    Add("/a.avi", true);
    PlayTo(0.1);
    EXPECT_EQ(world.window.offers.size(), 2U) << "half a minute from the beginning does not count yet";
    Run("GoToLastPlace");
    EXPECT_DOUBLE_EQ(trace.time, 30 * kMinute);
    EXPECT_NEAR(world.player->Entries().List().Item(0).Seen, 0.3, 0.01);
}

TEST_F(MemoryTest, what_is_not_to_be_remembered_is_not)
{
    StartWithEntries(1, kPlayContinuous, kNoRepeat);
    Add("/media/stick/s.avi", true);
    PlayTo(50);
    Add("/secret/x.avi", true);
    Run("NeverRemember");
    PlayTo(50);
    Kill();
    EXPECT_EQ(LastTime(), "Last time: 1 file");
    Add("/secret/x.avi", true);
    PlayTo(0);
    EXPECT_TRUE(world.window.offers.empty());
    Run("RemoveAll");
    Run("ForgetAll");
    Kill();
    EXPECT_EQ(LastTime(), "");
    Run("Remember");
    Add("/a.avi", true);
    PlayTo(50);
    Kill();
    EXPECT_EQ(LastTime(), "");
}

TEST_F(MemoryTest, a_damaged_file_costs_nothing_but_itself)
{
    StartWithEntries(2, kPlayContinuous, kNoRepeat);
    PlayTo(50);
    Run("Next"); // the place of the first one goes into the book
    PlayTo(20);
    world.Elapse(3s);
    world.Settle();
    const auto damage = [&](const char* name) {
        const auto path = (folder / name).string();
        const auto text = platform::ReadTextFile(path, 100'000).value_or("");
        ASSERT_FALSE(text.empty()) << name;
        std::ofstream(path) << text.substr(0, text.size() - 3);
    };
    damage("LastList.state");
    Kill();
    EXPECT_EQ(LastTime(), "");
    Add("/b.avi", true);
    PlayTo(0.1);
    EXPECT_EQ(world.window.offers.back(), "You were at 20:00: GoToLastPlace");
    world.player->Transporting().SetVolume(40);
    Kill();
    EXPECT_EQ(world.player->State().volume, 40);
    damage("Present.state");
    damage("Places.state");
    Kill();
    EXPECT_EQ(world.player->State().volume, 100);
    EXPECT_EQ(LastTime(), "Last time: 1 file");
}

TEST(StateTextTest, fields_hold_anything_and_half_a_text_holds_nothing)
{
    StateWriter writer("head 1");
    writer.Row("a").Field("tab\there\\n").Field("").Field("\r\n");
    writer.Row("b").Number(0.1).Number(-3);
    const auto text = writer.Take();
    const auto rows = ReadState(text, "head 1");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (std::vector<std::string>{ "a", "tab\there\\n", "", "\r\n" }));
    EXPECT_EQ(NumberAt(rows[1], 1), 0.1);
    EXPECT_EQ(NumberAt(rows[0], 1), 0);
    EXPECT_TRUE(ReadState(text, "head 2").empty());
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_TRUE(ReadState(text.substr(0, length), "head 1").empty()) << length;
}

TEST(PlaceBookTest, random_places_kills_and_restarts_end_as_a_model_says)
{
    std::mt19937 random(11);
    const auto draw = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    PlaceBook book;
    PlaceBook written;
    std::map<std::string, double> model, kept; // shares by path
    for (int step = 0; step < 10'000; ++step) {
        const auto path = "/films/" + std::to_string(draw(40)) + "\t\xFF.avi";
        const double length = (4 + draw(4)) * kMinute;
        const double time = draw(101) * length / 100;
        switch (draw(6)) {
        case 0:
            book.Forget(path);
            model.erase(path);
            break;
        case 1: // written
            written = PlaceBook::Parse(book.Format());
            kept = model;
            break;
        case 2: // killed
            book = PlaceBook::Parse(written.Format());
            model = kept;
            break;
        default:
            book.SetTime(path, time, length);
            if (length < PlaceBook::kShortest)
                break;
            const bool wasWatched = model.contains(path) && model[path] == 1;
            if (wasWatched || time >= 0.95 * length)
                model[path] = 1;
            else if (time >= 10'000)
                model[path] = time / length;
            else
                model.erase(path);
        }
        const auto known = model.find(path);
        ASSERT_DOUBLE_EQ(book.Find(path).Share(), known == model.end() ? 0 : known->second) << step;
    }
}

TEST(ListMemoryTest, a_list_comes_back_with_its_shuffled_order)
{
    std::mt19937 random(5);
    const auto draws = [&] { return std::uniform_real_distribution()(random); };
    for (int round = 0; round < 200; ++round) {
        Playlist playlist(draws);
        const int count = static_cast<int>(random() % 30);
        for (int i = 0; i < count; ++i)
            playlist.Append({ "t" + std::to_string(i), "/p\n" + std::to_string(i), {}, "info\r\n", 0,
                                { 1.5 * i, 2, 3, 4, 5, "artist", "album", "song", 6, 1987 } },
                "detail");
        playlist.BuildShuffleOrder();
        if (count > 0)
            playlist.List().SetSelectedItem(static_cast<int>(random()) % count);
        playlist.MovePositionToSelected();
        const auto all = [](const std::string&) { return true; };
        const auto list = ParseList(FormatList(Remembered(playlist, kPlayShuffle, all)));
        Playlist again(draws);
        Restore(list, again, kPlayShuffle);
        ASSERT_EQ(again.Count(), count);
        EXPECT_EQ(again.List().SelectedItem(), playlist.List().SelectedItem());
        EXPECT_EQ(again.Order().Position(), playlist.Order().Position());
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(again.PathAt(i), playlist.PathAt(i));
            EXPECT_EQ(again.Order().At(i), playlist.Order().At(i));
            EXPECT_EQ(again.FactsAt(i), playlist.FactsAt(i));
            EXPECT_EQ(again.List().Item(i).Detail, "detail");
        }
    }
}

} // namespace
} // namespace zentaro
