#include "app/DiscSession.h"

#include "app/WindowControl.h"
#include "base/Paths.h"
#include "base/Words.h"

#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr int kMenuTitle = 0;
constexpr auto kBeforeDisc = 500ms; // gives the engine time to meet the drive
const std::string kDiscScheme = "dvd://";
constexpr const char* kClassicSlots = "dvdsList";
constexpr std::size_t kDriveRootLength = 3; // as "D:\"

} // namespace

DiscSession::DiscSession(DiscService service, SettingsStore& settings, Transport& transport, Library& library,
    Menus& menus, WindowControl& window, const PlayerFace& face)
    : m_service(std::move(service))
    , m_settings(settings)
    , m_transport(transport)
    , m_library(library)
    , m_menus(menus)
    , m_window(window)
    , m_face(face)
{
}

TransportItem DiscSession::ItemOf(const PlaylistEntry& entry)
{
    if (IsDiscLocation(entry.FullPath) || entry.FullPath.size() == kDriveRootLength)
        return { TransportItem::Kind::Disc, entry.FullPath, entry.Title.substr(0, entry.Title.rfind(" (")) };
    const bool hasVideo = entry.MediaInfo.find(" (Video)") != std::string::npos;
    return { TransportItem::Kind::File, entry.FullPath, entry.FullPath, hasVideo };
}

void DiscSession::Watch()
{
    if (m_watcher.IsOn())
        return;
    m_watcher.SwitchOn();
    // What came while something played was not looked at.
    if (m_service.isTold)
        m_service.askForDrives();
}

void DiscSession::OnDVDTick()
{
    if (m_watcher.IsOn())
        m_service.askForDrives();
}

void DiscSession::DrivesFound(std::vector<platform::OpticalDrive> drives)
{
    m_watcher.DrivesFound(drives);
    m_drives.mnuOpenDVD_Click(std::move(drives));
    if (m_watcher.IsOn() && !m_transport.State().mediaControlsEnabled && !IsStarting())
        StartNewDiscs(0);
}

void DiscSession::StartNewDiscs(int from)
{
    for (int i = from; i < static_cast<int>(m_drives.Drives().size()); ++i) {
        if (!m_drives.HasVideoDisc(i) || !m_watcher.IsNew(m_drives.Drives()[static_cast<std::size_t>(i)]))
            continue;
        m_watcher.SwitchOff();
        m_currentDiscRoot = m_drives.RootAt(i);
        // The disc of a further drive is started in turn, and replaces this one.
        if (m_drives.CanStart(i))
            return PlayDisc(i, [this, i] { StartNewDiscs(i + 1); });
    }
}

void DiscSession::dvdsList_Click(int index)
{
    if (m_drives.Drives().empty())
        return;
    m_currentDiscRoot = m_drives.RootAt(index);
    if (m_drives.CanStart(index))
        PlayDisc(index, [] {});
}

void DiscSession::PlayDisc(int index, std::function<void()> then)
{
    const auto& drive = m_drives.Drives()[static_cast<std::size_t>(index)];
    const auto& caption = m_drives.Labels()[static_cast<std::size_t>(index)];
    const auto location = kDiscScheme + m_currentDiscRoot;
    const auto name = drive.label.value_or("").empty() ? "DVD" : *drive.label;
    m_watcher.DiscStarted(drive);
    m_library.CancelAdding();
    m_transport.cmdStopClick();
    ListDisc(caption, location);
    const auto root = WithTrailingSeparator(m_currentDiscRoot, m_settings.Separator());
    const bool isOpen = m_transport.Open(
        { TransportItem::Kind::DriveDisc, root, name }, { location, true }, m_settings.ItemOptions(name));
    m_transport.ShowWord("LOADING...");
    if (!isOpen)
        return Ended(true);
    m_start = std::make_shared<Start>(Start{ m_transport.Generation(), std::move(then) });
    m_service.after(kBeforeDisc, [this, start = std::weak_ptr(m_start)] {
        if (const auto awaited = start.lock(); awaited && awaited == m_start)
            Begin();
    });
}

