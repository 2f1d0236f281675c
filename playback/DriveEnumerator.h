#pragma once

#include "platform/Drives.h"

#include <string>
#include <vector>

namespace zentaro {

/// The entries for drives in both menus.
class DvdMenus {
public:
    virtual ~DvdMenus() = default;

    // Items of the command menu, by key. A key that names no item changes nothing.
    virtual void SetCaption(const std::string& key, const std::string& caption) = 0;
    virtual void SetEnabled(const std::string& key, bool enabled) = 0;
    virtual void SetVisible(const std::string& key, bool visible) = 0;

    // The classic menu, which has one entry at least.
    virtual int ClassicCount() const = 0;
    virtual void SetFirstClassic(const std::string& caption, bool enabled) = 0;
    virtual void LoadClassic(const std::string& caption) = 0; ///< one more entry at the end
    virtual void UnloadLastClassic() = 0;
};

/// The optical drives as both menus list them. Indexes are those of the classic menu's entries, from 0.
class DriveEnumerator {
public:
    explicit DriveEnumerator(DvdMenus& menus)
        : m_menus(menus)
    {
    }

    /// Lists the drives that the system has named last, and fills both menus when they show others.
    void mnuOpenDVD_Click(std::vector<platform::OpticalDrive> drives);

    /// One label for each drive; empty without drives.
    const std::vector<std::string>& Labels() const { return m_labels; }
    /// The name of the drive; empty when its volume could not be read.
    std::string RootAt(int index) const;
    /// Whether the entry stands for a drive whose disc can be started.
    bool CanStart(int index) const;
    /// The drive that the entry's label names has a disc with a folder for video. A label with a "(" of its own names a
    /// wrong one.
    bool HasVideoDisc(int index) const;

    const std::vector<platform::OpticalDrive>& Drives() const { return m_drives; }

private:
    void ReadLabels();
    /// The number of drives.
    int EnumerateDrives();
    void UnloadClassicEntries();

    DvdMenus& m_menus;
    std::vector<platform::OpticalDrive> m_drives;
    std::vector<std::string> m_labels;
    std::vector<std::string> m_roots;
};

/// Starts video discs by itself.
class DiscWatcher {
public:
    bool IsOn() const { return m_isOn; }
    void SwitchOn() { m_isOn = true; }
    /// Starting a disc is what switches it off.
    void SwitchOff() { m_isOn = false; }

    /// The disc in this drive was started, by whomever: it is not started again before it has left the drive.
    void DiscStarted(const platform::OpticalDrive& drive) { m_started.push_back({ drive.name, drive.disc }); }
    bool IsNew(const platform::OpticalDrive& drive) const;
    /// The drives' new state, to see what has left.
    void DrivesFound(const std::vector<platform::OpticalDrive>& drives);

private:
    struct Started {
        std::string drive;
        std::string disc;
    };

    bool m_isOn = false;
    std::vector<Started> m_started;
};

} // namespace zentaro
