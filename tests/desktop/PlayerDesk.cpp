#include "tests/desktop/PlayerDesk.h"

#include "app/ConfigFile.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace zentaro::trial {

namespace {

namespace fs = std::filesystem;

// Of 255: a black frame with a thin line of something is still black.
constexpr int kDark = 12;
constexpr int kUnpainted = 5;
constexpr double kMovingShare = 0.01;
// The X server gives each client the window numbers of one block.
constexpr int kClientShift = 21;
// A window that is painted anew changes once or twice; what plays goes on.
constexpr int kMovements = 4;

/// The player stands beside this program's folder. A program finds its folder by its own resolved path, so it is
/// copied; what lies beside it is linked.
void CopyProgramFolder(const fs::path& folder)
{
    fs::create_directory(folder);
    for (const auto& entry : fs::directory_iterator(fs::canonical(fs::path(Helper("")).parent_path() / "../bin"))) {
        const auto name = entry.path().filename();
        if (name == "zentaro" || name == "zentaro.exe")
            fs::copy_file(entry.path(), folder / name);
        else if (name != "Config.cfg" && name != "zentaro.package")
            fs::create_symlink(entry.path(), folder / name);
    }
}

/// Nothing of whoever runs the tests reaches the player, and where its buses would be nobody listens: without an
/// address its libraries would start one of their own, which outlives it.
void EnterOwnWorld(const std::string& home, const std::string& display)
{
    const std::string path = std::getenv("PATH");
    const auto temporary = fs::temp_directory_path();
    clearenv();
    for (const auto& [name, value] :
        std::initializer_list<std::pair<const char*, std::string>>{ { "PATH", path }, { "TMPDIR", temporary },
            { "LC_ALL", "C.UTF-8" }, { "DISPLAY", display }, { "HOME", home }, { "XDG_RUNTIME_DIR", home + "/run" },
            { "XDG_CONFIG_HOME", home + "/config" }, { "XDG_DATA_HOME", home + "/data" },
            { "XDG_CACHE_HOME", home + "/cache" }, { "DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + home + "/no-bus" },
            { "DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/no-session-bus" },
            // What the system's libraries leak is not ours to find; what is freed must not look like a growing player.
            { "ASAN_OPTIONS", "detect_leaks=0:quarantine_size_mb=4" }, { "UBSAN_OPTIONS", "print_stacktrace=1" } })
        setenv(name, value.c_str(), 1);
    for (const auto* const folder : { "/tmp", "/run", "/config", "/data", "/cache" })
        fs::create_directory(home + folder);
    fs::permissions(home + "/run", fs::perms::owner_all);
}

/// Keeps what was on the screen when something failed.
struct Witness : testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult& result) override
    {
        const auto path = fs::temp_directory_path() / ("failed-" + std::to_string(++results) + ".png");
        if (result.failed() && screen.Grab(screen.Area()).save(QString::fromStdString(path)))
            std::cout << "What was on the screen: " << path << '\n';
    }
    Desktop screen;
    int results = 0;
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
        const auto children = m_desktop->Children(outer);
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

void ShownPlayer::Click(Button button) const
{
    const auto place = PlaceOf(button);
    m_desktop->Click(place.left + place.width / 2, place.top + place.height / 2);
}

std::vector<Window> ShownPlayer::Dialogs() const
{
    auto windows = m_desktop->WindowsOf(process.Id());
    std::erase_if(windows, [this](Window each) { return !m_desktop->IsDialog(each); });
    return windows;
}

bool ShownPlayer::WaitForDialogs(std::size_t count) const
{
    return WaitUntil([&] {
        const auto dialogs = Dialogs();
        return dialogs.size() == count && m_desktop->IsActive(dialogs.empty() ? window : dialogs.back());
    });
}

std::optional<std::string> ShownPlayer::AnswerDialog() const
{
    if (!WaitUntil([this] { return !Dialogs().empty(); }))
        return std::nullopt;
    const auto dialogs = Dialogs();
    const auto title = m_desktop->Title(dialogs.back());
    m_desktop->Activate(dialogs.back());
    m_desktop->Press("Return");
    return WaitForDialogs(dialogs.size() - 1) ? std::optional(title) : std::nullopt;
}

bool ShownPlayer::WaitForMenus(std::size_t count) const
{
    return WaitUntil([&] { return m_desktop->MenusOf(process.Id()).size() == count; });
}

bool ShownPlayer::PictureMoves() const
{
    QImage before;
    int movements = 0;
    return WaitUntil([&] {
        auto now = m_desktop->Grab(Video());
        if (MeanOf(now).value() < kDark || now.size() != before.size())
            movements = 0;
        else if (ShareThatDiffers(before, now) > kMovingShare)
            ++movements;
        else
            return false;
        before = std::move(now);
        return movements == kMovements;
    });
}

bool ShownPlayer::PictureStands() const
{
    QImage before;
    auto since = std::chrono::steady_clock::now();
    return WaitUntil([&] {
        auto now = m_desktop->Grab(Video());
        if (now.size() != before.size() || ShareThatDiffers(before, now) > kMovingShare) {
            before = std::move(now);
            since = std::chrono::steady_clock::now();
        }
        return std::chrono::steady_clock::now() - since >= 1s;
    });
}

std::optional<int> ShownPlayer::Close()
{
    m_desktop->Close(window);
    return process.WaitForEnd();
}

PlayerDesk::PlayerDesk()
{
    EnterOwnWorld(Home(), Screen().Name());
    CopyProgramFolder(InHome("program"));
    // No window lies under the pointer by accident.
    Screen().MoveTo(0, 0);
}

void PlayerDesk::TearDown()
{
    for (const auto& id : Started())
        kill(std::stoi(id), SIGKILL);
}

std::vector<std::string> PlayerDesk::Started() const
{
    Process search({ "bash", "-c", "grep -lzsx TMPDIR=" + InHome("tmp") + " /proc/[0-9]*/environ | tr -cd '0-9\n'" });
    search.WaitForEnd();
    return Words(search.Output());
}

Desktop& PlayerDesk::Screen()
{
    static auto& witness = *[] {
        auto* const made = new Witness;
        testing::UnitTest::GetInstance()->listeners().Append(made); // which deletes it at the end
        return made;
    }();
    return witness.screen;
}

QImage PlayerDesk::SettledLook(const Rect& part)
{
    QImage look;
    WaitUntil([&] {
        look = Screen().Grab(part);
        std::this_thread::sleep_for(300ms);
        return Screen().Grab(part) == look;
    });
    return look;
}

PlayerSettings PlayerDesk::StoredSettings() const
{
    const auto settings = ParseConfigurations(ReadWholeFile(ConfigPath()));
    EXPECT_TRUE(settings) << "no good Config.cfg";
    return settings.value_or(PlayerSettings());
}

void PlayerDesk::StoreSettings(const std::function<void(PlayerSettings&)>& change) const
{
    auto settings = DefaultSettings(Home(), { 1280 * 15.0, 800 * 15.0 });
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
    const std::vector<std::string>& environment) const
{
    auto command = environment;
    command.insert(command.end(), { "TMPDIR=" + InHome("tmp"), InHome("program/zentaro") });
    command.insert(command.end(), arguments.begin(), arguments.end());
    return Process(command, folder);
}

ShownPlayer PlayerDesk::Show(Process process, Desktop& desktop)
{
    Window found = 0;
    WaitUntil([&] {
        for (const auto window : desktop.WindowsOf(process.Id())) {
            if (!desktop.IsDialog(window) && MeanOf(desktop.Grab(desktop.Place(window))).value() > kUnpainted)
                found = window;
        }
        return found != 0 || !process.IsRunning();
    });
    if (found == 0)
        throw std::runtime_error("no window came: " + process.Output());
    return { desktop, std::move(process), found };
}

} // namespace zentaro::trial
