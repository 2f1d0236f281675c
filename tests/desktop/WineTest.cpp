#include "app/ListMemory.h"
#include "desktop/WindowsRules.h"
#include "tests/desktop/PlayerDesk.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

/// The player ends with what the system holds for a process that runs, of which eight bits are seen here.
constexpr int kUsualEnd = 259 & 0xFF;
/// Wine's server kills what is not gone a second after it has ended itself.
constexpr int kSlowEnd = 128 + SIGKILL;

bool IsUsualEnd(std::optional<int> code)
{
    return code == kUsualEnd || code == kSlowEnd;
}

std::string Variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}
const std::string g_prefix = Variable("WINEPREFIX"); // each test clears the environment
const std::string g_engine = Variable("ZENTARO_LIBVLC_WINDOWS");

/// The Windows program in a folder of the test's own, with the libVLC for tests beside it.
class OnWine : public PlayerDesk {
protected:
    OnWine()
    {
        StoreSettings([](auto& settings) { settings.PlaylistPosition = 4; });
        for (const auto* const part : { "libvlc.dll", "libvlccore.dll", "plugins" }) {
            if (fs::exists(fs::path(g_engine) / part))
                fs::create_symlink(fs::path(g_engine) / part, InHome("program/") + part);
        }
    }
    void SetUp() override
    {
        if (g_prefix.empty() || g_engine.empty())
            GTEST_SKIP() << "WINEPREFIX and ZENTARO_LIBVLC_WINDOWS name no Wine and no libVLC for Windows";
        // Wine keeps to the display that its first program was started on, and its services go with that program.
        static const auto ended = Process({ "WINEPREFIX=" + g_prefix, "wineserver", "-k" }).WaitForEnd();
        static const auto session = Windows({ Helper("explorer.exe") });
        EXPECT_TRUE(
            ended && WaitUntil([] { return session.Output().find("here") != std::string::npos; }, 6 * kPatience));
        // A player that crashes is to end, not to wait with a box.
        static const auto noBox = Windows({ "reg", "add", "HKCU\\Software\\Wine\\WineDbg", "/v", "ShowCrashDialog",
                                              "/t", "REG_DWORD", "/d", "0", "/f" })
                                      .WaitForEnd(6 * kPatience);
        EXPECT_EQ(noBox, 0);
    }

    /// As Windows calls a file of this system.
    static std::string Named(std::string path)
    {
        std::replace(path.begin(), path.end(), '/', '\\');
        return "Z:" + path;
    }
    static std::string Clip(const std::string& name, const std::string& codecs, double seconds = 20)
    {
        static const platform::WorkingFolder folder;
        const auto path = folder / name;
        const auto length = std::to_string(seconds);
        if (fs::exists(path))
            return path;
        Process tool(Words("ffmpeg -v error -nostdin -f lavfi -i testsrc2=s=320x240:d=" + length
            + " -f lavfi -i sine=d=" + length + " " + codecs + " " + path));
        EXPECT_EQ(tool.WaitForEnd(4 * kPatience), 0);
        return path;
    }
    static std::string Film() { return Clip("film.mkv", "-c:v libtheora -c:a libvorbis"); }
    static Process Windows(std::vector<std::string> words, const std::string& folder = ".")
    {
        words.insert(
            words.begin(), { "WINEPREFIX=" + g_prefix, "WINEDEBUG=-all", "WINEDLLOVERRIDES=mscoree,mshtml=", "wine" });
        return Process(words, folder);
    }
    Process StartPlayer(const std::vector<std::string>& files) const
    {
        std::vector<std::string> words = { InHome("program/zentaro.exe") };
        std::transform(files.begin(), files.end(), std::back_inserter(words), &Named);
        return Windows(words);
    }
    ShownPlayer ShowPlayer(const std::vector<std::string>& files = {}) const
    {
        auto player = StartPlayer(files);
        // The first one waits until Wine itself has come up.
        WaitUntil([&] { return !player.IsRunning() || !Screen().WindowsOf(player.Id()).empty(); }, 6 * kPatience);
        return Show(std::move(player));
    }
    static std::string Registry(const std::string& key)
    {
        auto query = Windows({ "reg", "query", key, "/s" });
        query.WaitForEnd();
        return query.Output();
    }

