#include "tests/desktop/Desktop.h"

#include "tests/desktop/Reply.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <thread>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

namespace zentaro::desktop {

namespace {

// A window manager takes a little time to grab the pointer after a press.
constexpr auto kHandPause = 15ms;
constexpr int kDragSteps = 8;
constexpr std::uint32_t kMostNumbers = 4096;

std::string ReadDisplayNumber(int pipe)
{
    std::string text;
    char piece[16];
    while (text.find('\n') == std::string::npos) {
        const auto size = read(pipe, piece, sizeof piece);
        if (size <= 0)
            throw std::runtime_error("the virtual display did not start");
        text.append(piece, static_cast<std::size_t>(size));
    }
    return text.substr(0, text.find('\n'));
}

} // namespace

Desktop::Desktop(int width, int height, WindowManager manager)
    : m_width(width)
    , m_height(height)
{
    StartServer();
    Connect();
    if (manager == WindowManager::Openbox)
        StartWindowManager();
}

Desktop::~Desktop()
{
    xcb_disconnect(m_connection);
    m_windowManager.Kill();
    // Not killed: it takes its socket and lock file along.
    m_server.Signal(SIGTERM);
    m_server.WaitForEnd(5s);
}

void Desktop::StartServer()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    const auto size = std::to_string(m_width) + "x" + std::to_string(m_height) + "x24";
    m_server = Process({ .program = "/usr/bin/Xvfb",
        .arguments = { "-displayfd", "3", "-screen", "0", size, "-nolisten", "tcp", "-noreset" },
        .passedDescriptor = ends[1] });
    close(ends[1]);
    m_name = ":" + ReadDisplayNumber(ends[0]);
    close(ends[0]);
}

void Desktop::Connect()
{
    m_connection = xcb_connect(m_name.c_str(), nullptr);
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no connection to the virtual display");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

void Desktop::StartWindowManager()
{
    m_windowManager = Process(
        { .program = "/usr/bin/openbox", .arguments = { "--sm-disable" }, .environment = { { "DISPLAY", m_name } } });
    if (!WaitUntil([this] { return !Numbers(m_root, "_NET_SUPPORTING_WM_CHECK").empty(); }))
        throw std::runtime_error("the window manager did not start");
}

std::uint32_t Desktop::Atom(const std::string& name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : 0;
}

std::vector<std::uint32_t> Desktop::Numbers(Window window, const std::string& property) const
{
    const auto cookie =
        xcb_get_property(m_connection, 0, window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return { first, first + reply->value_len };
}

std::string Desktop::Text(Window window, const std::string& property) const
{
    const auto cookie =
        xcb_get_property(m_connection, 0, window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 8)
        return {};
    return { static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len };
}

std::vector<Window> Desktop::WindowsOf(pid_t process) const
{
    auto candidates = Numbers(m_root, "_NET_CLIENT_LIST");
    if (m_windowManager.Id() <= 0)
        candidates = ShownChildren(m_root);
    std::erase_if(candidates, [&](Window window) {
        return Numbers(window, "_NET_WM_PID") != std::vector<std::uint32_t>{ static_cast<std::uint32_t>(process) };
    });
    return candidates;
}

bool Desktop::IsDialog(Window window) const
{
    return !Numbers(window, "WM_TRANSIENT_FOR").empty();
}

std::string Desktop::Title(Window window) const
{
    return Text(window, "_NET_WM_NAME");
}

Rect Desktop::Place(Window window) const
{
    const auto size = xcb_get_geometry(m_connection, window);
    const auto corner = xcb_translate_coordinates(m_connection, window, m_root, 0, 0);
    const Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(m_connection, size, nullptr));
    const Reply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(m_connection, corner, nullptr));
    if (!geometry || !place)
        return {};
    return { place->dst_x, place->dst_y, geometry->width, geometry->height };
}

bool Desktop::HasState(Window window, const std::string& state) const
{
    const auto states = Numbers(window, "_NET_WM_STATE");
    return std::find(states.begin(), states.end(), Atom(state)) != states.end();
}

Window Desktop::Active() const
{
    const auto active = Numbers(m_root, "_NET_ACTIVE_WINDOW");
    return active.empty() ? 0 : active.front();
}

void Desktop::Activate(Window window)
{
    constexpr std::uint32_t kFromPager = 2;
    WaitUntil([&] {
        SendToRoot(window, "_NET_ACTIVE_WINDOW", { kFromPager });
        return WaitUntil([&] { return Active() == window; }, 1s);
    });
}

void Desktop::Close(Window window)
{
    SendToRoot(window, "_NET_CLOSE_WINDOW", { XCB_CURRENT_TIME, 2 });
}

void Desktop::SendToRoot(Window window, const std::string& message, std::initializer_list<std::uint32_t> values)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Atom(message);
    std::copy(values.begin(), values.end(), event.data.data32);
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&event));
    Synchronize();
}

