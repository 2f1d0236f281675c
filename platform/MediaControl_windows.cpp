#include "platform/MediaControl.h"

#include "desktop/WindowsRules.h"
#include "platform/Com_windows.h"
#include "platform/JumpList_windows.h"
#include "platform/SystemMedia_windows.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>
#include <windows.h>

#include <commctrl.h>
#include <shobjidl.h>

namespace zentaro::platform {

namespace {

using Kind = MediaCommand::Kind;

constexpr UINT_PTR kControlId = 2;

struct MediaKey {
    UINT key;
    Kind kind;
};
constexpr MediaKey kKeys[] = { { VK_MEDIA_PLAY_PAUSE, Kind::PlayPause }, { VK_MEDIA_STOP, Kind::Stop },
    { VK_MEDIA_NEXT_TRACK, Kind::Next }, { VK_MEDIA_PREV_TRACK, Kind::Previous } };

/// The buttons at the taskbar, in their order there.
enum class Sign { Previous, Play, Pause, Next };
struct TaskbarButton {
    Kind kind;
    const wchar_t* text;
};
constexpr TaskbarButton kButtons[] = { { Kind::Previous, L"Previous" }, { Kind::PlayPause, L"Play or pause" },
    { Kind::Next, L"Next" } };

struct CloseIcon {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, CloseIcon>;

/// Whether a point of the unit square belongs to the sign.
bool IsInSign(Sign sign, double x, double y)
{
    constexpr double kEdge = 0.15;
    if (y < kEdge || y > 1 - kEdge)
        return false;
    if (sign == Sign::Pause)
        return (x > 0.2 && x < 0.42) || (x > 0.58 && x < 0.8);
    if (sign == Sign::Previous)
        x = 1 - x;
    const double half = 0.5 - std::abs(y - 0.5) - kEdge; // 0 at the corners, 0.35 at the tip's height
    if (sign == Sign::Play)
        return x > 0.22 && x < 0.22 + half * 1.8;
    return (x > 0.12 && x < 0.12 + half * 1.7) || (x > 0.74 && x < 0.88);
}

/// White on nothing, as the taskbar wants it; drawn here because it asks for the size of this display.
Icon MakeIcon(Sign sign)
{
    const int side = GetSystemMetrics(SM_CXSMICON);
    constexpr int kFine = 4; // looks for each pixel along one side
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < side * side; ++i) {
        std::uint32_t hits = 0;
        for (int j = 0; j < kFine * kFine; ++j) {
            const double x = (i % side + (j % kFine + 0.5) / kFine) / side;
            const double y = (i / side + (j / kFine + 0.5) / kFine) / side;
            hits += IsInSign(sign, x, y) ? 1U : 0U;
        }
        const std::uint32_t alpha = hits * 255 / (kFine * kFine);
        pixels.push_back(alpha << 24 | 0xFFFFFF);
    }
    const std::vector<std::uint8_t> mask(static_cast<std::size_t>(side * side), 0);
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = CreateBitmap(side, side, 1, 32, pixels.data());
    info.hbmMask = CreateBitmap(side, side, 1, 1, mask.data());
    Icon icon(CreateIconIndirect(&info));
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return icon;
}

class TaskbarControl : public MediaControl {
public:
    TaskbarControl(std::function<void(MediaCommand)> onCommand, HWND window)
        : m_onCommand(std::move(onCommand))
        , m_window(window)
        , m_buttonCreated(RegisterWindowMessageA("TaskbarButtonCreated"))
        , m_systemAsks(RegisterWindowMessageA("ZentaroSystemMediaAsks"))
    {
        for (int sign = 0; sign < static_cast<int>(m_icons.size()); ++sign)
            m_icons[static_cast<std::size_t>(sign)] = MakeIcon(static_cast<Sign>(sign));
        SetWindowSubclass(m_window, &OnMessage, kControlId, reinterpret_cast<DWORD_PTR>(this));
    }
    ~TaskbarControl() override
    {
        HoldKeys(false);
        RemoveWindowSubclass(m_window, &OnMessage, kControlId);
    }

