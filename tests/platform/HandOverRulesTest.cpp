#include "desktop/HandOverRules.h"

#include <gtest/gtest.h>

namespace zentaro::desktop {
namespace {

std::optional<std::string> ReadIn(const std::string& bytes, std::size_t pieceSize)
{
    HandOverFrameReader reader;
    for (std::size_t at = 0; at < bytes.size(); at += pieceSize)
        reader.Take(std::string_view(bytes).substr(at, pieceSize));
    return reader.Finish();
}

TEST(HandOverFrame, arrives_whole_in_pieces_of_any_size)
{
    const std::string text = "/clips/\xFF\"a\n b\".avi *Add";
    const auto frame = EncodeHandOverFrame(text);
    for (std::size_t size = 1; size <= frame.size(); ++size)
        EXPECT_EQ(ReadIn(frame, size), text) << size;
    EXPECT_EQ(ReadIn(EncodeHandOverFrame(""), 3), "");
}

TEST(HandOverFrame, is_refused_when_it_is_short_long_or_something_else)
{
    const auto frame = EncodeHandOverFrame("a.avi");
    for (std::size_t size = 0; size < frame.size(); ++size)
        EXPECT_EQ(ReadIn(frame.substr(0, size), 4), std::nullopt) << size;
    EXPECT_EQ(ReadIn(frame + "x", 4), std::nullopt);
    EXPECT_EQ(ReadIn(frame + "x", 100), std::nullopt);
    EXPECT_EQ(ReadIn("GET / HTTP/1.0\r\n\r\n", 100), std::nullopt);
}

TEST(HandOverFrame, is_refused_at_its_header_when_it_announces_too_much)
{
    HandOverFrameReader reader;
    EXPECT_FALSE(reader.Take(std::string_view("ZNT1\x01\x00\x00\x01", 8)));
    EXPECT_FALSE(reader.Take("and it stays so"));
    EXPECT_TRUE(HandOverFrameReader().Take(std::string_view("ZNT1\x00\x00\x00\x01", 8)));
}

TEST(HandOverHandle, is_a_plain_number_that_is_not_zero)
{
    EXPECT_EQ(ParseHandOverHandle("65566"), 65566U);
    EXPECT_EQ(ParseHandOverHandle("18446744073709551615"), 18446744073709551615U);
    for (const auto* text : { "", "-1", "0", "+5", " 5", "5 ", "5x", "../5", "18446744073709551616" })
        EXPECT_EQ(ParseHandOverHandle(text), std::nullopt) << text;
}

} // namespace
} // namespace zentaro::desktop
