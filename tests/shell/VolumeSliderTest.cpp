#include "shell/VolumeSlider.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

VolumeSlider SliderOf(double scaleWidth)
{
    VolumeSlider slider;
    slider.SetScaleWidth(scaleWidth);
    return slider;
}

} // namespace

TEST(VolumeSlider, starts_full_with_the_knob_at_the_right)
{
    const auto slider = SliderOf(80);
    EXPECT_EQ(slider.Volume(), 100);
    EXPECT_EQ(slider.KnobLeft(), 70);
}

TEST(VolumeSlider, a_press_sets_the_volume_and_the_knob_except_in_the_dead_zones)
{
    auto slider = SliderOf(80);
    EXPECT_EQ(slider.PointerOnSlider(3), 0);
    EXPECT_EQ(slider.KnobLeft(), 0);
    EXPECT_EQ(slider.PointerOnSlider(4), 1); // 1.43, cut off
    EXPECT_EQ(slider.PointerOnSlider(38), 50);
    for (const double dead : { -30.0, 2.0, 74.0, 200.0 })
        EXPECT_FALSE(slider.PointerOnSlider(dead)) << dead;
    EXPECT_EQ(slider.Volume(), 50);
    EXPECT_EQ(slider.KnobLeft(), 35);
    EXPECT_EQ(slider.PointerOnSlider(73), 100);
    EXPECT_FALSE(SliderOf(10).PointerOnSlider(3));
}

TEST(VolumeSlider, every_pixel_of_a_slider_of_a_hundred_is_its_own_percent)
{
    auto slider = SliderOf(110);
    for (int percent = 0; percent <= 100; ++percent)
        EXPECT_EQ(slider.PointerOnSlider(3 + percent), percent);
}

TEST(VolumeSlider, the_knob_stands_where_a_press_gives_the_same_volume)
{
    for (const double width : { 110.0, 137.0, 310.0 }) {
        for (int percent = 0; percent <= 100; ++percent) {
            auto slider = SliderOf(width);
            slider.SetVolume(percent);
            const double knob = slider.KnobLeft();
            EXPECT_EQ(slider.PointerOnSlider(knob + 3), percent);
            EXPECT_EQ(slider.KnobLeft(), knob);
        }
    }
}
