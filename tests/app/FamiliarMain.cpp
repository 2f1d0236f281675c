// All of the player's tests once more, for those who chose the ways of other players. What differs for them stands in
// this table, and nothing else may.
#include "tests/world/World.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

constexpr std::pair<const char*, const char*> kDiffer[] = {
    { "WaysTest.*", "is about the difference" },
    { "OwnFile.ChosenKeysAreKeptAndThoseOfDeliveryComeBack", "the file holds the choice, too" },
    { "MemoryTest.a_killed_player_offers_its_list_and_where_the_film_was", "GoesOnByItself" },
    { "MemoryTest.a_film_left_in_its_middle_offers_that_place_and_a_seen_one_is_marked", "GoesOnByItself" },
    { "MemoryTest.what_is_not_to_be_remembered_is_not", "GoesOnByItself" },
    { "MemoryTest.a_damaged_file_costs_nothing_but_itself", "GoesOnByItself" },
    { "PlayerTest.what_was_played_can_be_played_again_after_a_restart", "HistoryIsTidy: history is off" },
    { "PlayerTest.keys_seek_and_turn_the_volume_and_space_starts_what_is_not_loaded", "DoubleClickKeepsList" },
    { "PlayerTest.the_files_of_starts_play_in_fresh_engines_one_at_a_time", "SpeedStays: it is set for each item" },
    { "PlayerTest.senders_wait_neither_for_each_other_nor_for_a_box", "ListedPlaysInPlace: there is no box" },
    { "PlayerTest.a_new_play_mode_builds_a_new_order", "StepsShuffled" },
    { "PlayerTest.an_order_that_names_a_removed_entry_plays_nothing", "FollowsWhatPlays" },
    { "PlayerTest.the_after_play_action_runs_at_the_end_of_the_sequence_only_and_is_what_the_next_one_is_named_for",
        "AfterPlayAsNamed" },
    { "DiscsTest.a_disc_ends_by_the_engines_word_alone_and_nothing_follows", "EngineEndsItems, HistoryIsTidy" },
};

} // namespace

int main(int argc, char** argv)
{
    zentaro::World::startsFamiliar = true;
    std::string others = "-";
    for (const auto& [test, way] : kDiffer)
        others.append(test) += ':';
    GTEST_FLAG_SET(filter, others);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
