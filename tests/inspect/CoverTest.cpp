#include "inspect/CoverPicture.h"
#include "inspect/CoverTone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace zentaro {
namespace {

Picture Painted(const std::function<std::uint32_t(int x, int y)>& colour)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x)
            pixels.push_back(0xFF000000U | colour(x, y));
    }
    return { 40, 40, std::move(pixels) };
}

double LightOf(std::uint32_t colour)
{
    const auto part = [&](int shift) {
        const double share = static_cast<double>(colour >> shift & 0xFF) / 255;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

double Contrast(std::uint32_t a, std::uint32_t b)
{
    const double light = std::max(LightOf(a), LightOf(b));
    const double dark = std::min(LightOf(a), LightOf(b));
    return (light + 0.05) / (dark + 0.05);
}

TEST(CoverTone, LettersAndBarsAreSeenOnEveryColour)
{
    for (std::uint32_t colour = 0; colour < 0x1000000; colour += 0x0B0D11) {
        const auto tone = ToneOf(Painted([&](int x, int) { return x < 25 ? colour : 0xFFFFFF; }));
        EXPECT_GE(Contrast(tone.glow, 0xC8CCD2), 4.5) << std::hex << colour;
        EXPECT_GE(Contrast(tone.glow, tone.bright), 3) << std::hex << colour;
        EXPECT_LE(LightOf(tone.deep), LightOf(tone.glow)) << std::hex << colour;
    }
}

TEST(CoverTone, TheColourThatRulesIsTakenAndNoneFromGrey)
{
    const auto hueIsRed = [](std::uint32_t colour) {
        return (colour >> 16) > (colour >> 8 & 0xFF) + 20 && (colour >> 16) > (colour & 0xFF) + 20;
    };
    EXPECT_TRUE(hueIsRed(ToneOf(Painted([](int x, int) { return x < 30 ? 0xC02020U : 0x2020C0U; })).glow));
    EXPECT_TRUE(hueIsRed(ToneOf(Painted([](int x, int y) {
        return x < 8 && y < 20 ? 0xFF3018U : 0x101010U; // a lip on black
    })).bright));
    // Both ends of the circle are red.
    EXPECT_TRUE(hueIsRed(ToneOf(Painted([](int x, int) { return x % 2 == 0 ? 0xC02028U : 0xC02820U; })).bright));
    EXPECT_EQ(ToneOf(Painted([](int x, int) { return static_cast<std::uint32_t>(x) * 0x060606U; })), CoverTone());
    EXPECT_EQ(ToneOf({}), CoverTone());
}

TEST(Cover, TheFileBesideSongsIsFoundByItsNameInAnyCase)
{
    EXPECT_EQ(CoverAmong({ "a.mp3", "Folder.JPG", "front.png", "COVER.jpeg", "cover.txt" }), "COVER.jpeg");
    EXPECT_EQ(CoverAmong({ "front.png", "Folder.jpg" }), "Folder.jpg");
    EXPECT_EQ(CoverAmong({ "my cover.jpg", "cover.jpg.part", "covers.jpg", "cover", "recover.png" }), "");
    EXPECT_EQ(CoverAmong({}), "");
}

} // namespace
} // namespace zentaro
