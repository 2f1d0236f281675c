#include "platform/HandOver.h"
#include "platform/HandOverRules.h"
#include "platform/SystemError_windows.h"

#include <deque>
#include <utility>
#include <windows.h>

namespace zentaro::platform {
namespace {

    constexpr char kClassName[] = "ZentaroHandOver";

    HWND WindowOf(const std::string& handle)
    {
        const auto number = ParseHandOverHandle(handle);
        return number ? reinterpret_cast<HWND>(static_cast<std::uintptr_t>(*number)) : nullptr;
    }

    std::string HandleOf(HWND window) { return std::to_string(reinterpret_cast<std::uintptr_t>(window)); }

    std::string TextOf(HWND box)
    {
        std::string text(static_cast<std::size_t>(GetWindowTextLengthA(box)) + 1, '\0');
        // The length above is a bound; this one is exact.
        const int size = GetWindowTextA(box, text.data(), static_cast<int>(text.size()));
        text.resize(static_cast<std::size_t>(size));
        return text;
    }

    /// A parent that is never shown, and in it the two text boxes: a change of the first is reported to the parent
    /// while the sender still waits.
    class TextBoxes : public HandOverEnds {
    public:
        ~TextBoxes() override
        {
            if (m_parent)
                DestroyWindow(m_parent); // with its boxes
        }

        Result<void> Create()
        {
            const HINSTANCE instance = GetModuleHandleA(nullptr);
            WNDCLASSA definition {};
            definition.lpfnWndProc = OnMessage;
            definition.hInstance = instance;
            definition.lpszClassName = kClassName;
            RegisterClassA(&definition); // fails when it is there already, which is as good
            m_parent = CreateWindowExA(
                0, kClassName, "", WS_POPUP, 0, 0, 0, 0, HWND_MESSAGE, nullptr, instance, nullptr);
            if (!m_parent)
                return SystemError("Cannot make a window", GetLastError());
            SetWindowLongPtrA(m_parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
            m_command = CreateBox(instance);
            m_probe = CreateBox(instance);
            if (!m_command || !m_probe)
                return SystemError("Cannot make a text box", GetLastError());
            return {};
        }

        std::string CommandHandle() const override { return HandleOf(m_command); }
        std::string ProbeHandle() const override { return HandleOf(m_probe); }

        void Deliver(std::function<void(std::string)> onCommand) override
        {
            m_handler = std::move(onCommand);
            for (auto& text : std::exchange(m_early, {}))
                m_handler(std::move(text));
        }

    private:
        HWND CreateBox(HINSTANCE instance) const
        {
            const HWND box
                = CreateWindowExA(0, "EDIT", "", WS_CHILD, 0, 0, 100, 20, m_parent, nullptr, instance, nullptr);
            SendMessageA(box, EM_SETLIMITTEXT, kHandOverTextLimit, 0);
            return box;
        }

        static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM first, LPARAM second)
        {
            auto* self = reinterpret_cast<TextBoxes*>(GetWindowLongPtrA(window, GWLP_USERDATA));
            if (message == WM_COMMAND && HIWORD(first) == EN_CHANGE && self
                && reinterpret_cast<HWND>(second) == self->m_command) {
                self->OnChange();
                return 0;
            }
            return DefWindowProcA(window, message, first, second);
        }

        void OnChange()
        {
            auto text = TextOf(m_command);
            if (text.empty())
                return; // our own clearing
            if (!m_handler) {
                m_early.push_back(std::move(text));
                return;
            }
            const HWND box = m_command; // the handler may end the player, and this object with it
            const auto handler = m_handler;
            handler(std::move(text));
            SetWindowTextA(box, "");
        }

        HWND m_parent = nullptr;
        HWND m_command = nullptr;
        HWND m_probe = nullptr;
        std::function<void(std::string)> m_handler;
        std::deque<std::string> m_early;
    };

    class MutexLock : public HandOverLock {
    public:
        explicit MutexLock(HANDLE mutex)
            : m_mutex(mutex)
        {
        }
        ~MutexLock() override
        {
            ReleaseMutex(m_mutex);
            CloseHandle(m_mutex);
        }

    private:
        HANDLE m_mutex;
    };

} // namespace

Result<std::unique_ptr<HandOverEnds>> HandOverEnds::Listen()
{
    auto boxes = std::make_unique<TextBoxes>();
    if (const auto created = boxes->Create(); !created)
        return created.error();
    return std::unique_ptr<HandOverEnds>(std::move(boxes));
}

bool IsHandOverAlive(const std::string& handle)
{
    const HWND window = WindowOf(handle);
    return window && IsWindow(window);
}

bool SendHandOverText(const std::string& handle, const std::string& text)
{
    const HWND window = WindowOf(handle);
    // Without a window the message would go to nobody in particular.
    return window && HandOverText(text).size() <= kHandOverTextLimit
        && SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) != 0;
}

std::unique_ptr<HandOverLock> HandOverLock::Take(std::chrono::milliseconds timeout)
{
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, "Local\\ZentaroStart");
    if (!mutex)
        return nullptr;
    const DWORD outcome = WaitForSingleObject(mutex, static_cast<DWORD>(timeout.count()));
    // An abandoned one belonged to a start that was killed.
    if (outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED)
        return std::make_unique<MutexLock>(mutex);
    CloseHandle(mutex);
    return nullptr;
}

void MarkPlayerRunning(const std::string& name)
{
    // Never closed: the system takes the mark away with the process.
    CreateMutexA(nullptr, FALSE, name.c_str());
}

} // namespace zentaro::platform