    void Publish(MediaStatus status) override
    {
        if (status.recent != m_status.recent)
            ShowJumpList(status.recent);
        m_status = std::move(status);
        const bool isLoaded = m_status.playback != MediaPlayback::Stopped;
        // Not before something plays: the system loads much for it.
        if (isLoaded && !std::exchange(m_hasLooked, true))
            m_systemMedia = SystemMedia::Open(m_window, m_systemAsks);
        if (m_systemMedia)
            m_systemMedia->Show(m_status);
        // Where the system knows who plays, the keys of other windows are its business.
        HoldKeys(isLoaded && !m_systemMedia);
        ShowButtons();
    }

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR data)
    {
        auto& self = *reinterpret_cast<TaskbarControl*>(data);
        if (message == self.m_buttonCreated)
            self.MakeButtons();
        if (message == WM_HOTKEY && first < std::size(kKeys)) {
            self.m_onCommand({ kKeys[first].kind });
            return 0;
        }
        if (message == WM_COMMAND && HIWORD(first) == THBN_CLICKED && LOWORD(first) < std::size(kButtons)) {
            self.m_onCommand({ kButtons[LOWORD(first)].kind });
            return 0;
        }
        if (message == WM_APPCOMMAND) {
            if (const auto kind = desktop::KindOfAppCommand(GET_APPCOMMAND_LPARAM(second))) {
                self.KeyCame(desktop::MediaKeys::Way::Window, *kind);
                return TRUE;
            }
        }
        if (message == self.m_systemAsks) {
            self.SystemAsks(first, second);
            return 0;
        }
        return DefSubclassProc(window, message, first, second);
    }

    void KeyCame(desktop::MediaKeys::Way way, Kind kind)
    {
        if (m_keys.Acts(way, kind, std::chrono::steady_clock::now()))
            m_onCommand({ kind });
    }

    void SystemAsks(WPARAM asked, LPARAM value)
    {
        if (asked == SystemMedia::Place && value >= 0)
            return m_onCommand(
                { .kind = Kind::SetPosition, .number = static_cast<double>(value), .track = m_status.track.id });
        const auto kind =
            asked == SystemMedia::Button ? desktop::KindOfSystemButton(static_cast<int>(value)) : std::nullopt;
        if (kind)
            KeyCame(desktop::MediaKeys::Way::System, *kind);
    }

    /// Keys of other windows, too; while nothing is loaded they belong to other players.
    void HoldKeys(bool held)
    {
        if (std::exchange(m_holdsKeys, held) == held)
            return;
        for (std::size_t i = 0; i < std::size(kKeys); ++i) {
            const auto id = static_cast<int>(i);
            held ? RegisterHotKey(m_window, id, MOD_NOREPEAT, kKeys[i].key) : UnregisterHotKey(m_window, id);
        }
    }

    std::array<THUMBBUTTON, std::size(kButtons)> Buttons() const
    {
        std::array<THUMBBUTTON, std::size(kButtons)> buttons{};
        const auto look = desktop::TaskbarLookOf(m_status);
        for (UINT i = 0; i < buttons.size(); ++i) {
            auto& button = buttons[i];
            button.dwMask = THB_ICON | THB_TOOLTIP | THB_FLAGS;
            button.iId = i;
            const auto sign = i == 0 ? Sign::Previous
                : i == 2             ? Sign::Next
                : look.showsPause    ? Sign::Pause
                                     : Sign::Play;
            button.hIcon = m_icons[static_cast<std::size_t>(sign)].get();
            const std::wstring_view text = kButtons[i].text;
            text.copy(button.szTip, text.size());
            button.dwFlags = (i == 1 ? look.canPlay : look.canStep) ? THBF_ENABLED : THBF_DISABLED;
        }
        return buttons;
    }

    void MakeButtons()
    {
        ITaskbarList3* made = nullptr;
        CoCreateInstance(
            CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, reinterpret_cast<void**>(&made));
        m_taskbar.reset(made);
        auto buttons = Buttons();
        if (m_taskbar)
            m_taskbar->ThumbBarAddButtons(m_window, buttons.size(), buttons.data());
    }

    void ShowButtons()
    {
        auto buttons = Buttons();
        if (m_taskbar)
            m_taskbar->ThumbBarUpdateButtons(m_window, buttons.size(), buttons.data());
    }

    std::function<void(MediaCommand)> m_onCommand;
    HWND m_window;
    UINT m_buttonCreated;
    UINT m_systemAsks;
    MediaStatus m_status;
    std::array<Icon, 4> m_icons;
    Held<ITaskbarList3> m_taskbar;
    std::unique_ptr<SystemMedia> m_systemMedia; // null before something has played, and where there is none
    desktop::MediaKeys m_keys;
    bool m_hasLooked = false;
    bool m_holdsKeys = false;
};

} // namespace

std::unique_ptr<MediaControl> MediaControl::Open(std::function<void(MediaCommand)> onCommand, NativeWindow window)
{
    return std::make_unique<TaskbarControl>(std::move(onCommand), reinterpret_cast<HWND>(window));
}

} // namespace zentaro::platform
