#include "app/StartUp.h"

#include <gtest/gtest.h>

using namespace zentaro;

TEST(CommandLine, quotes_go_unless_they_belong_to_a_name_and_the_add_word_is_cut_but_handed_over)
{
    /// The file | what is handed over, and whether the file is to play.
    const auto read = [](const std::string& commandLine, const std::string& existing = {}) {
        const auto request = ReadCommandLine(commandLine, [&](const std::string& path) { return path == existing; });
        return request.StartupArgument + "|" + request.handOverText + (request.ReplaceOnOpen ? "" : "|adds");
    };
    EXPECT_EQ(read("\"C:\\My Clips\\a.avi\""), "C:\\My Clips\\a.avi|C:\\My Clips\\a.avi");
    EXPECT_EQ(read("C:\\a.avi C:\\b.avi"), "C:\\a.avi C:\\b.avi|C:\\a.avi C:\\b.avi");
    EXPECT_EQ(read(""), "|");
    EXPECT_EQ(read("\"C:\\Clips\\a.avi\" \"*Add\""), "C:\\Clips\\a.avi|C:\\Clips\\a.avi *Add|adds");
    EXPECT_EQ(read("*Add"), "|*Add|adds");
    const std::string name = "/clips/she said \"go\".mp4";
    EXPECT_EQ(read(name + " *Add", name), name + "|" + name + " *Add|adds");
    EXPECT_EQ(read(name), "/clips/she said go.mp4|/clips/she said go.mp4");
}
