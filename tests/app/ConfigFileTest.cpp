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
    std::string zeros;
    for (int line = 0; line < 24; ++line)
        zeros += " 0 \r\n";
    const auto text = FormatConfigurations(Defaults());
    EXPECT_TRUE(text.starts_with("English\r\n/home/eve/Desktop\r\n 1 \r\n 2 \r\n"));
    // The window's place is rounded: 16200 / 2 - 515 / 2 = 7842.5 goes to the even neighbour.
    EXPECT_TRUE(text.ends_with(zeros + " 14206 \r\n 7842 \r\n 388 \r\n 515 \r\n 0 \r\n")) << text;
    EXPECT_EQ(Lines(text).size(), 46u);
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

TEST(ConfigFile, a_text_ends_at_a_comma_or_its_quote_and_a_number_that_is_none_spoils_the_file)
{
    for (const auto& [text, read] : { std::pair("D:\\Snaps, old", "D:\\Snaps"), { "   D:\\My Snaps ", "D:\\My Snaps " },
             { "\"D:\\Snaps, old\" rest", "D:\\Snaps, old" }, { "   ", "" } })
        EXPECT_EQ(WithLine(14, text)->SnapshotPath, read);
    EXPECT_EQ(WithLine(14, "D:\\Snaps, old")->SnapshotPrefix, "IMG_");
    EXPECT_FALSE(WithLine(14, "\"D:\\Snaps")); // without a closing quote the value takes all lines that follow
    for (const auto& [text, read] : { std::pair("-1200 ", -1200), { "  17, 5", 17 }, { "2.5", 2 }, { "+3.5", 4 } })
        EXPECT_EQ(WithLine(42, text)->WindowLeft, read);
    for (const auto* const text : { "", "abc", "12abc", "0x10", "nan", "inf", "1e400", "2147483648", "\"5\"", "--5" })
        EXPECT_FALSE(WithLine(42, text)) << text;
    EXPECT_TRUE(WithLine(5, "32767"));
    EXPECT_FALSE(WithLine(5, "32768"));
}

TEST(ConfigFile, a_short_file_is_damaged_and_any_line_end_counts)
{
    const auto text = FormatConfigurations(Defaults());
    EXPECT_FALSE(ParseConfigurations(text.substr(0, text.find("C:\\"))));
    EXPECT_FALSE(ParseConfigurations("") || ParseConfigurations("  "));
    auto unix = text;
    std::erase(unix, '\r');
    EXPECT_EQ(ParseConfigurations(unix), Defaults());
    unix.pop_back();
    EXPECT_EQ(ParseConfigurations(unix + "\nmore lines\nare passed over"), Defaults());
    EXPECT_EQ(ParseConfigurations(unix), Defaults());
}
