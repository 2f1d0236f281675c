#include "platform/HandOver.h"
#include "platform/HandOverRules.h"
#include "platform/SystemError_windows.h"

#include <deque>
#include <utility>
#include <windows.h>

namespace zentaro::platform {
namespace {

HWND WindowOf(const std::string& handle)
{
    const auto number = ParseHandOverHandle(handle);
    return number ? reinterpret_cast<HWND>(static_cast<std::uintptr_t>(*number)) : nullptr;
}

std::string HandleOf(HWND window)
{
    return std::to_string(reinterpret_cast<std::uintptr_t>(window));
}

/// Two text boxes that are never shown. The first one's window procedure is preceded by ours, so that a text is
/// handled while its sender still waits.
class TextBoxes : public HandOverEnds {
public:
    ~TextBoxes() override
    {
        for (const HWND box : { m_command, m_probe }) {
            if (box)
                DestroyWindow(box);
        }
    }

    Result<void> Create()
    {
        m_command = CreateBox();
        m_probe = CreateBox();
        if (!m_command || !m_probe)
            return SystemError("Cannot make a text box", GetLastError());
        SetWindowLongPtrA(m_command, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        m_boxProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(m_command, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnMessage)));
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
    static HWND CreateBox()
    {
        // Below the message root: such windows are found by their handle alone and need no screen.
        return CreateWindowExA(
            0, "EDIT", "", 0, 0, 0, 100, 20, HWND_MESSAGE, nullptr, GetModuleHandleA(nullptr), nullptr);
    }

    static LRESULT CALLBACK OnMessage(HWND box, UINT message, WPARAM first, LPARAM second)
    {
        auto* self = reinterpret_cast<TextBoxes*>(GetWindowLongPtrA(box, GWLP_USERDATA));
        if (message != WM_SETTEXT)
            return CallWindowProcA(self->m_boxProcedure, box, message, first, second);
        // The handler takes the text in place of the box, which so is empty again at once; measuring a long line would
        // take the box seconds.
        const char* text = reinterpret_cast<const char*>(second);
        if (text && *text != '\0')
            self->OnText(text);
        return TRUE;
    }

    void OnText(std::string text)
    {
        if (!m_handler) {
            m_early.push_back(std::move(text));
            return;
        }
        const auto handler = m_handler; // the call may end the player, and this object with it
        handler(std::move(text));
    }

    HWND m_command = nullptr;
    HWND m_probe = nullptr;
    WNDPROC m_boxProcedure = nullptr;
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
