#include "app/History.h"
#include "tests/platform/PrivateUser.h"

namespace zentaro {
namespace {

/// The history of one run of the player, on the store that all runs share.
struct Session {
    Session() { history.LoadHistory(); }

    void Play(int number) { history.AddToHistory("/" + std::to_string(number), "T" + std::to_string(number)); }
    /// What the menu offers, each with the path behind it; hidden slots are left out.
    std::string Shown() const
    {
        std::string shown;
        for (int slot = 0; slot < kHistorySlots; ++slot) {
            const auto& item = *menus.SmartMenuXP1.Find(HistoryKey(slot));
            const auto& twin = *menus.frmMenu.Find("mnuRecent", slot);
            EXPECT_TRUE(item.caption == twin.caption && item.visible == twin.visible && item.enabled == twin.enabled);
            EXPECT_EQ(history.PathAt(slot), twin.tag);
            if (item.visible)
                shown += item.caption + history.PathAt(slot) + (item.enabled ? " " : "- ");
        }
        return shown;
    }

    std::unique_ptr<platform::StringStore> store = platform::StringStore::Open();
    Menus menus;
    History history{ *store, menus, [](auto work) { work()(); } };
};

class RecentFiles : public platform::PrivateUser { };

TEST_F(RecentFiles, fill_up_in_playing_order_and_come_back_at_the_next_start)
{
    Session run;
    EXPECT_EQ(run.Shown(), "<No History>- ");
    EXPECT_EQ(run.history.CountHistory(), 0);
    for (const int number : { 0, 1, 2, 0, 1 })
        run.Play(number);
    run.history.AddToHistory("/CLIP", "up & up\nnext");
    run.history.AddToHistory("/clip", "low");
    const std::string shown = "T0/0 T1/1 T2/2 up & up\nnext/CLIP low/clip ";
    EXPECT_EQ(run.Shown(), shown);
    EXPECT_EQ(Session().Shown(), shown);
    EXPECT_EQ(run.history.CountHistory(), 5);
}

TEST_F(RecentFiles, shift_once_they_are_ten_and_the_store_keeps_the_newest_ten_times)
{
    Session run;
    for (int number = 0; number <= 9; ++number)
        run.Play(number);
    EXPECT_EQ(run.Shown(), "T0/0 T1/1 T2/2 T3/3 T4/4 T5/5 T6/6 T7/7 T8/8 T9/9 ");
    run.Play(10);
    EXPECT_EQ(run.Shown(), "T1/1 T2/2 T3/3 T4/4 T5/5 T6/6 T7/7 T8/8 T9/9 T10/10 ");
    EXPECT_FALSE(run.menus.SmartMenuXP1.Find("History9")->visible); // takes over a slot that was never filled
    run.Play(11);
    EXPECT_EQ(run.Shown(), "T2/2 T3/3 T4/4 T5/5 T6/6 T7/7 T8/8 T9/9 T10/10 T11/11 ");
    EXPECT_FALSE(run.menus.SmartMenuXP1.Find("History8")->visible);
    run.Play(5);
    EXPECT_EQ(run.history.PathAt(10), "/11");

    Session next;
    EXPECT_EQ(next.history.CountHistory(), 10); // of eleven values
    EXPECT_EQ(next.Shown(), "T0/0 T11/11 T11/11 T11/11 T11/11 T11/11 T11/11 T11/11 T11/11 T11/11 ");
    next.Play(12);
    EXPECT_EQ(next.history.PathAt(8), "/11");
    EXPECT_EQ(next.history.PathAt(10), "/12");
}

} // namespace
} // namespace zentaro