    /// A box of a file comes when its tools are done, each of which brings up more of Wine.
    static std::optional<std::string> AnswerBox(const ShownPlayer& player)
    {
        WaitUntil([&] { return !player.Dialogs().empty(); }, 4 * kPatience);
        return player.AnswerDialog();
    }
    static Rect VideoOf(const ShownPlayer& player) { return player.OnScreen(player.Layout().Content()); }
    static bool IsMoving(const Rect& part)
    {
        const auto before = Screen().Grab(part);
        std::this_thread::sleep_for(300ms);
        return ShareThatDiffers(before, Screen().Grab(part)) > 0.01;
    }
    static bool Moves(const Rect& part, bool moves = true)
    {
        return WaitUntil([&] { return IsMoving(part) == moves && IsMoving(part) == moves; });
    }
    static void ClickIn(const Rect& part, double across = 0.5, int button = 1, int times = 1)
    {
        Screen().Click(part.left + static_cast<int>(part.width * across), part.top + part.height / 2, button, times);
    }
};

TEST_F(OnWine, plays_the_film_of_the_command_line_and_keeps_what_is_to_be_kept)
{
    const auto film = Clip("av1.mkv", "-c:v libsvtav1 -preset 12 -c:a libopus");
    auto player = ShowPlayer({ film });
    EXPECT_EQ(AnswerBox(player), "Zentaro"); // its ffmpeg knows no AV1: no thumbnail
    EXPECT_TRUE(Moves(VideoOf(player)));
    EXPECT_TRUE(player.WaitForTitle("av1.mkv"));
    EXPECT_TRUE(IsUsualEnd(player.Close()));
    const auto config = ReadWholeFile(ConfigPath());
    EXPECT_EQ(std::count(config.begin(), config.end(), '\n'), std::count(config.begin(), config.end(), '\r'));
    EXPECT_NE(Registry("HKCU\\Software\\Quorvane\\Zentaro").find("av1.mkv"), std::string::npos);
}

TEST_F(OnWine, every_control_does_its_work)
{
    StoreSettings([this](auto& settings) {
        settings.PlaylistPosition = 4;
        settings.SnapshotPath = Named(InHome("shots"));
    });
    auto player = ShowPlayer({ Film() });
    const auto video = VideoOf(player);
    ASSERT_TRUE(Moves(video));
    for (const auto& [button, moves] : std::initializer_list<std::pair<Button, bool>>{ { Button::Pause, false },
             { Button::Pause, true }, { Button::Stop, false }, { Button::Play, true }, { Button::PlayList, false },
             { Button::PlayList, true }, { Button::Next, true }, { Button::Previous, true } }) {
        player.Click(button);
        EXPECT_TRUE(Moves(video, moves)) << static_cast<int>(button);
    }
    // The first row, with its thumbnail; a double click plays it, and the list goes.
    player.Click(Button::PlayList);
    ASSERT_TRUE(Moves(video, false));
    EXPECT_TRUE(WaitUntil([&] {
        return MeanOf(Screen().Grab({ video.left + 8, video.top + 8, 64, 64 })).value() > 40;
    }));
    Screen().DoubleClick(video.left + 150, video.top + 40);
    EXPECT_TRUE(Moves(video));

    const auto track = player.OnScreen(player.Layout().SeekTrack());
    player.Click(Button::Pause);
    ASSERT_TRUE(Moves(video, false));
    ClickIn(track, 0.8);
    const Rect filled{ track.left + track.width * 6 / 10, track.top + track.height / 2 - 1, 10, 2 };
    EXPECT_TRUE(
        WaitUntil([&] { return MeanOf(Screen().Grab(filled)).red() > MeanOf(Screen().Grab(filled)).blue() + 60; }));
    for (const auto& part : { player.Layout().VolumeNumber(), player.Layout().ButtonRect(Button::SoundOn) }) {
        const auto before = SettledLook(player.OnScreen(part));
        if (part == player.Layout().VolumeNumber())
            Screen().Wheel(video.left + 50, video.top + 50, -3);
        else
            player.Click(Button::SoundOn);
        EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(player.OnScreen(part)) != before; }));
    }
    player.Click(Button::Snapshot);
    EXPECT_TRUE(WaitUntil([&] { return fs::exists(InHome("shots/film.mkv Images/IMG_00001.png")); }));

    const auto place = player.Place();
    ClickIn(video, 0.5, 1, 2);
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == Screen().Area(); }));
    Screen().Press("Escape");
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == place; }));
    player.Click(Button::Maximize);
    EXPECT_TRUE(WaitUntil([&] { return player.Place().width > place.width; }));
    player.Click(Button::Close);
    EXPECT_TRUE(IsUsualEnd(player.process.WaitForEnd()));
}

