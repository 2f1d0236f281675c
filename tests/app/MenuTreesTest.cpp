#include "app/Menus.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(CommandTree, changes_are_told_by_key_and_unknown_keys_change_nothing)
{
    CommandTree tree;
    std::string told;
    tree.onChange = [&](const CommandItem& item) { told += item.key + " "; };
    tree.SetEnabled("Stop", false);
    tree.SetEnabled("Stop", false);
    tree.CheckOnly(kPlayModeKeys, 2);
    tree.CheckOnly(kPlayModeKeys, 3);
    for (const auto* const unknown : { "", "stop", "DVDList", "History" })
        tree.SetCaption(unknown, "no");
    EXPECT_EQ(told, "Stop PMNormal PMShuffle ");
    EXPECT_FALSE(tree.Find("History0")->enabled || tree.Find("DVDList5")->visible);
    EXPECT_EQ(tree.Find("DVDList6"), nullptr);
}

TEST(ClassicTree, control_arrays_grow_and_shrink_in_their_place)
{
    ClassicTree tree;
    tree.Load("dvdsList", "FILM (E:)");
    EXPECT_EQ(tree.Find("dvdsList", 1)->caption, "FILM (E:)");
    EXPECT_EQ(tree.Find("dvdsList", 1)->parent, "mnuOpenDVD");
    EXPECT_TRUE(tree.Find("dvdsList", 1)->enabled);
    EXPECT_EQ(&tree.Items()[5], tree.Find("dvdsList", 1));
    tree.UnloadLast("dvdsList");
    tree.UnloadLast("dvdsList");
    EXPECT_EQ(tree.Count("dvdsList"), 1);
    EXPECT_EQ(tree.Find("mnuincspeed")->caption, "Increase Speed          Ctrl+Up");
}
