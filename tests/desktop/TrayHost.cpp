#include "tests/desktop/TrayHost.h"

#include "tests/desktop/Reply.h"

#include <algorithm>
#include <xcb/xcb.h>

namespace zentaro::desktop {

namespace {

constexpr std::uint16_t kIconSize = 24; // px

} // namespace

TrayHost::TrayHost(Desktop& desktop)
    : m_desktop(desktop)
    , m_connection(xcb_connect(desktop.Name().c_str(), nullptr))
    , m_panel(xcb_generate_id(m_connection))
{
    const std::uint32_t values[] = { 0xFF404040, 1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY };
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_panel, desktop.Root(), 0, 0, 2 * kIconSize, kIconSize, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
        XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(m_connection, m_panel);
    const auto selection = desktop.Atom("_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(m_connection, m_panel, selection, XCB_CURRENT_TIME);
    Send(desktop.Root(), "MANAGER", { XCB_CURRENT_TIME, selection, m_panel }, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

TrayHost::~TrayHost()
{
    xcb_disconnect(m_connection);
}

bool TrayHost::TakeIcon()
{
    const auto dock = m_desktop.Atom("_NET_SYSTEM_TRAY_OPCODE");
    return WaitUntil([&] {
        while (const Reply<xcb_generic_event_t> event{ xcb_poll_for_event(m_connection) }) {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE || message.type != dock)
                continue;
            m_icon = message.data.data32[2];
            const std::uint32_t size[] = { kIconSize, kIconSize };
            xcb_reparent_window(m_connection, m_icon, m_panel, 0, 0);
            xcb_configure_window(m_connection, m_icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
            xcb_map_window(m_connection, m_icon);
            Send(m_icon, "_XEMBED", { XCB_CURRENT_TIME, 0, 0, m_panel, 0 }, XCB_EVENT_MASK_NO_EVENT);
        }
        return m_icon != 0 && !m_desktop.ShownChildren(m_panel).empty();
    });
}

Rect TrayHost::Icon() const
{
    return m_desktop.Place(m_icon);
}

void TrayHost::Send(
    Window to, const char* message, std::initializer_list<std::uint32_t> values, std::uint32_t mask) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = to;
    event.type = m_desktop.Atom(message);
    std::copy(values.begin(), values.end(), event.data.data32);
    xcb_send_event(m_connection, 0, to, mask, reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection);
}

} // namespace zentaro::desktop
