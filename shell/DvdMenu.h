#pragma once

namespace zentaro {

/// What the DVD menus ask of whoever knows the drives.
class DvdMenu {
public:
    virtual ~DvdMenu() = default;
    /// The list of drives is about to be shown: fills it in both menu trees.
    virtual void mnuOpenDVD_Click() = 0;
    /// Starts the disc of an entry, counted from 0.
    virtual void dvdsList_Click(int index) = 0;
};

} // namespace zentaro
