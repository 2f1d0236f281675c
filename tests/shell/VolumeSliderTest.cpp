#include "shell/VolumeSlider.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(VolumeSlider, a_press_sets_the_volume_and_the_knob_except_in_the_dead_zones)
{
    VolumeSlider slider;
    EXPECT_FALSE(slider.PointerOnSlider(3));
    slider.SetScaleWidth(80);
    EXPECT_EQ(slider.Volume(), 100);
    EXPECT_EQ(slider.KnobLeft(), 70);
    EXPECT_EQ(slider.PointerOnSlider(3), 0);
    EXPECT_EQ(slider.KnobLeft(), 0);
    EXPECT_EQ(slider.PointerOnSlider(73), 100);
    EXPECT_EQ(slider.PointerOnSlider(4), 1); // 1.43, cut off
    EXPECT_EQ(slider.PointerOnSlider(38), 50);
    for (const double dead : { -30.0, 2.0, 74.0, 200.0 })
        EXPECT_FALSE(slider.PointerOnSlider(dead)) << dead;
    EXPECT_EQ(slider.Volume(), 50);
    EXPECT_EQ(slider.KnobLeft(), 35);
}

TEST(VolumeSlider, the_knob_stands_where_a_press_gives_the_same_volume)
{
    for (const double width : { 110.0, 137.0, 310.0 }) {
        for (int percent = 0; percent <= 100; ++percent) {
            VolumeSlider slider;
            slider.SetScaleWidth(width);
            slider.SetVolume(percent);
            const double knob = slider.KnobLeft();
            EXPECT_EQ(slider.PointerOnSlider(knob + 3), percent);
            EXPECT_EQ(slider.KnobLeft(), knob);
        }
    }
}