void DiscSession::ListDisc(const std::string& caption, const std::string& location)
{
    auto& entries = m_library.Entries();
    entries.RemoveAll();
    entries.Append({ caption, location, m_service.readPicture(), Words("Video DVD") });
    if (entries.List().SelectedItem() < 0)
        entries.List().SetSelectedItem(0);
    entries.BuildSequentialOrder();
    m_library.TellEntryAdded();
    m_window.ShowCaption();
}

bool DiscSession::IsStarting() const
{
    return m_start && m_start->generation == m_transport.Generation();
}

void DiscSession::Begin()
{
    // Whatever the user has stopped or started meanwhile holds.
    const bool goesOn = IsStarting() && m_library.Entries().Count() > 0;
    const auto start = std::exchange(m_start, nullptr);
    if (!goesOn)
        return;
    Play();
    start->then();
}

void DiscSession::Play()
{
    m_transport.Play();
    m_transport.ItemStarted();
    m_window.BringFilmForward();
    auto& entries = m_library.Entries();
    for (int i = 0; i < entries.Count(); ++i) {
        if (IsDiscLocation(entries.PathAt(i)))
            entries.List().SetPlayingItem(i);
    }
    m_face.window->FocusVideo();
}

void DiscSession::Ended(bool failed)
{
    m_transport.cmdStopClick();
    if (failed)
        Failed();
}

void DiscSession::Failed()
{
    m_transport.ShowWord({});
    m_face.dialogs->ShowNotice({ Words("Please insert a valid DVD."), NoticeIcon::Critical }, [] {});
}

bool DiscSession::Navigate(DiscKey key)
{
    auto* const engine = m_transport.Item().IsDisc() ? m_transport.LoadedEngine() : nullptr;
    if (engine == nullptr || engine->Title() != kMenuTitle)
        return false;
    engine->Navigate(key);
    return true;
}

PartChoice DiscSession::Titles() const
{
    auto* const engine = m_transport.LoadedEngine();
    return engine != nullptr ? PartChoice{ TitleCaptions(engine->Titles()), engine->Title() } : PartChoice{};
}

PartChoice DiscSession::Chapters() const
{
    auto* const engine = m_transport.LoadedEngine();
    return engine != nullptr ? PartChoice{ ChapterCaptions(engine->Chapters()), engine->Chapter() } : PartChoice{};
}

void DiscSession::SetTitle(int index)
{
    if (auto* const engine = m_transport.LoadedEngine())
        engine->SetTitle(index);
}

void DiscSession::SetChapter(int index)
{
    if (auto* const engine = m_transport.LoadedEngine())
        engine->SetChapter(index);
}

std::string DiscSession::StepChapter(int direction)
{
    auto* const engine = m_transport.LoadedEngine();
    if (engine == nullptr)
        return {};
    const auto chapters = engine->Chapters();
    const auto index = ChapterAfterStep(chapters, engine->Chapter(), engine->Time(), direction);
    if (!index)
        return {};
    if (HaveStarts(chapters) && engine->Length() > 0)
        m_transport.Seek(chapters[static_cast<std::size_t>(*index)].start / engine->Length());
    else
        engine->SetChapter(*index);
    return ChapterCaptions(chapters)[static_cast<std::size_t>(*index)];
}

void DiscSession::SetCaption(const std::string& key, const std::string& caption)
{
    m_menus.SmartMenuXP1.SetCaption(key, caption);
}

void DiscSession::SetEnabled(const std::string& key, bool enabled)
{
    m_menus.SmartMenuXP1.SetEnabled(key, enabled);
}

void DiscSession::SetVisible(const std::string& key, bool visible)
{
    m_menus.SmartMenuXP1.SetVisible(key, visible);
}

int DiscSession::ClassicCount() const
{
    return m_menus.frmMenu.Count(kClassicSlots);
}

void DiscSession::SetFirstClassic(const std::string& caption, bool enabled)
{
    m_menus.frmMenu.SetCaption(kClassicSlots, 0, caption);
    m_menus.frmMenu.SetEnabled(kClassicSlots, 0, enabled);
}

void DiscSession::LoadClassic(const std::string& caption)
{
    m_menus.frmMenu.Load(kClassicSlots, caption);
}

void DiscSession::UnloadLastClassic()
{
    m_menus.frmMenu.UnloadLast(kClassicSlots);
}

} // namespace zentaro
