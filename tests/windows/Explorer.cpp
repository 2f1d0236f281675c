// Explorer's part. With CLASS FILE... it gives a selection of files to a drop target. Without arguments it is there, so
// that programs may come and go without their desktop doing so.
#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

namespace {

std::wstring Wide(const char* text)
{
    std::array<wchar_t, 32768> wide{};
    MultiByteToWideChar(CP_UTF8, 0, text, -1, wide.data(), static_cast<int>(wide.size()));
    return wide.data();
}

HGLOBAL MakeDrop(int count, char** paths)
{
    std::wstring names;
    for (int i = 0; i < count; ++i)
        names += Wide(paths[i]) + L'\0';
    names += L'\0';
    const auto memory = GlobalAlloc(GHND, sizeof(DROPFILES) + names.size() * sizeof(wchar_t));
    auto* const drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    std::memcpy(drop + 1, names.data(), names.size() * sizeof(wchar_t));
    GlobalUnlock(memory);
    return memory;
}

HWND MakeWindow()
{
    return CreateWindowA("STATIC", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
}

/// The clipboard makes the object of it that a drop wants.
IDataObject* MakeData(HGLOBAL drop)
{
    IDataObject* data = nullptr;
    if (!OpenClipboard(MakeWindow()))
        return nullptr;
    EmptyClipboard();
    SetClipboardData(CF_HDROP, drop);
    CloseClipboard();
    OleGetClipboard(&data);
    return data;
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3 && MakeWindow() != nullptr) {
        std::puts("here");
        std::fflush(stdout);
        Sleep(count == 1 ? INFINITE : 0);
        return 0;
    }
    CLSID id{};
    IDropTarget* target = nullptr;
    if (count < 3 || FAILED(OleInitialize(nullptr)) || FAILED(CLSIDFromString(Wide(arguments[1]).c_str(), &id)))
        return 1;
    auto* const data = MakeData(MakeDrop(count - 2, arguments + 2));
    if (data == nullptr)
        return 2;
    if (FAILED(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDropTarget, reinterpret_cast<void**>(&target))))
        return 3;
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_LINK;
    if (FAILED(target->DragEnter(data, MK_LBUTTON, {}, &effect)) || effect != DROPEFFECT_COPY)
        return 4;
    const auto dropped = target->Drop(data, MK_LBUTTON, {}, &effect);
    target->Release();
    data->Release();
    return FAILED(dropped) ? 5 : 0;
}