std::vector<Window> Desktop::ShownChildren(Window window) const
{
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!tree)
        return {};
    const auto* const first = xcb_query_tree_children(tree.get());
    std::vector<Window> children(first, first + xcb_query_tree_children_length(tree.get()));
    std::erase_if(children, [this](Window child) {
        const Reply<xcb_get_window_attributes_reply_t> facts(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, child), nullptr));
        return !facts || facts->map_state != XCB_MAP_STATE_VIEWABLE;
    });
    return children;
}

std::size_t Desktop::CountInside(Window window) const
{
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!tree)
        return 0;
    const auto* const children = xcb_query_tree_children(tree.get());
    std::size_t count = tree->children_len;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        count += CountInside(children[i]);
    return count;
}

Picture Desktop::Grab(const Rect& area) const
{
    const int left = std::clamp(area.left, 0, m_width);
    const int top = std::clamp(area.top, 0, m_height);
    const int width = std::clamp(area.Right(), left, m_width) - left;
    const int height = std::clamp(area.Bottom(), top, m_height) - top;
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, static_cast<std::int16_t>(left),
        static_cast<std::int16_t>(top), static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), ~0U);
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_connection, cookie, nullptr));
    Picture picture{ width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width) * height) };
    const auto size = picture.pixels.size() * sizeof(std::uint32_t);
    if (!reply || static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) != size)
        return {};
    std::memcpy(picture.pixels.data(), xcb_get_image_data(reply.get()), size);
    return picture;
}

void Desktop::Fake(std::uint8_t type, std::uint8_t detail, int x, int y)
{
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root, static_cast<std::int16_t>(x),
        static_cast<std::int16_t>(y), 0);
    Synchronize();
}

void Desktop::Synchronize() const
{
    const Reply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

void Desktop::Press(std::uint32_t key, std::initializer_list<std::uint32_t> held)
{
    std::vector<std::uint32_t> keys(held);
    keys.push_back(key);
    auto* const symbols = xcb_key_symbols_alloc(m_connection);
    std::vector<std::uint8_t> codes;
    for (const auto each : keys) {
        const Reply<xcb_keycode_t> code(xcb_key_symbols_get_keycode(symbols, each));
        if (!code)
            throw std::runtime_error("the keyboard has no such key");
        codes.push_back(*code);
    }
    xcb_key_symbols_free(symbols);
    for (const auto code : codes)
        Fake(XCB_KEY_PRESS, code);
    std::reverse(codes.begin(), codes.end());
    for (const auto code : codes)
        Fake(XCB_KEY_RELEASE, code);
}

void Desktop::MoveTo(int x, int y)
{
    Fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void Desktop::Click(int x, int y, int button)
{
    // A hand needs as long; window managers that see a press first lose ones that come faster.
    constexpr auto pause = std::chrono::milliseconds(25);
    MoveTo(x, y);
    std::this_thread::sleep_for(pause);
    Fake(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button));
    std::this_thread::sleep_for(pause);
    Fake(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button));
    std::this_thread::sleep_for(pause);
}

void Desktop::DoubleClick(int x, int y)
{
    Click(x, y);
    Click(x, y);
}

void Desktop::Hold(int x, int y)
{
    MoveTo(x, y);
    Fake(XCB_BUTTON_PRESS, 1);
}

void Desktop::Release()
{
    Fake(XCB_BUTTON_RELEASE, 1);
}

void Desktop::Wheel(int x, int y, int steps)
{
    for (int i = 0; i < std::abs(steps); ++i)
        Click(x, y, steps > 0 ? 4 : 5);
}

void Desktop::Drag(int fromX, int fromY, int toX, int toY)
{
    MoveTo(fromX, fromY);
    Fake(XCB_BUTTON_PRESS, 1);
    std::this_thread::sleep_for(kHandPause);
    for (int step = 1; step <= kDragSteps; ++step) {
        MoveTo(fromX + (toX - fromX) * step / kDragSteps, fromY + (toY - fromY) * step / kDragSteps);
        std::this_thread::sleep_for(kHandPause);
    }
    Fake(XCB_BUTTON_RELEASE, 1);
}

Bystander::Bystander(Desktop& desktop)
    : m_desktop(desktop)
    , m_window(xcb_generate_id(desktop.Connection()))
{
    xcb_create_window(desktop.Connection(), XCB_COPY_FROM_PARENT, m_window, desktop.Root(), 0, 0, 60, 40, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(desktop.Connection(), m_window);
    desktop.Activate(m_window);
}

Bystander::~Bystander()
{
    xcb_destroy_window(m_desktop.Connection(), m_window);
    m_desktop.Synchronize();
}

} // namespace zentaro::desktop
