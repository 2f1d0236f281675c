#include "tests/desktop/Desktop.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <stdexcept>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace zentaro::trial {

Desktop::Desktop(int width, int height, WindowManager manager)
    : m_width(width)
    , m_height(height)
{
    StartServer();
    // A window that has just gone is no error.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    m_display = XOpenDisplay(m_name.c_str());
    if (m_display == nullptr)
        throw std::runtime_error("no connection to the virtual display");
    m_root = DefaultRootWindow(m_display);
    if (manager == WindowManager::Openbox)
        StartWindowManager();
}

void Desktop::StartWindowManager()
{
    // Without its mouse bindings: to look at each press first, it holds the pointer, and on a busy machine clicks get
    // lost.
    const std::string settings = "<openbox_config xmlns=\"http://openbox.org/3.4/rc\"><mouse/></openbox_config>";
    m_windowManager = Process({ "DISPLAY=" + m_name, "bash", "-c",
        "exec openbox --sm-disable --config-file /dev/stdin <<<'" + settings + "'" });
    if (!WaitUntil([this] { return !Numbers(m_root, "_NET_SUPPORTING_WM_CHECK").empty(); }))
        throw std::runtime_error("the window manager did not start");
}

Desktop::~Desktop()
{
    if (m_display != nullptr)
        XCloseDisplay(m_display);
    m_dragSource.Kill();
    m_windowManager.Kill();
    // Not killed: it takes its socket and lock file along.
    m_server.Signal(SIGTERM);
    m_server.WaitForEnd();
}

void Desktop::StartServer()
{
    const auto size = std::to_string(m_width) + "x" + std::to_string(m_height) + "x24";
    m_server =
        Process({ "sh", "-c", "exec Xvfb -displayfd 1 -screen 0 " + size + " -nolisten tcp -noreset 2>/dev/null" });
    if (!WaitUntil([&] { return m_server.Output().ends_with('\n') || !m_server.IsRunning(); }) || !m_server.IsRunning())
        throw std::runtime_error("the virtual display did not start");
    m_name = ":" + std::to_string(std::stoi(m_server.Output()));
}

unsigned long Desktop::Atom(const char* name) const
{
    return XInternAtom(m_display, name, False);
}

std::vector<unsigned long> Desktop::Numbers(Window window, const char* property) const
{
    constexpr long kMost = 4096;
    unsigned long type = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    int format = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(
        m_display, window, Atom(property), 0, kMost, False, AnyPropertyType, &type, &format, &count, &left, &bytes);
    std::vector<unsigned long> numbers;
    if (bytes != nullptr && format == 32)
        numbers.assign(reinterpret_cast<unsigned long*>(bytes), reinterpret_cast<unsigned long*>(bytes) + count);
    else if (bytes != nullptr && format == 8)
        numbers.assign(bytes, bytes + count);
    XFree(bytes);
    return numbers;
}

std::vector<Window> Desktop::Of(pid_t process, std::vector<Window> windows) const
{
    std::erase_if(windows, [&](Window window) {
        return Numbers(window, "_NET_WM_PID") != std::vector{ static_cast<unsigned long>(process) };
    });
    return windows;
}

std::vector<Window> Desktop::WindowsOf(pid_t process) const
{
    return Of(process, m_windowManager.Id() > 0 ? Numbers(m_root, "_NET_CLIENT_LIST") : Children(m_root));
}

