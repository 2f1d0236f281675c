#include "platform/Window.h"

#include "platform/Com_windows.h"

#include <memory>
#include <type_traits>
#include <utility>
#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>
#include <dwmapi.h>
#include <shellapi.h>
#include <shobjidl.h>

namespace zentaro::platform {

using desktop::FramePart;

namespace {

constexpr UINT_PTR kFrameId = 1;
constexpr DWORD kCornerPreference = 33; // DWMWA_WINDOW_CORNER_PREFERENCE, of Windows 11
constexpr DWORD kRoundCorners = 2;

HWND HandleOf(NativeWindow window)
{
    return reinterpret_cast<HWND>(window);
}

LRESULT HitCode(FramePart part)
{
    switch (part) {
    case FramePart::Caption:
        return HTCAPTION;
    case FramePart::Menu:
        return HTSYSMENU;
    case FramePart::Left:
        return HTLEFT;
    case FramePart::TopLeft:
        return HTTOPLEFT;
    case FramePart::Top:
        return HTTOP;
    case FramePart::TopRight:
        return HTTOPRIGHT;
    case FramePart::Right:
        return HTRIGHT;
    case FramePart::BottomRight:
        return HTBOTTOMRIGHT;
    case FramePart::Bottom:
        return HTBOTTOM;
    case FramePart::BottomLeft:
        return HTBOTTOMLEFT;
    case FramePart::Content:
        break;
    }
    return HTCLIENT;
}

MONITORINFO MonitorOf(HWND window)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info;
}

Rect FromSystem(const RECT& rect)
{
    return { rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top };
}

bool HidesBarAt(UINT edge, const RECT& monitor)
{
    APPBARDATA data{};
    data.cbSize = sizeof data;
    data.uEdge = edge;
    data.rc = monitor;
    constexpr DWORD kOfMonitor = 11; // ABM_GETAUTOHIDEBAREX
    return SHAppBarMessage(kOfMonitor, &data) != 0;
}

Rect MaximizedAreaOf(const MONITORINFO& monitor)
{
    const auto hides = [&](UINT edge) { return HidesBarAt(edge, monitor.rcMonitor); };
    return desktop::MaximizedArea(
        FromSystem(monitor.rcWork), { hides(ABE_LEFT), hides(ABE_TOP), hides(ABE_RIGHT), hides(ABE_BOTTOM) });
}

bool FillsMonitor(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return FromSystem(place) == FromSystem(MonitorOf(window).rcMonitor);
}

void ShowSystemMenu(HWND window, int x, int y)
{
    const HMENU menu = GetSystemMenu(window, FALSE);
    const auto items = desktop::SystemMenuOf(IsZoomed(window), IsIconic(window), FillsMonitor(window));
    for (const auto& [item, canBeChosen] : { std::pair(SC_RESTORE, items.restore), std::pair(SC_MOVE, items.move),
             std::pair(SC_SIZE, items.size), std::pair(SC_MAXIMIZE, items.maximize) })
        EnableMenuItem(menu, item, MF_BYCOMMAND | (canBeChosen ? MF_ENABLED : MF_GRAYED));
    SetMenuDefaultItem(menu, SC_CLOSE, FALSE);
    const auto chosen = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, x, y, 0, window, nullptr);
    if (chosen != 0)
        PostMessageW(window, WM_SYSCOMMAND, static_cast<WPARAM>(chosen), 0);
}

void FillMaximized(HWND window, MINMAXINFO& info)
{
    const auto monitor = MonitorOf(window);
    const auto area = MaximizedAreaOf(monitor);
    // The place counts from the monitor's corner.
    info.ptMaxPosition = { area.left - monitor.rcMonitor.left, area.top - monitor.rcMonitor.top };
    info.ptMaxSize = { area.width, area.height };
}

void WatchForRest(HWND window)
{
    TRACKMOUSEEVENT track{};
    track.cbSize = sizeof track;
    track.dwFlags = TME_HOVER | TME_NONCLIENT;
    track.hwndTrack = window;
    track.dwHoverTime = HOVER_DEFAULT;
    TrackMouseEvent(&track);
}

