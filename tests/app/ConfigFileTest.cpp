#include "app/ConfigFile.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <vector>

using namespace zentaro;

namespace {

PlayerSettings Defaults()
{
    return DefaultSettings("/home/eve/Desktop", { 1920 * 15, 1080 * 15 });
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// The default file with one line (counted from 1) replaced.
std::optional<PlayerSettings> WithLine(std::size_t number, const std::string& text)
{
    auto lines = Lines(FormatConfigurations(Defaults()));
    lines.at(number - 1) = text + "\r";
    std::string all;
    for (const auto& line : lines)
        all += line + "\n";
    return ParseConfigurations(all);
}

} // namespace

TEST(ConfigFile, defaults_fill_46_lines_in_print_form)
{
    const auto lines = Lines(FormatConfigurations(Defaults()));
    ASSERT_EQ(lines.size(), 46u);
    EXPECT_EQ(lines[0], "English\r");
    EXPECT_EQ(lines[1], "/home/eve/Desktop\r");
    EXPECT_EQ(lines[2], " 1 \r");
    EXPECT_EQ(lines[3], " 2 \r");
    EXPECT_EQ(lines[11], " 1 \r");
    EXPECT_EQ(lines[13], "C:\\\r");
    for (std::size_t i = 17; i < 41; ++i)
        EXPECT_EQ(lines[i], " 0 \r");
    EXPECT_EQ(lines[41], " 14206 \r"); // 28800 / 2 - 388 / 2
    EXPECT_EQ(lines[42], " 7842 \r");  // 16200 / 2 - 515 / 2 = 7842.5, to the even neighbour
    EXPECT_EQ(lines[43], " 388 \r");
    EXPECT_EQ(lines[45], " 0 \r");
}

TEST(ConfigFile, every_field_keeps_its_place_in_a_round_trip)
{
    PlayerSettings settings;
    int next = 0;
    VisitInFileOrder(settings, [&](auto& field) {
        ++next;
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>)
            field = "text " + std::to_string(next);
        else
            field = static_cast<std::decay_t<decltype(field)>>(next % 2 == 0 ? next : -1000 - next);
    });
    EXPECT_EQ(next, 46);
    EXPECT_EQ(ParseConfigurations(FormatConfigurations(settings)), settings);
}

TEST(ConfigFile, list_input_cuts_strings_at_commas_and_reads_quoted_ones_to_the_closing_quote)
{
    EXPECT_EQ(WithLine(14, "D:\\Snaps, old")->SnapshotPath, "D:\\Snaps");
    EXPECT_EQ(WithLine(14, "D:\\Snaps, old")->SnapshotPrefix, "IMG_");
    EXPECT_EQ(WithLine(14, "   D:\\My Snaps ")->SnapshotPath, "D:\\My Snaps ");
    EXPECT_EQ(WithLine(14, "\"D:\\Snaps, old\" rest")->SnapshotPath, "D:\\Snaps, old");
    EXPECT_EQ(WithLine(2, "   ")->DefaultFolder, "");
    // Without a closing quote the value takes all lines that follow.
    EXPECT_FALSE(WithLine(14, "\"D:\\Snaps"));
}

TEST(ConfigFile, numbers_end_at_a_blank_or_comma_and_round_half_to_even)
{
    EXPECT_EQ(WithLine(42, "-1200 ")->WindowLeft, -1200);
    EXPECT_EQ(WithLine(42, "  17, 5")->WindowLeft, 17);
    EXPECT_EQ(WithLine(42, "2.5")->WindowLeft, 2);
    EXPECT_EQ(WithLine(42, "+3.5")->WindowLeft, 4);
    EXPECT_EQ(WithLine(5, "-1")->AlwaysOnTop, -1);
}

TEST(ConfigFile, a_number_that_is_none_or_does_not_fit_spoils_the_whole_file)
{
    for (const auto* const text : { "", "abc", "12abc", "0x10", "nan", "inf", "1e400", "2147483648", "\"5\"", "--5" })
        EXPECT_FALSE(WithLine(42, text)) << text;
    EXPECT_TRUE(WithLine(5, "32767"));
    EXPECT_FALSE(WithLine(5, "32768"));
}

TEST(ConfigFile, a_short_file_is_damaged_and_any_line_end_counts)
{
    const auto text = FormatConfigurations(Defaults());
    std::size_t at = 0;
    for (int line = 0; line < 20; ++line)
        at = text.find('\n', at) + 1;
    EXPECT_FALSE(ParseConfigurations(text.substr(0, at)));
    EXPECT_FALSE(ParseConfigurations(""));
    EXPECT_FALSE(ParseConfigurations("  "));

    auto unix = text;
    std::erase(unix, '\r');
    EXPECT_EQ(ParseConfigurations(unix), Defaults());
    unix.pop_back();
    EXPECT_EQ(ParseConfigurations(unix + "\nmore lines\nare passed over"), Defaults());
    EXPECT_EQ(ParseConfigurations(unix), Defaults());
}
