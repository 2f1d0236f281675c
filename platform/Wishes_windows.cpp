#include "platform/Wishes.h"

#include <utility>
#include <windows.h>

namespace zentaro::platform {
namespace {

std::uint32_t ColourOf(int element)
{
    const auto colour = GetSysColor(element);
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8
        | GetBValue(colour);
}

double TextScale()
{
    DWORD percent = 100;
    DWORD size = sizeof percent;
    RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor", RRF_RT_REG_DWORD,
        nullptr, &percent, &size);
    return percent > 100 && percent <= 225 ? percent / 100.0 : 1;
}

/// News for all programs comes to top-level windows, shown or not.
class NewsWindow : public WishWatch {
public:
    explicit NewsWindow(std::function<void(const Wishes&)> changed)
        : m_changed(std::move(changed))
    {
        WNDCLASSW look{};
        look.lpfnWndProc = &OnMessage;
        look.hInstance = GetModuleHandleW(nullptr);
        look.lpszClassName = L"ZentaroWishes";
        RegisterClassW(&look);
        m_window = CreateWindowExW(
            0, look.lpszClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, look.hInstance, nullptr);
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~NewsWindow() override { DestroyWindow(m_window); }
    bool IsOpen() const { return m_window != nullptr; }

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM first, LPARAM second)
    {
        const auto* const watch = reinterpret_cast<const NewsWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (watch != nullptr && (message == WM_SETTINGCHANGE || message == WM_SYSCOLORCHANGE))
            watch->m_changed(SystemWishes());
        return DefWindowProcW(window, message, first, second);
    }

    std::function<void(const Wishes&)> m_changed;
    HWND m_window = nullptr;
};

} // namespace

std::unique_ptr<WishWatch> WishWatch::Open(std::function<void(const Wishes&)> changed)
{
    auto watch = std::make_unique<NewsWindow>(std::move(changed));
    return watch->IsOpen() ? std::move(watch) : nullptr;
}

Wishes SystemWishes()
{
    Wishes wishes;
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    wishes.highContrast = SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0
        && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
    if (wishes.highContrast)
        wishes.colours = { ColourOf(COLOR_WINDOW), ColourOf(COLOR_WINDOWTEXT), ColourOf(COLOR_HIGHLIGHT),
            ColourOf(COLOR_HIGHLIGHTTEXT), ColourOf(COLOR_HOTLIGHT), ColourOf(COLOR_GRAYTEXT) };
    BOOL animates = TRUE;
    wishes.lessMotion = SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animates, 0) != 0 && animates == FALSE;
    wishes.textScale = TextScale();
    return wishes;
}

} // namespace zentaro::platform
