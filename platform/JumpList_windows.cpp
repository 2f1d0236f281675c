#include "platform/JumpList_windows.h"

#include "base/Words.h"
#include "desktop/WindowsRules.h"
#include "platform/Com_windows.h"
#include "platform/Files.h"

#include <array>
#include <string>
#include <windows.h>

#include <initguid.h>
#include <propsys.h>
#include <propvarutil.h>
#include <shobjidl.h>

namespace zentaro::platform {

namespace {

// PKEY_Title, which the compiler's libraries lack.
constexpr PROPERTYKEY kTitle{ { 0xF29F85E0, 0x4FF9, 0x1068, { 0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9 } }, 2 };

template <class Face> Held<Face> Make(const CLSID& id)
{
    Face* made = nullptr;
    CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Face), reinterpret_cast<void**>(&made));
    return Held<Face>(made);
}

Held<IShellLinkW> LinkTo(const desktop::JumpListItem& item, const std::wstring& program)
{
    auto link = Make<IShellLinkW>(CLSID_ShellLink);
    IPropertyStore* store = nullptr;
    if (!link || FAILED(link->QueryInterface(__uuidof(IPropertyStore), reinterpret_cast<void**>(&store))))
        return nullptr;
    const Held<IPropertyStore> properties(store);
    link->SetPath(program.c_str());
    link->SetArguments(Wide(item.arguments).c_str());
    link->SetDescription(Wide(item.tip).c_str());
    link->SetIconLocation(program.c_str(), 0);
    auto title = Wide(item.title);
    PROPVARIANT value{};
    value.vt = VT_LPWSTR;
    value.pwszVal = title.data(); // which the store copies
    properties->SetValue(kTitle, value);
    properties->Commit();
    return link;
}

/// What the user has taken off the list; the system refuses a list that brings it back at once.
std::vector<std::string> ArgumentsOf(IObjectArray& links)
{
    std::vector<std::string> arguments;
    UINT count = 0;
    links.GetCount(&count);
    for (UINT i = 0; i < count; ++i) {
        IShellLinkA* link = nullptr;
        if (FAILED(links.GetAt(i, __uuidof(IShellLinkA), reinterpret_cast<void**>(&link))))
            continue;
        const Held<IShellLinkA> held(link);
        std::array<char, 32768> text{};
        if (SUCCEEDED(link->GetArguments(text.data(), static_cast<int>(text.size()))))
            arguments.emplace_back(text.data());
    }
    return arguments;
}

} // namespace

void ShowJumpList(const std::vector<desktop::MediaTrack>& recent)
{
    const auto list = Make<ICustomDestinationList>(CLSID_DestinationList);
    const auto links = Make<IObjectCollection>(CLSID_EnumerableObjectCollection);
    IObjectArray* removed = nullptr;
    UINT places = 0;
    if (!list || !links)
        return;
    if (recent.empty()) {
        list->DeleteList(nullptr);
        return;
    }
    if (FAILED(list->BeginList(&places, __uuidof(IObjectArray), reinterpret_cast<void**>(&removed))))
        return;
    const Held<IObjectArray> gone(removed);
    const auto program = Wide(ExecutableFolder() + "\\zentaro.exe");
    const auto items = desktop::JumpListOf(recent, gone ? ArgumentsOf(*gone) : std::vector<std::string>());
    for (const auto& item : items) {
        if (const auto link = LinkTo(item, program))
            links->AddObject(link.get());
    }
    if (!items.empty())
        list->AppendCategory(Wide(Words("Recently Played Files")).c_str(), links.get());
    list->CommitList();
}

} // namespace zentaro::platform
