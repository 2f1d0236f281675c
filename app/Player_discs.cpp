#include "app/Player.h"

#include "base/Paths.h"
#include "playback/DiscParts.h"

#include <chrono>
#include <utility>

// Discs: the drives, starting a disc, its menus.
namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr int kMenuTitle = 0;
constexpr auto kBeforeDisc = 500ms; // gives the engine time to meet the drive
const std::string kDiscScheme = "dvd://";

} // namespace

bool Player::IsDiscLoaded() const
{
    // The root of a drive has three characters where drives are letters.
    return m_dvdMode || IsDiscLocation(m_currentItemPath) || m_currentItemPath.size() == 3;
}

bool Player::IsDiscLocation(const std::string& path)
{
    return path.starts_with(kDiscScheme);
}

void Player::OnDVDTick()
{
    if (m_discWatcher.IsOn())
        m_world.askForDrives();
}

void Player::DrivesFound(std::vector<platform::OpticalDrive> drives)
{
    if (m_ended)
        return;
    m_discWatcher.DrivesFound(drives);
    m_drives.mnuOpenDVD_Click(std::move(drives));
    if (m_discWatcher.IsOn() && !m_mediaControlsEnabled && !m_isStartingDisc)
        StartNewDiscs();
}

void Player::StartNewDiscs()
{
    // The list can shrink while a disc is being started.
    for (int i = 0; i < static_cast<int>(m_drives.Drives().size()); ++i) {
        if (!m_drives.HasVideoDisc(i) || !m_discWatcher.IsNew(m_drives.Drives()[static_cast<std::size_t>(i)]))
            continue;
        m_discWatcher.SwitchOff();
        dvdsList_Click(i);
        if (!m_dvdMode || m_ended)
            return; // something else was started meanwhile
    }
}

void Player::dvdsList_Click(int index)
{
    if (m_drives.Drives().empty())
        return;
    m_currentDiscRoot = m_drives.RootAt(index);
    if (m_drives.CanStart(index))
        PlayDisc(index);
}

void Player::PlayDisc(int index)
{
    // Copies: what is stopped here can pump messages, and the list change.
    const auto drive = m_drives.Drives()[static_cast<std::size_t>(index)];
    const auto caption = m_drives.Labels()[static_cast<std::size_t>(index)];
    const auto root = m_currentDiscRoot;
    const auto location = kDiscScheme + root;
    m_discWatcher.DiscStarted(drive);
    m_adding.Cancel();
    cmdStopClick();
    m_host.RemoveVLCPlayer();
    m_host.AddVLCPLayer();
    m_world.screen.ShowTimeText("LOADING...");
    m_playlist.RemoveAll();
    m_playlist.Append({ caption, location, m_world.readDiscPicture(), "Video DVD" });
    if (m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
    m_playlist.BuildSequentialOrder();
    EntryAdded();
    ShowCaption();
    m_currentItemPath = WithTrailingSeparator(root, m_world.separator);
    m_discName = drive.label.value_or("").empty() ? "DVD" : *drive.label;
    m_options = WithSnapshotFolder(m_options, m_settings.SnapshotPath, m_discName, m_world.separator);
    auto* const engine = m_host.VLCPlayer();
    if (engine != nullptr)
        engine->Add({ location, true }, m_options);
    if (engine == nullptr || engine->ItemCount() == 0) {
        DiscFailed();
        return;
    }
    m_dvdMode = true;
    if (WaitBeforeDisc())
        CMDPlayClick();
}

bool Player::WaitBeforeDisc()
{
    m_isStartingDisc = true;
    const int start = ++m_discStarts;
    m_world.screen.PumpFor(kBeforeDisc);
    // Whatever the user has stopped or started meanwhile holds.
    const bool goesOn = start == m_discStarts && !m_ended && m_playlist.Count() > 0;
    if (start == m_discStarts)
        m_isStartingDisc = false;
    return goesOn;
}

void Player::ForgetDiscStart()
{
    ++m_discStarts;
    m_isStartingDisc = false;
}

void Player::PlayLoadedDisc()
{
    auto* const engine = m_host.VLCPlayer();
    if (engine == nullptr)
        return;
    engine->Play();
    EnableMediaControls(true);
    for (int i = 0; i < m_playlist.Count(); ++i) {
        if (IsDiscLocation(m_playlist.PathAt(i)))
            m_playlist.List().SetPlayingItem(i);
    }
    m_rate.ItemStarted();
    ShowRateLabel(true);
    m_world.screen.FocusVideo();
}

void Player::DiscEnded(bool failed)
{
    cmdStopClick();
    if (failed)
        DiscFailed();
}

void Player::DiscFailed()
{
    m_world.screen.ShowTimeText({});
    m_world.screen.ShowNotice({ "Please insert a valid DVD.", NoticeIcon::Critical });
}

bool Player::NavigateDisc(DiscKey key)
{
    auto* const engine = IsDiscLoaded() ? LoadedEngine() : nullptr;
    if (engine == nullptr || engine->Title() != kMenuTitle)
        return false;
    engine->Navigate(key);
    return true;
}

PartChoice Player::Titles() const
{
    auto* const engine = LoadedEngine();
    return engine != nullptr ? PartChoice{ PartCaptions(engine->Titles(), "Title"), engine->Title() } : PartChoice{};
}

PartChoice Player::Chapters() const
{
    auto* const engine = LoadedEngine();
    return engine != nullptr ? PartChoice{ PartCaptions(engine->Chapters(), "Chapter"), engine->Chapter() }
                             : PartChoice{};
}

void Player::SetTitle(int index)
{
    if (auto* const engine = LoadedEngine())
        engine->SetTitle(index);
}

void Player::SetChapter(int index)
{
    if (auto* const engine = LoadedEngine())
        engine->SetChapter(index);
}

} // namespace zentaro
