#include "inspect/PictureSense.h"

#include <gtest/gtest.h>

#include <functional>

namespace zentaro {
namespace {

/// 64 x 48 px of grey, as bright as `level` says of each place.
Picture Grey(const std::function<int(int x, int y)>& level)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x)
            pixels.push_back(0xFF000000U | static_cast<std::uint32_t>(level(x, y)) * 0x010101U);
    }
    return { 64, 48, std::move(pixels) };
}

TEST(PictureSense, NothingIsSaidByOneColourAFadeOrBlackWithALittleLight)
{
    for (const int level : { 0, 16, 90, 255 })
        EXPECT_FALSE(SaysSomething(Grey([&](int, int) { return level; }))) << level;
    EXPECT_FALSE(SaysSomething(Grey([](int x, int) { return x / 2; }))) << "a dark fade";
    EXPECT_FALSE(SaysSomething(Grey([](int x, int) { return 235 + x / 4; }))) << "a white one";
    EXPECT_FALSE(SaysSomething(Grey([](int x, int y) { return x < 8 && y < 8 ? 255 : 0; }))) << "a logo on black";
    EXPECT_FALSE(SaysSomething({}));
    EXPECT_TRUE(SaysSomething(Grey([](int x, int) { return x < 6 ? 200 : 20; }))) << "a face in the night";
    EXPECT_TRUE(SaysSomething(Grey([](int x, int y) { return (x * 3 + y) & 0xFF; })));
}

} // namespace
} // namespace zentaro