std::vector<Window> Desktop::MenusOf(pid_t process) const
{
    auto windows = Of(process, Children(m_root));
    std::erase_if(
        windows, [&](Window window) { return Has(window, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_TOOLTIP"); });
    return windows;
}

std::string Desktop::Title(Window window) const
{
    std::string title;
    for (const auto byte : Numbers(window, "_NET_WM_NAME"))
        title += static_cast<char>(byte);
    return title;
}

Rect Desktop::Place(Window window) const
{
    XWindowAttributes facts{};
    Window child = 0;
    int left = 0;
    int top = 0;
    if (XGetWindowAttributes(m_display, window, &facts) == 0
        || XTranslateCoordinates(m_display, window, m_root, 0, 0, &left, &top, &child) == 0)
        return {};
    return { left, top, facts.width, facts.height };
}

bool Desktop::Has(Window window, const char* property, const char* value) const
{
    const auto values = Numbers(window, property);
    return std::find(values.begin(), values.end(), Atom(value)) != values.end();
}

bool Desktop::IsActive(Window window) const
{
    // The window manager says so a moment before the keys go there.
    Window focus = 0;
    int ignored = 0;
    XGetInputFocus(m_display, &focus, &ignored);
    return Numbers(m_root, "_NET_ACTIVE_WINDOW") == std::vector{ window } && focus != m_root && focus > PointerRoot;
}

void Desktop::Activate(Window window)
{
    constexpr long kFromPager = 2;
    WaitUntil([&] {
        Send(m_root, window, "_NET_ACTIVE_WINDOW", { kFromPager });
        return WaitUntil([&] { return IsActive(window); }, 1s);
    });
}

void Desktop::Close(Window window)
{
    Send(m_root, window, "_NET_CLOSE_WINDOW", { CurrentTime, 2 });
}

void Desktop::Send(Window to, Window window, const char* message, std::initializer_list<long> values) const
{
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = Atom(message);
    event.xclient.format = 32;
    std::copy(values.begin(), values.end(), event.xclient.data.l);
    // To everybody, to the window manager, or to the window alone.
    const long mask = window == m_root ? StructureNotifyMask
        : to == m_root                 ? SubstructureNotifyMask | SubstructureRedirectMask
                                       : NoEventMask;
    XSendEvent(m_display, to, False, mask, &event);
    XSync(m_display, False);
}

std::vector<Window> Desktop::Children(Window window, bool onlyShown) const
{
    Window root = 0;
    Window parent = 0;
    Window* first = nullptr;
    unsigned count = 0;
    if (XQueryTree(m_display, window, &root, &parent, &first, &count) == 0)
        return {};
    std::vector<Window> children(first, first + count);
    XFree(first);
    std::erase_if(children, [&](Window child) {
        XWindowAttributes facts{};
        return onlyShown && (XGetWindowAttributes(m_display, child, &facts) == 0 || facts.map_state != IsViewable);
    });
    return children;
}

QImage Desktop::Grab(const Rect& area) const
{
    const auto part = QRect(area.left, area.top, area.width, area.height).intersected({ 0, 0, m_width, m_height });
    auto* const image = part.isEmpty()
        ? nullptr
        : XGetImage(m_display, m_root, part.x(), part.y(), static_cast<unsigned>(part.width()),
            static_cast<unsigned>(part.height()), AllPlanes, ZPixmap);
    if (image == nullptr)
        return {};
    const auto* const bytes = reinterpret_cast<const uchar*>(image->data);
    const auto picture = QImage(bytes, image->width, image->height, image->bytes_per_line, QImage::Format_RGB32).copy();
    XDestroyImage(image);
    return picture;
}

void Desktop::Do(const std::string& words) const
{
    Process tool(Words("DISPLAY=" + m_name + " xdotool " + words));
    if (tool.WaitForEnd() != 0)
        throw std::runtime_error("the hand cannot do that: " + tool.Output());
}

void Desktop::Release()
{
    Do("mouseup 1");
    // A window manager that moves a window holds the pointer until it has seen the end.
    WaitUntil([&] {
        return XGrabPointer(m_display, m_root, False, 0, GrabModeAsync, GrabModeAsync, None, None, CurrentTime)
            == GrabSuccess;
    });
    XUngrabPointer(m_display, CurrentTime);
    XSync(m_display, False);
}

bool Desktop::DragWindow(Window window, int fromX, int fromY, int toX, int toY, const std::function<bool()>& isThere)
{
    constexpr int kSteps = 8;
    // A busy machine's window manager can take hold of a window when the hand is on its way already: then once more
    // from where the hand let go.
    return WaitUntil([&] {
        const auto before = Place(window);
        Hold(fromX, fromY);
        for (int step = 1; step <= kSteps; ++step) {
            MoveTo(fromX + (toX - fromX) * step / kSteps, fromY + (toY - fromY) * step / kSteps);
            std::this_thread::sleep_for(20ms);
        }
        const bool came = WaitUntil(isThere, 5s);
        Release();
        const auto now = Place(window);
        fromX += now.left != before.left ? now.left - before.left : now.Right() - before.Right();
        fromY += now.top != before.top ? now.top - before.top : now.Bottom() - before.Bottom();
        return came;
    });
}

bool Desktop::DropFiles(int x, int y, const std::vector<std::string>& paths)
{
    std::vector<std::string> command = { "DISPLAY=" + m_name, Helper("drag") };
    command.insert(command.end(), paths.begin(), paths.end());
    m_dragSource = Process(command);
    const auto says = [this](const char* word) { return m_dragSource.Output().ends_with(word); };
    WaitUntil([&] { return says("shown\n"); });
    Hold(5, 5);
    // At once to the place: whoever takes the files on the way would get them there.
    const bool isTaken = WaitUntil([&, step = 0]() mutable {
        MoveTo(x + ++step % 2, y);
        return says("taken\n");
    });
    Release();
    return isTaken && WaitUntil([&] { return says("dropped\n"); });
}

Window Desktop::TakeTrayIcon()
{
    constexpr int kIconSize = 24; // px
    XSetWindowAttributes values{};
    values.override_redirect = True;
    values.background_pixel = 0x404040;
    const auto panel = XCreateWindow(m_display, m_root, 0, 0, 2 * kIconSize, kIconSize, 0, CopyFromParent, InputOutput,
        nullptr, CWOverrideRedirect | CWBackPixel, &values);
    XMapWindow(m_display, panel);
    const auto selection = Atom("_NET_SYSTEM_TRAY_S0");
    XSetSelectionOwner(m_display, selection, panel, CurrentTime);
    Send(m_root, m_root, "MANAGER", { CurrentTime, static_cast<long>(selection), static_cast<long>(panel) });
    Window icon = 0;
    WaitUntil([&] {
        XEvent event;
        while (XCheckTypedWindowEvent(m_display, panel, ClientMessage, &event) != 0) {
            if (event.xclient.message_type != Atom("_NET_SYSTEM_TRAY_OPCODE"))
                continue;
            icon = static_cast<Window>(event.xclient.data.l[2]);
            XReparentWindow(m_display, icon, panel, 0, 0);
            XResizeWindow(m_display, icon, kIconSize, kIconSize);
            XMapWindow(m_display, icon);
            Send(icon, icon, "_XEMBED", { CurrentTime, 0, 0, static_cast<long>(panel), 0 });
        }
        return icon != 0 && !Children(panel).empty();
    });
    return icon;
}

QColor MeanOf(const QImage& picture)
{
    const auto mean = [&] { return picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation); };
    return picture.isNull() ? QColor(Qt::black) : mean().pixelColor(0, 0);
}

double ShareThatDiffers(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return 1;
    int different = 0;
    for (int i = 0; i < a.width() * a.height(); ++i) {
        const auto first = a.pixelColor(i % a.width(), i / a.width());
        const auto second = b.pixelColor(i % a.width(), i / a.width());
        different += std::abs(first.red() - second.red()) > 16 || std::abs(first.green() - second.green()) > 16
            || std::abs(first.blue() - second.blue()) > 16;
    }
    return static_cast<double>(different) / (a.width() * a.height());
}

std::string Helper(const std::string& name)
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / ("zentaro-helper-" + name);
}

} // namespace zentaro::trial