LRESULT CALLBACK OnFrameMessage(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR data)
{
    auto* const face = reinterpret_cast<FrameFace*>(data);
    switch (message) {
    case WM_NCCALCSIZE:
        // All of the window is ours to paint; what it would give to a frame of the system is not taken off.
        if (first != 0 && IsZoomed(window)) {
            const auto area = MaximizedAreaOf(MonitorOf(window));
            auto& place = reinterpret_cast<NCCALCSIZE_PARAMS*>(second)->rgrc[0];
            place = { area.left, area.top, area.Right(), area.Bottom() };
        }
        if (first != 0)
            return 0;
        break;
    case WM_NCHITTEST: {
        POINT at{ GET_X_LPARAM(second), GET_Y_LPARAM(second) };
        ScreenToClient(window, &at);
        return HitCode(face->partAt(at.x, at.y));
    }
    case WM_GETMINMAXINFO: {
        const auto result = DefSubclassProc(window, message, first, second);
        FillMaximized(window, *reinterpret_cast<MINMAXINFO*>(second));
        return result;
    }
    case WM_NCACTIVATE:
        // No frame is to be painted anew.
        return DefWindowProcW(window, message, first, -1);
    case WM_NCMOUSEMOVE:
        if (first == HTCAPTION)
            WatchForRest(window);
        break;
    case WM_NCMOUSEHOVER:
        face->rests();
        break;
    case WM_NCRBUTTONUP:
        if (first == HTCAPTION || first == HTSYSMENU) {
            ShowSystemMenu(window, GET_X_LPARAM(second), GET_Y_LPARAM(second));
            return 0;
        }
        break;
    case WM_SYSKEYDOWN:
        if (first == VK_SPACE) {
            RECT place{};
            GetWindowRect(window, &place);
            ShowSystemMenu(window, place.left, place.top);
            return 0;
        }
        break;
    case WM_SYSCHAR:
        if (first == VK_SPACE)
            return 0;
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(window, &OnFrameMessage, kFrameId);
        delete face;
        break;
    default:
        break;
    }
    return DefSubclassProc(window, message, first, second);
}

} // namespace

Result<std::string> WindowSystem(const std::string&)
{
    return std::string();
}

void TakeFrame(NativeWindow window, FrameFace face)
{
    const auto handle = HandleOf(window);
    auto kept = std::make_unique<FrameFace>(std::move(face));
    if (!SetWindowSubclass(handle, &OnFrameMessage, kFrameId, reinterpret_cast<DWORD_PTR>(kept.get())))
        return;
    static_cast<void>(kept.release()); // the window deletes it at its end
    // Whoever has these styles is snapped, shaken, minimised and maximised by the system.
    const auto style = GetWindowLongPtrW(handle, GWL_STYLE);
    SetWindowLongPtrW(
        handle, GWL_STYLE, style | WS_THICKFRAME | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
    // A frame of one line that reaches into the window: the system draws its shadow for that.
    const MARGINS margins{ 0, 0, 0, 1 };
    DwmExtendFrameIntoClientArea(handle, &margins);
    DwmSetWindowAttribute(handle, kCornerPreference, &kRoundCorners, sizeof kRoundCorners);
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
        SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void ShowProgress(NativeWindow window, int done, int total)
{
    // One file is opened in a moment.
    const bool isLong = total > 1;
    static bool isShown = false;
    if (!isLong && !isShown)
        return;
    isShown = isLong;
    static const auto taskbar = [] {
        ITaskbarList3* made = nullptr;
        CoCreateInstance(
            CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, reinterpret_cast<void**>(&made));
        return std::unique_ptr<ITaskbarList3, ReleaseObject>(made);
    }();
    if (!taskbar)
        return;
    taskbar->SetProgressState(HandleOf(window), isLong ? TBPF_NORMAL : TBPF_NOPROGRESS);
    if (isLong)
        taskbar->SetProgressValue(HandleOf(window), static_cast<ULONGLONG>(done), static_cast<ULONGLONG>(total));
}

void SetTopmost(NativeWindow window, bool topmost)
{
    SetWindowPos(HandleOf(window), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

void FlashWindowOnce(NativeWindow window)
{
    FlashWindow(HandleOf(window), TRUE);
}

void GrabByKeys(NativeWindow window, bool resizes)
{
    PostMessageW(HandleOf(window), WM_SYSCOMMAND, resizes ? SC_SIZE : SC_MOVE, 0);
}

// Direct3D brings a software renderer of its own and chooses by itself.
bool HasGraphicsCard()
{
    return true;
}

} // namespace zentaro::platform
