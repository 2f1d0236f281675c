#pragma once

#include "tests/desktop/Desktop.h"

namespace zentaro::desktop {

/// A panel with room for one icon, at the top left of the screen.
class TrayHost {
public:
    explicit TrayHost(Desktop& desktop);
    ~TrayHost();

    /// Waits until an icon is shown in the panel.
    bool TakeIcon();
    /// Where it is on the screen.
    Rect Icon() const;

private:
    void Send(Window to, const char* message, std::initializer_list<std::uint32_t> values, std::uint32_t mask) const;

    Desktop& m_desktop;
    xcb_connection_t* m_connection;
    Window m_panel;
    Window m_icon = 0;
};

} // namespace zentaro::desktop
