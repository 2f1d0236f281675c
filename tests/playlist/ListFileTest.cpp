#include "playlist/ListFile.h"
#include "platform/Files.h"
#include "playlist/FoundFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace zentaro {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Paths(const ListedFiles& files)
{
    std::vector<std::string> paths;
    for (const auto& entry : files.entries)
        paths.push_back(entry.path);
    return paths;
}

TEST(ListFile, ReadsEveryFormat)
{
    const auto m3u = ParseListFile("\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:61,A: film, long\r\nfilms/a b.avi\r\n\r\n/c/d.mkv\r"
                                   "FILE://localhost/e%20%26.mp3\n  #note\nhttp://there/f.mp3\nfile://there/g.mp3\n",
        ListFormat::M3u, "/lists/", '/');
    EXPECT_EQ(Paths(m3u), (std::vector<std::string>{ "/lists/films/a b.avi", "/c/d.mkv", "/e &.mp3" }));
    EXPECT_EQ(m3u.entries[0], (ListedEntry{ "/lists/films/a b.avi", "A: film, long", 61 }));
    EXPECT_EQ(m3u.entries[1].title, "");
    EXPECT_EQ(m3u.unreadable, 2);

    const auto pls =
        ParseListFile("[playlist]\nFile10=j.avi\nTitle2=Second\nFILE2=b=c.avi\nLength2=5\nTitle3=no file\n",
            ListFormat::Pls, "/lists/", '/');
    EXPECT_EQ(Paths(pls), (std::vector<std::string>{ "/lists/b=c.avi", "/lists/j.avi" }));
    EXPECT_EQ(pls.entries[0].title, "Second");
    EXPECT_EQ(pls.entries[0].length, 5);

    const auto xspf = ParseListFile("<?xml version='1.0'?><!-- <track> --><x:playlist><title>all</title><trackList>"
                                    "<track><location>\n a%20b&amp;&#x63;.avi\n</location><location>second</location>"
                                    "<title><![CDATA[1 < 2]]></title><duration>61500</duration></track>"
                                    "<track/><track><title>empty</title></track></trackList>",
        ListFormat::Xspf, "/lists/", '/');
    EXPECT_EQ(xspf.entries, (std::vector<ListedEntry>{ { "/lists/a b&c.avi", "1 < 2", 61.5 } }));
    EXPECT_EQ(xspf.unreadable, 2);
}

TEST(ListFile, ReadsWithTheSeparatorOfWindows)
{
    const auto files =
        ParseListFile("D:\\a.avi\nsub/b.avi\nfile:///E:/c%20d.avi\n\\e.avi\n", ListFormat::M3u, "C:\\lists\\", '\\');
    EXPECT_EQ(
        Paths(files), (std::vector<std::string>{ "D:\\a.avi", "C:\\lists\\sub\\b.avi", "E:\\c d.avi", "\\e.avi" }));
    // What is no UTF-8 is written as an address.
    const std::vector<ListedEntry> entries{ { "C:\\lists\\\xFF.avi", "", 0 }, { "C:\\lists\\", "", 0 } };
    for (const auto format : { ListFormat::M3u, ListFormat::Xspf }) {
        const auto text = FormatListFile(entries, format, "C:\\lists\\", '\\');
        EXPECT_EQ(ParseListFile(text, format, "C:\\lists\\", '\\').entries, entries) << text;
    }
}

TEST(ListFile, GivesBackWhatItHasWritten)
{
    const std::vector<ListedEntry> entries{ { "/media/lists/a.avi", "A", 61 }, { "/media/films/b.avi", "B", 0 },
        { "/elsewhere/c.avi", "", 2 }, { "/media/lists/#d.avi", "#d", 0 }, { "/media/lists/ e.avi", "", 0 },
        { "/media/lists/http:f.avi", "", 0 }, { "/media/lists/g\nh.avi", "two\nlines", 0 },
        { "/media/lists/\xFF.avi", "", 0 }, { "/media/lists/100%25 & <i>.avi", "<&>", 0 } };
    std::vector<std::string> paths;
    for (const auto& entry : entries)
        paths.push_back(entry.path);
    for (const auto format : { ListFormat::M3u, ListFormat::Pls, ListFormat::Xspf }) {
        const auto text = FormatListFile(entries, format, "/media/lists/", '/');
        const auto read = ParseListFile(text, format, "/media/lists/", '/');
        EXPECT_EQ(Paths(read), paths) << text;
        EXPECT_EQ(read.entries[0], entries[0]);
    }
    EXPECT_EQ(FormatListFile({ entries[0], entries[1], entries[2] }, ListFormat::M3u, "/media/lists/", '/'),
        "#EXTM3U\n#EXTINF:61,A\na.avi\n#EXTINF:-1,B\n../films/b.avi\n#EXTINF:2,\n/elsewhere/c.avi\n");
}

TEST(ListFile, FindsWhatALostListStillNames)
{
    const auto folder = fs::temp_directory_path() / "zentaro-list-file";
    fs::remove_all(folder);
    fs::create_directories(folder / "sub");
    for (const auto* name : { "sub/a.avi", "z.avi", "note.txt", "own.m3u" })
        std::ofstream(folder / name) << "x";
    std::ofstream(folder / "list.m3u") << "sub\\a.avi\ngone.avi\nnote.txt\nown.m3u\nhttp://there/x.avi\n";
    const auto inFolder = [&](const char* name) { return (folder / fs::path(name).make_preferred()).string(); };
    const auto found = FindFiles({ inFolder("z.avi"), inFolder("list.m3u"), inFolder("a.SRT"), inFolder("note.txt") },
        platform::PathSeparator(), [] { return true; });
    EXPECT_EQ(found.media, (std::vector<std::string>{ inFolder("z.avi"), inFolder("sub/a.avi") }));
    EXPECT_EQ(found.subtitles, std::vector<std::string>{ inFolder("a.SRT") });
    EXPECT_EQ(MissingText(found), "4 of 5 entries could not be found");
    fs::remove_all(folder);
    EXPECT_EQ(ListedPathCandidates("/l/\xE9.avi", '/').back(), "/l/\xC3\xA9.avi") << "from the time before UTF-8";
}

} // namespace
} // namespace zentaro