TEST_F(OnWine, the_list_lies_where_the_settings_say)
{
    for (const int dock : { 0, 1, 2, 3 }) {
        StoreSettings([&](auto& settings) { settings.PlaylistPosition = dock; });
        auto player = ShowPlayer({ Film() });
        const auto all = VideoOf(player);
        const bool isBeside = dock < 2;
        const Rect first{ all.left, all.top, isBeside ? all.width / 4 : all.width,
            isBeside ? all.height : all.height / 4 };
        const Rect last{ all.Right() - first.width, all.Bottom() - first.height, first.width, first.height };
        EXPECT_TRUE(Moves(dock % 2 == 0 ? last : first)) << dock;
        EXPECT_TRUE(Moves(dock % 2 == 0 ? first : last, false)) << dock;
        EXPECT_TRUE(IsUsualEnd(player.Close()));
    }
}

TEST_F(OnWine, options_are_chosen_by_keyboard_and_types_taken_and_given_back)
{
    constexpr std::size_t kAvi = 20;
    StoreSettings([&](auto& settings) { settings.Associations[kAvi] = 1; });
    const auto owner = [] { return Registry("HKCU\\Software\\Classes\\.avi"); };
    {
        auto player = ShowPlayer();
        EXPECT_TRUE(WaitUntil([&] { return owner().find("Zentaro.avi") != std::string::npos; }));
        EXPECT_NE(Registry("HKCU\\Software\\Classes\\Zentaro.avi").find("*Add"), std::string::npos);
        EXPECT_NE(Registry("HKCU\\Software\\RegisteredApplications").find("Capabilities"), std::string::npos);
        Screen().Activate(player.window);
        for (const auto* const keys : { "alt+t", "Return" }) {
            Screen().Press(keys);
            SettledLook(Screen().Area());
        }
        ASSERT_TRUE(player.WaitForDialogs(1));
        for (const auto* const keys : { "alt+t", "alt+c", "Return" }) {
            Screen().Press(keys);
            SettledLook(Screen().Area());
        }
        ASSERT_TRUE(player.WaitForDialogs(0));
        EXPECT_NE(StoredSettings().AlwaysOnTop, 0);
        EXPECT_TRUE(IsUsualEnd(player.Close()));
    }
    StoreSettings([](auto&) {});
    auto player = ShowPlayer();
    EXPECT_TRUE(WaitUntil([&] { return owner().find("Zentaro.avi") == std::string::npos; }));
    EXPECT_EQ(Registry("HKCU\\Software\\RegisteredApplications").find("Capabilities"), std::string::npos);
}

TEST_F(OnWine, later_starts_hand_their_files_over)
{
    auto player = ShowPlayer({ Film() });
    ASSERT_TRUE(player.WaitForTitle("film.mkv")) << player.process.Output();
    fs::create_directory(InHome("späte Filme"));
    const auto second = CopyOf(Film(), "späte Filme/zweiter.mkv");
    EXPECT_TRUE(IsUsualEnd(StartPlayer({ second }).WaitForEnd(4 * kPatience)));
    EXPECT_TRUE(player.WaitForTitle("zweiter.mkv"));
    player.process.Kill();
    // Nobody is there any more: of many starts one becomes the player, the others find it.
    std::vector<Process> starts;
    for (int i = 0; i < 20; ++i)
        starts.push_back(StartPlayer({ CopyOf(Film(), "späte Filme/" + std::to_string(i) + ".mkv") }));
    const auto running = [&] {
        return std::count_if(starts.begin(), starts.end(), [](auto& each) { return each.IsRunning(); });
    };
    EXPECT_TRUE(WaitUntil([&] { return running() == 1; }, 10 * kPatience));
    const auto last = std::find_if(starts.begin(), starts.end(), [](auto& each) { return each.IsRunning(); });
    ASSERT_NE(last, starts.end());
    auto heir = Show(std::move(*last));
    EXPECT_TRUE(heir.WaitForTitle("Filme"));
    EXPECT_TRUE(IsUsualEnd(heir.Close()));
}

