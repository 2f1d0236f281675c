#include "playlist/OpenFiles.h"

#include <gtest/gtest.h>

namespace zentaro {
namespace {

using namespace std::string_view_literals;
using Files = std::vector<OpenedFile>;

TEST(OpenFilesTest, TheFilterOffersAllFormatsAndThenEachAlone)
{
    const auto filter = OpenDialogFilter();
    EXPECT_TRUE(filter.starts_with("All Supported Formats|*.wav;*.flv;*.mka;"));
    EXPECT_NE(filter.find(";*.wmv;*.asf|WAV|*.wav|FLV|*.flv|"), std::string::npos);
    EXPECT_TRUE(filter.ends_with("|ASF|*.asf"));
}

TEST(OpenFilesTest, AnAnswerIsOnePathOrAFolderFollowedByItsNames)
{
    EXPECT_EQ(*ParseOpenFileResult("C:\\Video\\a.avi", '\\'), (Files{ { "Video\\a.avi", "C:\\Video\\a.avi" } }));
    EXPECT_EQ(*ParseOpenFileResult("a.avi", '/'), (Files{ { "a.avi", "a.avi" } }));
    const Files expected{ { "b.avi", "/v/b.avi" }, { "a\\.avi", "/v/a\\.avi" } };
    EXPECT_EQ(*ParseOpenFileResult("/v\0b.avi\0a\\.avi"sv, '/'), expected);
    EXPECT_EQ(*ParseOpenFileResult("/v/\0b.avi\0a\\.avi"sv, '/'), expected);
    EXPECT_EQ(*ParseOpenFileResult("/v\0"sv, '/'), (Files{ { "", "/v/" } }));
    EXPECT_FALSE(ParseOpenFileResult("/v\0a.avi\0b.avi\0a.avi"sv, '/')) << "a name that comes twice";
}

TEST(OpenFilesTest, PathsOfADialogBecomeOneAnswerForEachFolder)
{
    EXPECT_EQ(OpenFileResults({ "/v/a.avi", "/w/a.avi", "/v/b.avi", "/v/c.avi", "/d.avi" }, '/'),
        (std::vector{ std::string("/v/\0a.avi\0b.avi\0c.avi"sv), std::string("/w/a.avi"), std::string("/d.avi") }));
}

} // namespace
} // namespace zentaro
