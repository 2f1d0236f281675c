#include "tests/desktop/TitleLog.h"

#include "tests/desktop/Desktop.h"
#include "tests/desktop/Reply.h"

#include <algorithm>
#include <poll.h>
#include <xcb/xcb.h>

namespace zentaro::desktop {

namespace {

constexpr std::uint32_t kMostTitle = 1 << 16; // in units of four bytes

void Select(xcb_connection_t* connection, Window window, std::uint32_t events)
{
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

std::string TitleOf(xcb_connection_t* connection, Window window, std::uint32_t atom)
{
    const auto cookie = xcb_get_property(connection, 0, window, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostTitle);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply)
        return {};
    return { static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len };
}

} // namespace

TitleLog::TitleLog(const Desktop& desktop)
    : m_thread([this, name = desktop.Name()] { Run(name); })
{
    WaitUntil([this] { return m_isReady.load(); });
}

TitleLog::~TitleLog()
{
    m_stop = true;
    m_thread.join();
}

std::vector<std::string> TitleLog::Titles() const
{
    const std::lock_guard lock(m_mutex);
    return m_titles;
}

bool TitleLog::Contains(const std::string& part) const
{
    const auto titles = Titles();
    return std::any_of(
        titles.begin(), titles.end(), [&](const std::string& title) { return title.find(part) != std::string::npos; });
}

void TitleLog::Run(const std::string& display)
{
    auto* const connection = xcb_connect(display.c_str(), nullptr);
    const std::string name = "_NET_WM_NAME";
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, cookie, nullptr));
    Select(
        connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    const Reply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    m_isReady = true;
    pollfd readable{ xcb_get_file_descriptor(connection), POLLIN, 0 };
    while (!m_stop && atom) {
        const Reply<xcb_generic_event_t> event(xcb_poll_for_event(connection));
        if (!event) {
            poll(&readable, 1, 50);
            continue;
        }
        const auto type = event->response_type & 0x7F;
        if (type == XCB_CREATE_NOTIFY) {
            Select(connection, reinterpret_cast<const xcb_create_notify_event_t*>(event.get())->window,
                XCB_EVENT_MASK_PROPERTY_CHANGE);
        } else if (type == XCB_PROPERTY_NOTIFY) {
            const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            if (change.atom != atom->atom)
                continue;
            auto title = TitleOf(connection, change.window, change.atom);
            const std::lock_guard lock(m_mutex);
            m_titles.push_back(std::move(title));
        }
    }
    xcb_disconnect(connection);
}

} // namespace zentaro::desktop
