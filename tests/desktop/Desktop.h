#pragma once

#include "base/Geometry.h"
#include "tests/desktop/Process.h"

#include <QColor>
#include <QImage>

#include <functional>

struct _XDisplay;

namespace zentaro::trial {

using Window = unsigned long;

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
    Rect Area() const { return { 0, 0, m_width, m_height }; }
    Window Root() const { return m_root; }

    // windows
    /// Shown top-level windows of a process, oldest first, dialogs included.
    std::vector<Window> WindowsOf(pid_t process) const;
    /// Its open menus, the last one opened last.
    std::vector<Window> MenusOf(pid_t process) const;
    bool IsDialog(Window window) const { return !Numbers(window, "WM_TRANSIENT_FOR").empty(); }
    std::string Title(Window window) const;
    /// The client area on the screen.
    Rect Place(Window window) const;
    bool HasState(Window window, const char* state) const { return Has(window, "_NET_WM_STATE", state); }
    bool IsActive(Window window) const;
    void Activate(Window window);
    /// Asks the window manager to close it, as its own close button would.
    void Close(Window window);
    /// Child windows, bottom first.
    std::vector<Window> Children(Window window, bool onlyShown = true) const;
    /// The numbers, or bytes, of a property; none when the window has no such.
    std::vector<unsigned long> Numbers(Window window, const char* property) const;

    // what can be seen
    QImage Grab(const Rect& area) const;

    // the user's hands
    /// One key, as X names it, after those that are held: "Return", "ctrl+shift+p"; or several, with blanks between.
    void Type(const std::string& word) { Do("type --delay 30 " + word); }
    void Press(const std::string& keys) { Do("key --delay 30 " + keys); }
    void MoveTo(int x, int y) { Do("mousemove " + std::to_string(x) + " " + std::to_string(y)); }
    void Click(int x, int y, int button = 1, int times = 1)
    {
        MoveTo(x, y);
        Do("click --delay 30 --repeat " + std::to_string(times) + " " + std::to_string(button));
    }
    void DoubleClick(int x, int y) { Click(x, y, 1, 2); }
    /// The left button goes down here and stays down.
    void Hold(int x, int y)
    {
        MoveTo(x, y);
        Do("mousedown 1");
    }
    void Release();
    /// Positive: away from the user.
    void Wheel(int x, int y, int steps) { Click(x, y, steps > 0 ? 4 : 5, std::abs(steps)); }
    /// With the title bar or an edge of a window in the left hand, which lets go when `isThere`; whether it came so
    /// far.
    bool DragWindow(Window window, int fromX, int fromY, int toX, int toY, const std::function<bool()>& isThere);
    /// Drags files from another program's window to a place of the screen; false when nobody takes them there.
    bool DropFiles(int x, int y, const std::vector<std::string>& paths);
    /// Opens a panel at the top left of the screen and takes the next icon for the tray into it; 0 when none came.
    Window TakeTrayIcon();

private:
    void StartServer();
    void StartWindowManager();
    std::vector<Window> Of(pid_t process, std::vector<Window> windows) const;
    bool Has(Window window, const char* property, const char* value) const;
    unsigned long Atom(const char* name) const;
    void Send(Window to, Window window, const char* message, std::initializer_list<long> values) const;
    /// What xdotool is to do.
    void Do(const std::string& words) const;

    int m_width;
    int m_height;
    Process m_server;
    std::string m_name;
    Process m_windowManager;
    Process m_dragSource;
    _XDisplay* m_display = nullptr;
    Window m_root = 0;
};

QColor MeanOf(const QImage& picture);

/// The share of pixels, 0 to 1, where a colour part differs by more than 16 of 255; 1 where the sizes differ.
double ShareThatDiffers(const QImage& a, const QImage& b);

/// A program that lies beside this one.
std::string Helper(const std::string& name);

} // namespace zentaro::trial
