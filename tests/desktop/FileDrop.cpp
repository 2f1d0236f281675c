// The source's side of XDND 5, the X protocol that file managers drop files by:
// https://www.freedesktop.org/wiki/Specifications/XDND/
#include "tests/desktop/Desktop.h"
#include "tests/desktop/Reply.h"

#include <cstring>
#include <functional>
#include <xcb/xcb.h>

namespace zentaro::desktop {

namespace {

constexpr std::uint32_t kVersion = 5;
constexpr std::uint32_t kAccepted = 1; // first bit of XdndStatus

std::string UriOf(const std::string& path)
{
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        if (std::isalnum(byte) || std::strchr("/-_.~", character) != nullptr)
            uri += character;
        else
            uri += { '%', kDigits[byte >> 4], kDigits[byte & 15] };
    }
    return uri;
}

class FileDrag {
public:
    FileDrag(Desktop& desktop, std::string uris)
        : m_desktop(desktop)
        , m_connection(desktop.Connection())
        , m_uris(std::move(uris))
        , m_list(desktop.Atom("text/uri-list"))
        , m_window(xcb_generate_id(m_connection))
    {
        xcb_create_window(m_connection, 0, m_window, desktop.Root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_connection, m_window, desktop.Atom("XdndSelection"), XCB_CURRENT_TIME);
    }
    ~FileDrag()
    {
        xcb_destroy_window(m_connection, m_window);
        xcb_flush(m_connection);
    }

    bool DropAt(int x, int y)
    {
        const auto target = TargetAt(x, y);
        if (target == 0)
            return false;
        Send(target, "XdndEnter", { kVersion << 24, m_list, 0, 0 });
        const auto place = static_cast<std::uint32_t>(x) << 16 | static_cast<std::uint32_t>(y);
        Send(target, "XdndPosition", { 0, place, XCB_CURRENT_TIME, m_desktop.Atom("XdndActionCopy") });
        const auto status = WaitFor("XdndStatus");
        if (!status || (status->data.data32[1] & kAccepted) == 0) {
            Send(target, "XdndLeave", {});
            return false;
        }
        Send(target, "XdndDrop", { 0, XCB_CURRENT_TIME });
        return WaitFor("XdndFinished").has_value();
    }

private:
    /// The outermost window at the place that says it takes drops.
    Window TargetAt(int x, int y) const
    {
        for (auto window = m_desktop.Root(); window != 0;) {
            if (!m_desktop.Numbers(window, "XdndAware").empty())
                return window;
            Window inner = 0;
            for (const auto child : m_desktop.ShownChildren(window)) {
                if (m_desktop.Place(child).Contains(x, y))
                    inner = child; // the last one lies on top
            }
            window = inner;
        }
        return 0;
    }

    void Send(Window target, const std::string& message, std::initializer_list<std::uint32_t> values)
    {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = target;
        event.type = m_desktop.Atom(message);
        event.data.data32[0] = m_window;
        std::copy(values.begin(), values.end(), event.data.data32 + 1);
        xcb_send_event(m_connection, 0, target, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
        xcb_flush(m_connection);
    }

    /// Serves requests for the list meanwhile.
    std::optional<xcb_client_message_event_t> WaitFor(const std::string& message)
    {
        const auto wanted = m_desktop.Atom(message);
        std::optional<xcb_client_message_event_t> found;
        WaitUntil([&] {
            while (const auto event = Reply<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
                const auto type = event->response_type & 0x7F;
                const auto* const client = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
                if (type == XCB_SELECTION_REQUEST)
                    Serve(*reinterpret_cast<const xcb_selection_request_event_t*>(event.get()));
                else if (type == XCB_CLIENT_MESSAGE && client->type == wanted)
                    found = *client;
            }
            return found.has_value();
        });
        return found;
    }

    void Serve(const xcb_selection_request_event_t& request)
    {
        xcb_selection_notify_event_t answer{};
        answer.response_type = XCB_SELECTION_NOTIFY;
        answer.requestor = request.requestor;
        answer.selection = request.selection;
        answer.target = request.target;
        if (request.target == m_list) {
            xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property, m_list, 8,
                static_cast<std::uint32_t>(m_uris.size()), m_uris.data());
            answer.property = request.property;
        }
        xcb_send_event(
            m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&answer));
        xcb_flush(m_connection);
    }

    Desktop& m_desktop;
    xcb_connection_t* m_connection;
    std::string m_uris;
    std::uint32_t m_list;
    Window m_window;
};

} // namespace

bool Desktop::DropFiles(int x, int y, const std::vector<std::string>& paths)
{
    std::string uris;
    for (const auto& path : paths)
        uris += UriOf(path) + "\r\n";
    MoveTo(x, y);
    return FileDrag(*this, uris).DropAt(x, y);
}

} // namespace zentaro::desktop
