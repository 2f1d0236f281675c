#pragma once

#include "base/Geometry.h"
#include "tests/desktop/Picture.h"
#include "tests/desktop/Process.h"

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct xcb_connection_t;

namespace zentaro::desktop {

using Window = std::uint32_t;

/// Keys as the X protocol names them; letters and digits are their ASCII codes.
enum Key : std::uint32_t {
    kEscape = 0xff1b,
    kReturn = 0xff0d,
    kTab = 0xff09,
    kDelete = 0xffff,
    kHome = 0xff50,
    kLeft = 0xff51,
    kUp = 0xff52,
    kRight = 0xff53,
    kDown = 0xff54,
    kPageUp = 0xff55,
    kPageDown = 0xff56,
    kEnd = 0xff57,
    kF10 = 0xffc7,
    kShift = 0xffe1,
    kControl = 0xffe3,
    kAlt = 0xffe9,
};

/// A virtual display, its window manager, and a user in front of it: what can be seen, keys and mouse.
class Desktop {
public:
    enum class WindowManager { Openbox, None };

    /// In pixels. Throws when the display does not come up.
    explicit Desktop(int width = 1280, int height = 800, WindowManager manager = WindowManager::Openbox);
    Desktop(const Desktop&) = delete;
    ~Desktop();

    /// What DISPLAY is to be.
    const std::string& Name() const { return m_name; }
    xcb_connection_t* Connection() const { return m_connection; }
    Window Root() const { return m_root; }
    Rect Area() const { return { 0, 0, m_width, m_height }; }
    std::uint32_t Atom(const std::string& name) const;

    // windows
    /// Shown top-level windows of a process, oldest first, dialogs included.
    std::vector<Window> WindowsOf(pid_t process) const;
    bool IsDialog(Window window) const;
    std::string Title(Window window) const;
    /// The client area on the screen.
    Rect Place(Window window) const;
    bool HasState(Window window, const std::string& state) const;
    Window Active() const;
    void Activate(Window window);
    /// Asks the window manager to close it, as its own close button would.
    void Close(Window window);
    /// Child windows that are shown, bottom first.
    std::vector<Window> ShownChildren(Window window) const;
    /// Windows inside it at any depth, hidden ones included.
    std::size_t CountInside(Window window) const;
    /// The numbers of a property, or none.
    std::vector<std::uint32_t> Numbers(Window window, const std::string& property) const;

    // what can be seen
    Picture Grab(const Rect& area) const;

    // the user's hands
    void Press(std::uint32_t key, std::initializer_list<std::uint32_t> held = {});
    void MoveTo(int x, int y);
    void Click(int x, int y, int button = 1);
    void DoubleClick(int x, int y);
    /// The left button goes down here and stays down.
    void Hold(int x, int y);
    void Release();
    /// Positive: away from the user.
    void Wheel(int x, int y, int steps);
    /// With the left button, in several steps, as a hand moves.
    void Drag(int fromX, int fromY, int toX, int toY);
    /// Drops files from a file manager at a place of the screen; false when nobody took them there.
    bool DropFiles(int x, int y, const std::vector<std::string>& paths);

    /// Answers everything that was asked before.
    void Synchronize() const;

private:
    void StartServer();
    void Connect();
    void StartWindowManager();
    void Fake(std::uint8_t type, std::uint8_t detail, int x = 0, int y = 0);
    void SendToRoot(Window window, const std::string& message, std::initializer_list<std::uint32_t> values);
    std::string Text(Window window, const std::string& property) const;

    int m_width;
    int m_height;
    std::string m_name;
    Process m_server;
    Process m_windowManager;
    xcb_connection_t* m_connection = nullptr;
    Window m_root = 0;
};

/// A window of somebody else, which has the focus while it lives.
class Bystander {
public:
    explicit Bystander(Desktop& desktop);
    ~Bystander();

private:
    Desktop& m_desktop;
    Window m_window;
};

} // namespace zentaro::desktop