TEST_F(OnWine, files_with_paths_of_all_kinds_are_handed_over_and_play)
{
    auto player = ShowPlayer();
    const std::string whole = "\\\\?\\"; // the system changes nothing of a path behind this
    std::string deep;
    for (int i = 0; i < 4; ++i)
        deep += std::string(80, static_cast<char>('a' + i)) + '/';
    CopyOf(Film(), "here/relative.mkv");
    // A share of another machine, as Wine has it.
    const std::string shares = g_prefix + "/dosdevices/unc/host/";
    fs::create_directories(shares);
    fs::remove(shares + "films");
    fs::create_directory_symlink(InHome("shared"), shares + "films");
    CopyOf(Film(), "shared/🎬 ä.mkv");
    const std::pair<std::string, std::string> files[] = {
        { "relative.mkv", "relative.mkv" },
        { Named(CopyOf(Film(), "🎬 films/späte 🎬.mkv")), "späte 🎬.mkv" },
        { whole + Named(CopyOf(Film(), "whole/plain.mkv")), "plain.mkv" },
        { Named(CopyOf(Film(), deep + "deep.mkv")), "deep.mkv" },
        { whole + Named(CopyOf(Film(), deep + "whole.mkv")), "whole.mkv" },
        { whole + Named(CopyOf(Film(), "dots. /in dots.mkv")), "in dots.mkv" },
        { "\\\\host\\films\\🎬 ä.mkv", "🎬 ä.mkv" },
        { whole + "UNC\\host\\films\\far.mkv", "far.mkv" },
    };
    CopyOf(Film(), "shared/far.mkv");
    for (const auto& [path, name] : files) {
        EXPECT_TRUE(
            IsUsualEnd(Windows({ InHome("program/zentaro.exe"), path }, InHome("here")).WaitForEnd(4 * kPatience)));
        EXPECT_TRUE(player.WaitForTitle(name)) << path;
        EXPECT_TRUE(Moves(VideoOf(player))) << path;
    }
    auto inspection = Windows({ InHome("program/zentaro-inspect.exe"), files[1].first });
    EXPECT_EQ(inspection.WaitForEnd(4 * kPatience), 0);
    EXPECT_NE(inspection.Output().find("Theora"), std::string::npos) << inspection.Output();
    EXPECT_TRUE(IsUsualEnd(player.Close()));
}

TEST_F(OnWine, a_selection_goes_to_one_player_in_natural_order)
{
    constexpr std::size_t kMkv = 3;
    StoreSettings([&](auto& settings) { settings.Associations[kMkv] = 1; });
    auto player = ShowPlayer();
    const std::string classes = "Software\\Classes\\CLSID\\";
    // Wine looks for classes of the machine alone.
    const auto select = [&](const char* name, std::vector<std::string> files) {
        const auto key = classes + name;
        EXPECT_TRUE(WaitUntil([&] { return Registry("HKCU\\" + key).find("zentaro-add.exe") != std::string::npos; }));
        Windows({ "reg", "copy", "HKCU\\" + key, "HKLM\\" + key, "/s", "/f" }).WaitForEnd();
        std::transform(files.begin(), files.end(), files.begin(), [](const auto& file) { return Named(file); });
        files.insert(files.begin(), { Helper("explorer.exe"), name });
        EXPECT_EQ(Windows(files).WaitForEnd(), 0);
    };
    std::vector<std::string> files;
    for (int i = 15; i > 0; --i)
        files.push_back(CopyOf(Film(), "part " + std::to_string(i) + ".mkv"));
    std::rotate(files.begin(), files.begin() + 4, files.end());
    select(desktop::kAddClass, files);
    select(desktop::kOpenClass, { CopyOf(Film(), "film 10.mkv"), CopyOf(Film(), "film 9.mkv") });
    ASSERT_TRUE(player.WaitForTitle("film 9.mkv")) << player.process.Output();
    EXPECT_TRUE(Moves(VideoOf(player)));
    std::vector<std::string> added;
    const auto areAllAdded = [&] {
        added.clear();
        for (const auto& entry : ParseList(ReadWholeFile(InHome("program/LastList.state"))).entries)
            added.push_back(entry.entry.Title);
        return added.size() == files.size() + 2;
    };
    EXPECT_TRUE(WaitUntil(areAllAdded, 4 * kPatience)); // each brings up the tools twice
    // The two that were opened came after the others, or before one of them that was still looked at.
    std::erase_if(added, [](const auto& title) { return title == "film 9.mkv" || title == "film 10.mkv"; });
    for (std::size_t i = 0; i < added.size(); ++i)
        EXPECT_EQ(added[i], "part " + std::to_string(i + 1) + ".mkv");
    EXPECT_TRUE(IsUsualEnd(player.Close())) << player.process.Output();
}

