#include "desktop/CommandLine.h"

#include <gtest/gtest.h>

namespace zentaro::desktop {
namespace {

TEST(CommandLine, the_programs_own_name_is_cut_off_quoted_or_not)
{
    EXPECT_EQ(TextAfterProgramName(R"(zentaro.exe  C:\a b.avi *Add)"), R"(C:\a b.avi *Add)");
    EXPECT_EQ(TextAfterProgramName(R"("C:\My Programs\zentaro.exe" "C:\My Clips\a.avi")"), R"("C:\My Clips\a.avi")");
    EXPECT_EQ(TextAfterProgramName(R"("C:\zentaro.exe")"), "");
    EXPECT_EQ(TextAfterProgramName(R"("C:\never closed)"), "");
    EXPECT_EQ(TextAfterProgramName("zentaro.exe "), "");
}

TEST(CommandLine, only_an_argument_that_is_one_whole_file_name_is_made_absolute)
{
    const auto absolute = [](const std::string& path) { return "/here/" + path; };
    EXPECT_EQ(JoinArguments({}, absolute), "");
    EXPECT_EQ(JoinArguments({ "my clip.avi" }, absolute), "/here/my clip.avi");
    EXPECT_EQ(JoinArguments({ "a.avi", "*Add" }, absolute), "/here/a.avi *Add");
    EXPECT_EQ(JoinArguments({ "a.avi", "b.avi" }, absolute), "a.avi b.avi");
    EXPECT_EQ(JoinArguments({ "a.avi", "b.avi", "*Add" }, absolute), "a.avi b.avi *Add");
}

} // namespace
} // namespace zentaro::desktop
