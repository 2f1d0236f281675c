#include "playlist/ListFind.h"
#include "playlist/RowMarks.h"

#include <gtest/gtest.h>

namespace zentaro {
namespace {

std::string Found(std::string_view text, std::string_view words)
{
    std::string found;
    for (const auto& part : FoundParts(text, words))
        found += "[" + std::string(text.substr(part.begin, part.end - part.begin)) + "]";
    return found;
}

TEST(ListFind, MarksWordsWhateverTheirCaseAndAccents)
{
    EXPECT_EQ(Found("Caf\xC3\xA9 \xC3\x89tude, cafe", "cafe ETU"), "[Caf\xC3\xA9][\xC3\x89tu][cafe]");
    EXPECT_EQ(Found("\xD0\x9C\xD0\xBE\xD1\x81\xD0\xBA\xD0\xB2\xD0\xB0", "\xD0\xBC\xD0\x9E"), "[\xD0\x9C\xD0\xBE]");
    EXPECT_EQ(Found("\xFF broken \xC3", "broken"), "[broken]");
    EXPECT_EQ(Found("anything", "  "), "");
}

TEST(ListFind, FindsByTitleAndFolderAndFollowsTheList)
{
    Playlist playlist([] { return 0.5; });
    const auto add = [&](const char* title, const char* path) { playlist.Append({ title, path, {}, {}, 0, {} }); };
    add("One.avi", "/series/One.avi");
    add("Two.avi", "/films/Two.avi");
    add("one more.avi", "/films/one more.avi");
    ListFind find(playlist);
    EXPECT_EQ(find.Rows("one"), (std::vector{ 0, 2 }));
    EXPECT_EQ(find.Rows("FILMS one"), (std::vector{ 2 }));
    EXPECT_EQ(find.Rows(""), (std::vector{ 0, 1, 2 }));
    playlist.Append({ "03.flac", "/music/03.flac", {}, {}, 0, { .artist = "Anna Åberg", .album = "Low Tide" } });
    EXPECT_EQ(find.Rows("tide aberg"), (std::vector{ 3 }));
    playlist.Arrange(ListEdit::Move, { 3, 2, 1, 0 }, kPlayNormal);
    EXPECT_EQ(find.Rows("series"), (std::vector{ 3 }));
}

TEST(RowMarks, AreSetByOneByRangeAndByKeys)
{
    FancyListItems items;
    for (int i = 0; i < 6; ++i)
        items.AddItem("row", {});
    RowMarks marks(items);
    const auto press = [&](int row, bool ctrl, bool shift) {
        marks.Press(row, ctrl, shift);
        items.Press(row);
    };
    press(1, false, false);
    EXPECT_FALSE(items.IsAnyMarked());
    press(3, true, false);
    EXPECT_EQ(items.MarkedRows(), (std::vector{ 1, 3 })) << "what was selected counts";
    press(5, false, true);
    EXPECT_EQ(items.MarkedRows(), (std::vector{ 3, 4, 5 }));
    press(4, true, false);
    EXPECT_EQ(items.MarkedRows(), (std::vector{ 3, 5 }));
    press(5, false, false);
    EXPECT_EQ(items.MarkedRows(), (std::vector{ 3, 5 })) << "they can be dragged";
    marks.Release(5, false, false);
    EXPECT_FALSE(items.IsAnyMarked());
    items.SetSelectedItem(4);
    marks.SelectionMoved(true);
    EXPECT_EQ(items.MarkedRows(), (std::vector{ 4, 5 }));
    marks.SelectionMoved(false);
    EXPECT_FALSE(items.IsAnyMarked());
    press(9, true, true);
    EXPECT_EQ(items.SelectedItem(), FancyListItems::kNone);
}

} // namespace
} // namespace zentaro
