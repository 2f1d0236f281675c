#include "desktop/WindowsRules.h"
#include "platform/FileSelections.h"

#include <utility>
#include <windows.h>

#include <ole2.h>
#include <shellapi.h>

namespace zentaro::platform {

namespace {

constexpr UINT kPatience = 60'000; // ms
/// For a file manager to let go of what it was given.
constexpr UINT kParting = 2'000; // ms

std::string ToUtf8(const std::wstring& text)
{
    const auto length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    const auto size = WideCharToMultiByte(
        CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

std::vector<std::string> PathsIn(IDataObject& data)
{
    FORMATETC format{ CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL };
    STGMEDIUM medium{};
    if (FAILED(data.GetData(&format, &medium)))
        return {};
    const auto drop = static_cast<HDROP>(medium.hGlobal);
    std::vector<std::string> paths;
    const auto count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0), L'\0');
        DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size()) + 1);
        paths.push_back(ToUtf8(path));
    }
    ReleaseStgMedium(&medium);
    return paths;
}

/// What the one call of the file manager makes, and what it brings. All of it happens on one thread.
struct Visit {
    FileSelection selection;
    bool hasCome = false;
    ULONG held = 0; // references to what receives it
};

/// Its parts live as long as the visit.
template <class Face> class Part : public Face {
public:
    virtual ~Part() = default;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** face) override
    {
        const bool isKnown = id == IID_IUnknown || id == __uuidof(Face);
        *face = isKnown ? static_cast<Face*>(this) : nullptr;
        if (!isKnown)
            return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
};

class Receiver : public Part<IDropTarget> {
public:
    Receiver(Visit& visit, bool plays)
        : m_visit(visit)
        , m_plays(plays)
    {
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_visit.held; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_visit.held; }
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject*, DWORD, POINTL, DWORD* effect) override
    {
        *effect &= DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override
    {
        *effect &= DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override
    {
        *effect &= DROPEFFECT_COPY;
        // The file manager waits for the end of this call, so nothing is done here that takes time.
        m_visit.selection = { m_plays, data != nullptr ? PathsIn(*data) : std::vector<std::string>() };
        m_visit.hasCome = true;
        return S_OK;
    }

private:
    Visit& m_visit;
    bool m_plays;
};

class Factory : public Part<IClassFactory> {
public:
    Factory(Visit& visit, bool plays)
        : m_receiver(visit, plays)
    {
    }
    ~Factory() override { CoRevokeClassObject(m_registered); }
    void Register(const wchar_t* name)
    {
        CLSID id{};
        // For one call alone: the next one comes to a process of its own.
        if (SUCCEEDED(CLSIDFromString(name, &id)))
            CoRegisterClassObject(id, this, CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE, &m_registered);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** face) override
    {
        *face = nullptr;
        return outer != nullptr ? CLASS_E_NOAGGREGATION : m_receiver.QueryInterface(id, face);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    Receiver m_receiver;
    DWORD m_registered = 0;
};

std::wstring Wide(const std::string& plain)
{
    return { plain.begin(), plain.end() };
}

} // namespace

std::optional<FileSelection> TakeSelection()
{
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)))
        return std::nullopt;
    Visit visit;
    {
        Factory opening(visit, true);
        Factory adding(visit, false);
        opening.Register(Wide(desktop::kOpenClass).c_str());
        adding.Register(Wide(desktop::kAddClass).c_str());
        auto timer = SetTimer(nullptr, 0, kPatience, nullptr);
        bool isOver = false;
        bool isParting = false;
        MSG message;
        // Whoever leaves while a call of his is still being answered cuts the answer off, or waits for it for ever.
        while (!isOver && GetMessageW(&message, nullptr, 0, 0) > 0) {
            isOver = message.message == WM_TIMER && message.wParam == timer;
            DispatchMessageW(&message);
            if (!visit.hasCome)
                continue;
            isOver = isOver || visit.held == 0;
            if (!std::exchange(isParting, true)) {
                KillTimer(nullptr, timer);
                timer = SetTimer(nullptr, 0, kParting, nullptr);
            }
        }
    }
    CoUninitialize();
    // Whoever the user has called may come to the front, and so may the player that is called from here.
    AllowSetForegroundWindow(ASFW_ANY);
    if (visit.selection.paths.empty())
        return std::nullopt;
    return std::move(visit.selection);
}

} // namespace zentaro::platform
