#include "platform/Window.h"

#include "platform/Files_linux.h"

#include <QDir>
#include <QLibraryInfo>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <xcb/xcb.h>

namespace zentaro::platform {
namespace {

struct Release {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    void operator()(void* reply) const { std::free(reply); }
};
using Connection = std::unique_ptr<xcb_connection_t, Release>;
template <class T> using Reply = std::unique_ptr<T, Release>;

// Values of the window manager protocol's _NET_WM_STATE message.
constexpr std::uint32_t kRemoveState = 0;
constexpr std::uint32_t kAddState = 1;
constexpr std::uint32_t kFromApplication = 1;

xcb_atom_t AtomOf(xcb_connection_t* connection, const char* name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// Asks the window manager with up to five values, of which some are names; where there is none, or no display, nobody
/// is asked.
void Request(NativeWindow window, const char* what, const std::function<void(xcb_connection_t*, std::uint32_t*)>& fill)
{
    if (window == 0)
        return;
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return;
    const auto id = static_cast<xcb_window_t>(window);
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection.get(), xcb_get_geometry(connection.get(), id), nullptr));
    if (!geometry)
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = id;
    message.type = AtomOf(connection.get(), what);
    fill(connection.get(), message.data.data32);
    const auto cookie = xcb_send_event_checked(connection.get(), 0, geometry->root,
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&message));
    // Waiting for the check keeps the connection open until the message has gone out.
    const Reply<xcb_generic_error_t> error(xcb_request_check(connection.get(), cookie));
}

void RequestState(NativeWindow window, std::uint32_t action, const char* state)
{
    Request(window, "_NET_WM_STATE", [&](xcb_connection_t* connection, std::uint32_t* values) {
        values[0] = action;
        values[1] = AtomOf(connection, state);
        values[3] = kFromApplication;
    });
}

std::string Variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// `usual`: the name of the display where no variable has one. An empty path: no display is named at all.
std::string WaylandPath(const std::string& usual)
{
    auto path = Variable("WAYLAND_DISPLAY");
    if (path.empty())
        path = usual;
    return path.empty() || path.starts_with('/') ? path : Variable("XDG_RUNTIME_DIR") + "/" + path;
}

bool IsWaylandThere(const std::string& path)
{
    if (!Variable("WAYLAND_SOCKET").empty())
        return true; // a connection that stands already
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return false;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const FileDescriptor display(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return connect(display.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool HasWaylandPlugin()
{
    auto folders = QString::fromLocal8Bit(qgetenv("QT_PLUGIN_PATH")).split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders.append(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    return std::any_of(folders.begin(), folders.end(), [](const QString& folder) {
        return !QDir(folder + "/platforms").entryList({ "libqwayland*" }, QDir::Files).isEmpty();
    });
}

} // namespace

Result<std::string> WindowSystem(const std::string& wanted)
{
    const bool wantsWayland = wanted.find("wayland") != std::string::npos;
    if (!wanted.empty() && !wantsWayland && wanted.find("xcb") == std::string::npos)
        return std::string();
    const Connection connection(xcb_connect(nullptr, nullptr));
    // The engine draws into X windows only, so a Wayland session with an X server beside it is used through that.
    if (xcb_connection_has_error(connection.get()) == 0)
        return std::string("xcb");
    const auto wayland = WaylandPath(wantsWayland ? "wayland-0" : "");
    if (IsWaylandThere(wayland))
        return HasWaylandPlugin() ? Result(std::string("wayland")) : Error{ 0, kNoWaylandPlugin };
    if (!wayland.empty())
        return Error{ 0,
            "No window can be shown: no X server can be reached, and nobody answers at the Wayland display \"" + wayland
                + "\". Please start Zentaro within a desktop session, or let DISPLAY or WAYLAND_DISPLAY name one." };
    // In memory a file can still be played or handed over.
    return std::string("offscreen");
}

// Window managers move and resize for the window, which begins each drag.
void TakeFrame(NativeWindow, FrameFace) { }

void ShowProgress(NativeWindow, int, int) { }

void SetTopmost(NativeWindow window, bool topmost)
{
    RequestState(window, topmost ? kAddState : kRemoveState, "_NET_WM_STATE_ABOVE");
}

void FlashWindowOnce(NativeWindow window)
{
    RequestState(window, kAddState, "_NET_WM_STATE_DEMANDS_ATTENTION");
}

void GrabByKeys(NativeWindow window, bool resizes)
{
    // Values of the window manager protocol's _NET_WM_MOVERESIZE message.
    constexpr std::uint32_t kSizeByKeys = 9;
    constexpr std::uint32_t kMoveByKeys = 10;
    Request(window, "_NET_WM_MOVERESIZE", [&](xcb_connection_t*, std::uint32_t* values) {
        values[2] = resizes ? kSizeByKeys : kMoveByKeys;
        values[4] = kFromApplication;
    });
}

bool HasGraphicsCard()
{
    const Connection display(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(display.get()) != 0)
        return false;
    // A server without a card offers none of the ways in which a client hands it finished card memory.
    for (const char* const name : { "DRI3", "DRI2", "NV-GLX" }) {
        const auto cookie = xcb_query_extension(display.get(), static_cast<std::uint16_t>(std::strlen(name)), name);
        const Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(display.get(), cookie, nullptr));
        if (reply && reply->present != 0)
            return true;
    }
    return false;
}

} // namespace zentaro::platform