TEST_F(OnWine, closes_while_opening_and_after_a_failure_and_when_all_was_played)
{
    EXPECT_TRUE(IsUsualEnd(ShowPlayer({ Film() }).Close()));
    WriteWholeFile(InHome("no film.avi"), "nothing");
    {
        auto player = ShowPlayer({ InHome("no film.avi") });
        EXPECT_EQ(AnswerBox(player), "Zentaro");
        EXPECT_TRUE(IsUsualEnd(player.Close()));
    }
    StoreSettings([](auto& settings) {
        settings.PlaylistPosition = 4;
        settings.PlayMode = 0;
        settings.RepeatMode = 0;
    });
    auto player = ShowPlayer({ Clip("short.mkv", "-c:v libtheora -c:a libvorbis", 10) });
    EXPECT_TRUE(Moves(VideoOf(player)));
    Screen().Activate(player.window);
    const auto opensMenu = [&](const char* keys, std::size_t count) {
        Screen().Press(keys);
        return WaitUntil([&] { return Screen().MenusOf(player.process.Id()).size() == count; });
    };
    EXPECT_TRUE(opensMenu("alt+p", 1) && opensMenu("Up Right", 2));
    Screen().Press("Up Return"); // "Shutdown the Computer" ends the program alone
    EXPECT_TRUE(IsUsualEnd(player.process.WaitForEnd()));
}

TEST_F(OnWine, takes_drops_and_shows_its_menu_at_the_tray_icon)
{
    StoreSettings([](auto& settings) {
        settings.PlaylistPosition = 4;
        settings.ShowInTray = 1;
    });
    auto player = ShowPlayer();
    ClickIn(VideoOf(player));
    player.Click(Button::PlayList);
    const auto video = VideoOf(player);
    EXPECT_TRUE(Screen().DropFiles(video.left + 100, video.top + 100, { Film() }));
    EXPECT_TRUE(player.WaitForTitle("film.mkv"));
    const auto icon = Screen().TakeTrayIcon();
    ASSERT_GT(Screen().Place(icon).width, 0);
    // Wine moves the icon about at first, and a click beside it goes nowhere.
    EXPECT_TRUE(WaitUntil([&] {
        ClickIn(Screen().Place(icon), 0.5, 3);
        return WaitUntil([&] { return Screen().MenusOf(player.process.Id()).size() == 1; }, 5s);
    }));
}

TEST_F(OnWine, says_what_is_missing)
{
    fs::remove(InHome("program/libvlc.dll"));
    fs::remove(InHome("program/ffmpeg.exe"));
    fs::remove(InHome("program/images"));
    auto player = ShowPlayer();
    ASSERT_TRUE(player.WaitForDialogs(1));
    EXPECT_TRUE(AnswerBox(player));
    EXPECT_TRUE(IsUsualEnd(StartPlayer({ Film() }).WaitForEnd()));
    EXPECT_TRUE(AnswerBox(player));
    EXPECT_TRUE(IsUsualEnd(player.Close()));
}

} // namespace
} // namespace zentaro::trial
