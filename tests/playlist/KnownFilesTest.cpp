#include "playlist/KnownFiles.h"
#include "playlist/RowPictures.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

namespace zentaro {
namespace {

struct MemoryStore : platform::CacheStore {
    std::optional<std::string> Read(const std::string& key) override
    {
        return values.contains(key) ? std::optional(values[key]) : std::nullopt;
    }
    bool Write(const std::string& key, const std::string& value) override
    {
        values[key] = value;
        return true;
    }
    std::map<std::string, std::string> values;
};

Inspection Film()
{
    Inspection film;
    film.ok = true;
    film.mediaInfo = "Stream information of a film";
    film.pictureFile = std::string("\xFF\xD8\0jpg", 6);
    film.notices = { { "odd", NoticeIcon::Information, "title" }, { "also odd" } };
    film.facts = { 61.5, 1280, 720, 5'000'000'000, 0, "Artist", "Album", "Song", 3, 1987 };
    return film;
}

TEST(KnownFiles, a_packed_inspection_comes_back_whole_or_not_at_all)
{
    const auto film = Film();
    const FileStamp stamp{ 5'000'000'000, -7 };
    const auto packed = PackInspection(stamp, film);
    const auto back = UnpackInspection(packed, stamp);
    ASSERT_TRUE(back);
    EXPECT_TRUE(back->ok);
    EXPECT_EQ(back->mediaInfo, film.mediaInfo);
    EXPECT_EQ(back->pictureFile, film.pictureFile);
    EXPECT_EQ(back->notices, film.notices);
    EXPECT_EQ(back->facts, film.facts);

    EXPECT_FALSE(UnpackInspection(packed, { stamp.size, stamp.changed + 1 }));
    EXPECT_FALSE(UnpackInspection(packed, { stamp.size + 1, stamp.changed }));
    EXPECT_FALSE(UnpackInspection(packed + "x", stamp));
    for (std::size_t length = 0; length < packed.size(); ++length)
        EXPECT_FALSE(UnpackInspection(packed.substr(0, length), stamp)) << length;
}

TEST(KnownFiles, a_file_is_known_until_it_changes)
{
    const platform::WorkingFolder folder;
    const auto path = folder / "film.mkv";
    std::ofstream(path) << "film";
    KnownFiles known([] { return std::make_unique<MemoryStore>(); });
    EXPECT_FALSE(known.Recall(path));
    EXPECT_TRUE(known.Remember(path, *StampOf(path), Film()));
    EXPECT_TRUE(known.Recall(path));
    const auto before = *StampOf(path);
    std::ofstream(path, std::ios::app) << "more";
    EXPECT_FALSE(known.Recall(path));
    // What was inspected is not what lies there now.
    EXPECT_FALSE(known.Remember(path, before, Film()));
    EXPECT_FALSE(StampOf(folder.Path()));

    KnownFiles nothing([] { return nullptr; });
    EXPECT_FALSE(nothing.Remember(path, *StampOf(path), Film()));
    EXPECT_FALSE(nothing.Recall(path));
}

class RowPicturesTest : public testing::Test {
protected:
    RowPicturesTest()
    {
        for (int i = 0; i < 3000; ++i)
            playlist.Append({ "film", "/v/" + std::to_string(i), {}, "", 0, {}, true });
        pictures.EntriesChanged();
    }
    /// The rows that were ordered, each of which is found.
    std::size_t FindOrdered()
    {
        const auto orders = std::move(ordered);
        ordered.clear();
        std::vector<FoundPicture> found;
        for (const auto& order : orders)
            found.push_back({ order.id, Picture(1, 1, { 0 }) });
        pictures.Found(std::move(found));
        return orders.size();
    }
    int Loaded() const
    {
        int loaded = 0;
        for (int i = 0; i < playlist.Count(); ++i)
            loaded += bool(playlist.List().Item(i).Pic);
        return loaded;
    }
    bool IsLoaded(int row) const { return bool(playlist.List().Item(row).Pic); }

    Playlist playlist{ [] { return 0.0; } };
    std::vector<PictureOrder> ordered;
    RowPictures pictures{ playlist,
        [this](std::vector<PictureOrder> orders) { ordered.insert(ordered.end(), orders.begin(), orders.end()); } };
};

TEST_F(RowPicturesTest, rows_in_sight_come_first_and_once)
{
    EXPECT_TRUE(ordered.empty());
    pictures.RowsInSight(100, 110);
    pictures.RowsInSight(100, 110);
    ASSERT_GE(ordered.size(), 11U);
    EXPECT_EQ(ordered[0].path, "/v/100");
    EXPECT_EQ(ordered[10].path, "/v/110");
    const auto count = ordered.size();
    EXPECT_EQ(FindOrdered(), count);
    pictures.RowsInSight(100, 110);
    EXPECT_TRUE(ordered.empty());
    EXPECT_TRUE(IsLoaded(100) && IsLoaded(110) && IsLoaded(112) && !IsLoaded(1000));
}

TEST_F(RowPicturesTest, what_is_far_away_goes_but_what_plays_stays)
{
    playlist.List().SetPlayingItem(5);
    for (int first = 0; first < 2900; first += 20) {
        pictures.RowsInSight(first, first + 13);
        FindOrdered();
        EXPECT_TRUE(IsLoaded(first) && IsLoaded(first + 13));
    }
    EXPECT_LT(Loaded(), 600);
    EXPECT_TRUE(IsLoaded(5));
    EXPECT_FALSE(IsLoaded(100));
    // One that cannot be had any more is not asked for again and again.
    pictures.RowsInSight(100, 100);
    ASSERT_FALSE(ordered.empty());
    pictures.Found({ { ordered.front().id, {} } });
    ordered.clear();
    pictures.RowsInSight(100, 100);
    EXPECT_TRUE(ordered.empty());
}

} // namespace
} // namespace zentaro
