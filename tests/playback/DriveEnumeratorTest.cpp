#include "playback/DriveEnumerator.h"
#include "playback/DiscParts.h"

#include <gmock/gmock.h>

#include <map>

using namespace zentaro;
using platform::OpticalDrive;
using testing::ElementsAre;

namespace {

constexpr const char* kNoDrives = "<No DVD drives were found>";
const std::string kNoneOff = std::string(kNoDrives) + " off";

/// The items of the command menu and the classic entries. Each is its caption, with what it lacks.
class Items : public DvdMenus {
public:
    void SetCaption(const std::string& key, const std::string& caption) override { m_items[key].caption = caption; }
    void SetEnabled(const std::string& key, bool enabled) override { m_items[key].enabled = enabled; }
    void SetVisible(const std::string& key, bool visible) override { m_items[key].visible = visible; }

    int ClassicCount() const override { return static_cast<int>(classic.size()); }
    void SetFirstClassic(const std::string& caption, bool enabled) override
    {
        classic[0] = caption + (enabled ? "" : " off");
    }
    void LoadClassic(const std::string& caption) override { classic.push_back(caption); }
    void UnloadLastClassic() override { classic.pop_back(); }

    std::vector<std::string> Shown() const
    {
        std::vector<std::string> texts;
        for (const auto& [key, item] : m_items) {
            if (item.visible)
                texts.push_back(item.caption + (item.enabled ? "" : " off"));
        }
        return texts;
    }

    std::vector<std::string> classic{ kNoneOff };

private:
    struct Item {
        std::string caption;
        bool enabled = true;
        bool visible = false;
    };

    std::map<std::string, Item> m_items = { { "DVDList0", { kNoDrives, false, true } } };
};

class DriveEnumeratorTest : public testing::Test {
protected:
    Items items;
    DriveEnumerator drives{ items };
};

OpticalDrive Empty(const std::string& name)
{
    return { name, {}, false, {} };
}

OpticalDrive Video(const std::string& name, const std::string& label)
{
    return { name, label, true, label };
}

} // namespace

TEST_F(DriveEnumeratorTest, each_drive_is_listed_by_its_disc_in_both_menus)
{
    drives.mnuOpenDVD_Click({ Video("D:", "MOVIE"), Empty("E:"), Video("F:", "") });
    EXPECT_THAT(items.classic, ElementsAre("MOVIE (D:)", "<Please insert a DVD> (E:)", " (F:)"));
    EXPECT_EQ(items.Shown(), items.classic);
    EXPECT_EQ(drives.RootAt(0), "D:");
    EXPECT_EQ(drives.RootAt(1), "");
    EXPECT_TRUE(drives.CanStart(0) && drives.CanStart(2));
    EXPECT_FALSE(drives.CanStart(1) || drives.CanStart(3) || drives.CanStart(-1));
    EXPECT_EQ(drives.RootAt(3), "");
}

TEST_F(DriveEnumeratorTest, drives_that_go_leave_their_slots_behind_and_take_the_first_one_along)
{
    EXPECT_THAT(items.Shown(), ElementsAre(kNoneOff));
    drives.mnuOpenDVD_Click({ Video("D:", "ONE"), Video("E:", "TWO"), Empty("F:") });
    drives.mnuOpenDVD_Click({ Video("D:", "ONE") });
    EXPECT_THAT(items.classic, ElementsAre("ONE (D:)"));
    EXPECT_THAT(items.Shown(), ElementsAre("ONE (D:)", "TWO (E:)", "<Please insert a DVD> (F:)"));
    // From one drive to none the first slot stays in sight; from two it goes.
    drives.mnuOpenDVD_Click({});
    EXPECT_EQ(items.Shown()[0], kNoneOff);
    drives.mnuOpenDVD_Click({ Video("D:", "ONE"), Video("E:", "TWO") });
    drives.mnuOpenDVD_Click({});
    EXPECT_THAT(items.classic, ElementsAre(kNoneOff));
    EXPECT_THAT(items.Shown(), ElementsAre("TWO (E:)", "<Please insert a DVD> (F:)"));
    EXPECT_TRUE(drives.Labels().empty());
}

TEST_F(DriveEnumeratorTest, a_video_disc_is_looked_for_in_the_drive_that_its_label_names_first)
{
    const auto isFound = [&](const OpticalDrive& drive) {
        drives.mnuOpenDVD_Click({ drive });
        return drives.HasVideoDisc(0);
    };
    EXPECT_TRUE(isFound(Video("D:", "MOVIE")));
    EXPECT_TRUE(isFound(Video("/dev/sr10", "MOVIE")));
    EXPECT_FALSE(isFound({ "D:", "DATA", false, {} }));
    EXPECT_FALSE(isFound(Video("D:", "MOVIE (UK)")));
    EXPECT_FALSE(isFound(Video("/dev/sr0", "MOVIE (")));
    // Two characters are taken whatever follows them.
    EXPECT_TRUE(isFound(Video("D:", "MOVIE(D:1")));
    EXPECT_FALSE(isFound(Empty("D:")));
    drives.mnuOpenDVD_Click({ { "D:", "DATA (E:)", false, {} }, Video("E:", "MOVIE") });
    EXPECT_TRUE(drives.HasVideoDisc(0));
}

TEST(DiscWatcher, knows_a_disc_until_it_has_left_the_drive)
{
    DiscWatcher watcher;
    const auto first = Video("D:", "ONE");
    const auto second = Video("D:", "TWO");
    EXPECT_TRUE(watcher.IsNew(first));
    watcher.DiscStarted(first);
    watcher.DrivesFound({ Empty("C:"), first });
    EXPECT_FALSE(watcher.IsNew(first));
    EXPECT_TRUE(watcher.IsNew(second));
    EXPECT_TRUE(watcher.IsNew(Video("E:", "ONE")));
    watcher.DrivesFound({ Empty("D:") });
    EXPECT_TRUE(watcher.IsNew(first));
}

TEST(DiscParts, titles_are_listed_by_name_or_number)
{
    EXPECT_THAT(TitleCaptions({ { "DVD Menu" }, { "", 5'400'000 }, { "", 499 } }),
        ElementsAre("DVD Menu", "Title 1 (01:30:00)", "Title 2"));
}

TEST(DiscParts, chapters_are_told_and_stepped_through_by_their_starts)
{
    const std::vector<DiscPart> chapters{ { "Dawn" }, { "", 0, 60'000 }, { "Dusk", 0, 3'600'000 } };
    EXPECT_THAT(ChapterCaptions(chapters), ElementsAre("00:00:00  Dawn", "00:01:00  Chapter 1", "01:00:00  Dusk"));
    EXPECT_EQ(ChapterAt(chapters, 59'999), 0);
    EXPECT_EQ(ChapterAt(chapters, 60'000), 1);
    EXPECT_EQ(ChapterNear(chapters, 61'000, 1000), 1);
    EXPECT_EQ(ChapterNear(chapters, 61'001, 1000), -1);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 70'000, 1), 2);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 3'700'000, 1), std::nullopt);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 63'001, -1), 1);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 63'000, -1), 0);
    EXPECT_EQ(ChapterAfterStep(chapters, 0, 1000, -1), std::nullopt);

    const std::vector<DiscPart> untimed{ { "" }, { "" } };
    EXPECT_THAT(ChapterCaptions(untimed), ElementsAre("Chapter 1", "Chapter 2"));
    EXPECT_EQ(ChapterAt(untimed, 5), -1);
    EXPECT_EQ(ChapterNear(untimed, 0, 5), -1);
    EXPECT_EQ(ChapterAfterStep(untimed, 1, 99'000, -1), 0);
}
