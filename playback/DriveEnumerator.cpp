#include "playback/DriveEnumerator.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr const char* kNoDrives = "<No DVD drives were found>";
constexpr const char* kNoDisc = "<Please insert a DVD>";
constexpr const char* kFirstItem = "DVDList0";
constexpr std::size_t kShortName = 2; // characters, as "D:"

std::string ItemKey(std::size_t index)
{
    return "DVDList" + std::to_string(index);
}

std::string DriveNameIn(const std::string& label, std::size_t nameLength)
{
    const auto start = std::min(label.find('('), label.size() - 1) + 1;
    return label.substr(start, nameLength == kShortName ? kShortName : label.find(')', start) - start);
}

} // namespace

void DriveEnumerator::mnuOpenDVD_Click(std::vector<platform::OpticalDrive> drives)
{
    m_drives = std::move(drives);
    const auto shown = m_labels;
    ReadLabels();
    // An open menu would lose its place.
    if (m_labels == shown || EnumerateDrives() == 0)
        return;
    m_menus.SetFirstClassic(m_labels[0], true);
    m_menus.SetVisible(kFirstItem, true);
    m_menus.SetCaption(kFirstItem, m_labels[0]);
    m_menus.SetEnabled(kFirstItem, true);
    for (std::size_t i = 1; i < m_labels.size(); ++i) {
        m_menus.SetVisible(ItemKey(i), true);
        m_menus.SetCaption(ItemKey(i), m_labels[i]);
        m_menus.LoadClassic(m_labels[i]);
    }
}

void DriveEnumerator::ReadLabels()
{
    m_labels.clear();
    m_roots.clear();
    for (const auto& drive : m_drives) {
        m_roots.push_back(drive.label ? drive.name : std::string());
        m_labels.push_back(drive.label.value_or(kNoDisc) + " (" + drive.name + ")");
    }
}

int DriveEnumerator::EnumerateDrives()
{
    if (m_labels.empty()) {
        m_menus.SetFirstClassic(kNoDrives, false);
        m_menus.SetEnabled(kFirstItem, false);
        m_menus.SetCaption(kFirstItem, kNoDrives);
    }
    UnloadClassicEntries();
    return static_cast<int>(m_labels.size());
}

void DriveEnumerator::UnloadClassicEntries()
{
    // The first slot for every entry that goes, and never that entry's own: a slot that was filled once keeps its look.
    for (; m_menus.ClassicCount() > 1; m_menus.UnloadLastClassic())
        m_menus.SetVisible(kFirstItem, false);
}

std::string DriveEnumerator::RootAt(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < m_roots.size() ? m_roots[at] : std::string();
}

bool DriveEnumerator::CanStart(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < m_labels.size() && !m_labels[at].starts_with(kNoDisc);
}

bool DriveEnumerator::HasVideoDisc(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    const auto name = DriveNameIn(m_labels[at], m_drives[at].name.size());
    return std::any_of(m_drives.begin(), m_drives.end(),
        [&](const auto& drive) { return drive.name == name && drive.hasVideoFolder; });
}

bool DiscWatcher::IsNew(const platform::OpticalDrive& drive) const
{
    return std::none_of(m_started.begin(), m_started.end(),
        [&](const auto& started) { return started.drive == drive.name && started.disc == drive.disc; });
}

void DiscWatcher::DrivesFound(const std::vector<platform::OpticalDrive>& drives)
{
    std::erase_if(m_started, [&](const auto& started) {
        return std::none_of(drives.begin(), drives.end(), [&](const auto& drive) {
            return drive.name == started.drive && drive.label && drive.disc == started.disc;
        });
    });
}

} // namespace zentaro
