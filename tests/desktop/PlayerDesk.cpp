#include "tests/desktop/PlayerDesk.h"

#include "app/ConfigFile.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace zentaro::desktop {

namespace {

namespace fs = std::filesystem;

// Of 255: a black frame with a thin line of something is still black.
constexpr double kDark = 12;
constexpr double kMovingShare = 0.01;
// The X server gives each client the window numbers of one block.
constexpr int kClientShift = 21;
// A window that is painted anew changes once or twice; what plays goes on.
constexpr int kMovements = 4;

/// The tests' own; the environment names the player's from the first test on.
const fs::path& TemporaryFolder()
{
    static const fs::path folder = fs::temp_directory_path();
    return folder;
}

std::string MakeFolder(const char* name)
{
    auto path = (TemporaryFolder() / name).string() + "-XXXXXX";
    if (mkdtemp(path.data()) == nullptr)
        throw std::runtime_error("no folder for the test");
    return path;
}

/// The player stands beside this program's folder.
const fs::path& BuiltProgramFolder()
{
    static const fs::path folder = fs::canonical(fs::read_symlink("/proc/self/exe").parent_path() / "../bin");
    return folder;
}

/// A program finds its folder by its own resolved path, so programs are copied; what lies beside them is linked.
void CopyProgramFolder(const fs::path& folder)
{
    for (const auto& entry : fs::directory_iterator(BuiltProgramFolder())) {
        const auto name = entry.path().filename();
        if (name == "Config.cfg" || name == "zentaro.package")
            continue;
        const bool isProgram = entry.is_regular_file() && access(entry.path().c_str(), X_OK) == 0;
        if (isProgram && !name.string().starts_with("zentaro-fuzz"))
            fs::copy_file(entry.path(), folder / name);
        else if (!isProgram)
            fs::create_symlink(entry.path(), folder / name);
    }
}

/// Nothing of whoever runs the tests reaches the player.
void EnterOwnWorld(const std::string& home)
{
    const char* const path = std::getenv("PATH");
    const std::string keptPath = path != nullptr ? path : "/usr/bin:/bin";
    const std::map<std::string, std::string> world = { { "PATH", keptPath }, { "LC_ALL", "C.UTF-8" }, { "HOME", home },
        { "TMPDIR", home + "/tmp" }, { "XDG_RUNTIME_DIR", home + "/run" }, { "XDG_CONFIG_HOME", home + "/config" },
        { "XDG_DATA_HOME", home + "/data" }, { "XDG_CACHE_HOME", home + "/cache" },
        // No test may reach the machine's login manager.
        { "DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + home + "/no-bus" },
        // What the system's libraries leak is not ours to find; what is freed must not look like a growing player.
        { "ASAN_OPTIONS", "detect_leaks=0:quarantine_size_mb=4" }, { "UBSAN_OPTIONS", "print_stacktrace=1" } };
    clearenv();
    for (const auto& [name, value] : world) {
        setenv(name.c_str(), value.c_str(), 1);
        if (value.starts_with(home))
            fs::create_directories(value);
    }
    fs::permissions(home + "/run", fs::perms::owner_all);
}

/// Keeps what was on the screen when something first failed in a test.
class ScreenshotOnFailure : public testing::EmptyTestEventListener {
public:
    explicit ScreenshotOnFailure(Desktop& screen)
        : m_screen(screen)
    {
    }

private:
    void OnTestStart(const testing::TestInfo& test) override { m_test = test.name(); }
    void OnTestPartResult(const testing::TestPartResult& result) override
    {
        if (!result.failed() || m_test.empty())
            return;
        const auto path = (TemporaryFolder() / ("failed-" + std::exchange(m_test, {}) + ".png")).string();
        m_screen.Grab(m_screen.Area()).SavePng(path);
        std::cout << "What was on the screen: " << path << '\n';
    }

    Desktop& m_screen;
    std::string m_test; // empty when its picture is taken
};

} // namespace

ShownPlayer::ShownPlayer(Desktop& desktop, Process shown, Window mainWindow)
    : process(std::move(shown))
    , window(mainWindow)
    , m_desktop(&desktop)
{
}

bool ShownPlayer::WaitForTitle(const std::string& part) const
{
    return WaitUntil([&] { return Title().find(part) != std::string::npos; });
}

WindowLayout ShownPlayer::Layout() const
{
    const auto place = Place();
    return { place.width, place.height };
}

Rect ShownPlayer::Video() const
{
    // The engine puts a window of its own connection into the player's; without a picture the logo covers that one.
    const auto isEngines = [this](Window inner) { return inner >> kClientShift != window >> kClientShift; };
    std::vector<Window> waiting = { window };
    while (!waiting.empty()) {
        const auto outer = waiting.back();
        waiting.pop_back();
        const auto children = m_desktop->ShownChildren(outer);
        if (std::any_of(children.begin(), children.end(), isEngines))
            return m_desktop->Place(outer);
        for (std::size_t i = 1; i < children.size(); ++i) {
            if (m_desktop->Place(children[i]) == m_desktop->Place(children[i - 1]))
                return m_desktop->Place(children[i]);
        }
        waiting.insert(waiting.end(), children.begin(), children.end());
    }
    return {};
}

Rect ShownPlayer::OnScreen(const Rect& inWindow) const
{
    const auto place = Place();
    return { place.left + inWindow.left, place.top + inWindow.top, inWindow.width, inWindow.height };
}

std::vector<Window> ShownPlayer::Dialogs() const
{
    auto windows = m_desktop->WindowsOf(process.Id());
    std::erase_if(windows, [this](Window each) { return !m_desktop->IsDialog(each); });
    return windows;
}

std::optional<std::string> ShownPlayer::AnswerDialog() const
{
    if (!WaitUntil([this] { return !Dialogs().empty(); }))
        return std::nullopt;
    const auto dialog = Dialogs().back();
    const auto title = m_desktop->Title(dialog);
    m_desktop->Activate(dialog);
    m_desktop->Press(kReturn);
    const auto isGone = [&] {
        const auto left = Dialogs();
        return std::find(left.begin(), left.end(), dialog) == left.end();
    };
    return WaitUntil(isGone) ? std::optional(title) : std::nullopt;
}

bool ShownPlayer::PictureMoves() const
{
    Picture before;
    int movements = 0;
    return WaitUntil([&] {
        auto now = m_desktop->Grab(Video());
        if (now.Mean().Brightest() < kDark || now.pixels.size() != before.pixels.size())
            movements = 0;
        else if (ShareThatDiffers(before, now) > kMovingShare)
            ++movements;
        else
            return false;
        before = std::move(now);
        return movements == kMovements;
    });
}

bool ShownPlayer::ShowsAudioLogo() const
{
    return WaitUntil([&] {
        const auto place = Video();
        const auto seen = m_desktop->Grab(place);
        if (seen.pixels.empty())
            return false;
        const auto logo = Picture::FromFile((BuiltProgramFolder() / "Audio.JPG").string(), place.width, place.height);
        return ShareThatDiffers(seen.Blocks(8), logo.Blocks(8)) < 0.05;
    });
}

bool ShownPlayer::ClockRuns() const
{
    for (int change = 0; change < 2; ++change) {
        const auto label = OnScreen(Layout().TimeLabel());
        const auto before = m_desktop->Grab(label);
        if (!WaitUntil([&] { return ShareThatDiffers(before, m_desktop->Grab(label)) > 0; }))
            return false;
    }
    return true;
}

std::optional<int> ShownPlayer::Close()
{
    m_desktop->Close(window);
    return process.WaitForEnd();
}

PlayerDesk::PlayerDesk()
{
    Clips::Make("clip.mp4"); // before the temporary folder becomes the test's
    Screen();
    m_home = MakeFolder("zentaro-desk");
    m_programFolder = InHome("program");
    EnterOwnWorld(m_home);
    setenv("DISPLAY", Screen().Name().c_str(), 1);
    fs::create_directory(m_programFolder);
    CopyProgramFolder(m_programFolder);
    // No window lies under the pointer by accident.
    Screen().MoveTo(0, 0);
}

void PlayerDesk::SetUpTestSuite()
{
    static const bool isWatched = [] {
        testing::UnitTest::GetInstance()->listeners().Append(new ScreenshotOnFailure(Screen()));
        return true;
    }();
    static_cast<void>(isWatched);
}

PlayerDesk::~PlayerDesk()
{
    std::error_code ignored;
    fs::remove_all(m_home, ignored);
}

void PlayerDesk::TearDown()
{
    for (const auto id : ProcessesAtHome(m_home))
        kill(id, SIGKILL);
}

Desktop& PlayerDesk::Screen()
{
    static Desktop desktop;
    return desktop;
}

PlayerSettings PlayerDesk::StoredSettings() const
{
    const auto settings = ParseConfigurations(ReadWholeFile(ConfigPath()));
    EXPECT_TRUE(settings) << "no good Config.cfg";
    return settings.value_or(PlayerSettings());
}

void PlayerDesk::StoreSettings(const std::function<void(PlayerSettings&)>& change) const
{
    auto settings = DefaultSettings(m_home, { 1280 * 15.0, 800 * 15.0 });
    change(settings);
    WriteWholeFile(ConfigPath(), FormatConfigurations(settings));
}

std::string PlayerDesk::CopyOf(const std::string& clip, const std::string& name) const
{
    const auto path = InHome(name);
    fs::create_directories(fs::path(path).parent_path());
    fs::create_hard_link(clip, path);
    return path;
}

Process PlayerDesk::Start(const std::vector<std::string>& arguments, const std::string& folder,
    const std::map<std::string, std::string>& environment)
{
    return Process({ .program = m_programFolder + "/zentaro",
        .arguments = arguments,
        .folder = folder,
        .errorFile = InHome("errors-" + std::to_string(++m_starts)),
        .environment = environment });
}

ShownPlayer PlayerDesk::Show(Process process, Desktop* desktop)
{
    auto& screen = desktop != nullptr ? *desktop : Screen();
    Window found = 0;
    WaitUntil([&] {
        for (const auto window : screen.WindowsOf(process.Id())) {
            if (!screen.IsDialog(window))
                found = window;
        }
        return found != 0 || !process.IsRunning();
    });
    if (found == 0)
        throw std::runtime_error("no window came: " + process.ErrorText());
    return { screen, std::move(process), found };
}

} // namespace zentaro::desktop
