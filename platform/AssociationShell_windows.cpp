#include "platform/AssociationShell.h"

#include "desktop/WindowsRules.h"
#include "platform/Files.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>
#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

namespace zentaro::platform {
namespace {

std::string ProgramPath()
{
    std::string path(32'768, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

class Explorer : public AssociationShell {
public:
    bool Refresh() override { return true; }
    std::optional<LiveOwner> CurrentOwner(const std::string&) override { return std::nullopt; }
    void AssociationsChanged() override { SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr); }
    bool BringInLine(const std::vector<AssociatedType>& types) override
    {
        std::vector<std::pair<std::string, std::string>> ours;
        for (const auto& type : types) {
            const auto name = "Zentaro" + type.extension;
            if (type.isOurs) {
                ours.emplace_back(type.extension, name);
                continue;
            }
            RemoveValue(desktop::OpenWithKey(type.extension), name);
            for (const auto& key : desktop::DropTargetKeys(name))
                RegDeleteTreeA(HKEY_CURRENT_USER, key.c_str());
        }
        // What was registered for types that are given back goes, too.
        for (const auto* const key : { desktop::kApplicationKey, desktop::kCapabilitiesKey })
            RegDeleteTreeA(HKEY_CURRENT_USER, key);
        if (ours.empty()) {
            RegDeleteKeyValueA(HKEY_CURRENT_USER, desktop::kRegisteredKey, desktop::kRegisteredName);
            for (const auto& key : desktop::DropTargetKeys())
                RegDeleteTreeA(HKEY_CURRENT_USER, key.c_str());
            return true;
        }
        for (const auto& [key, name, text] : desktop::RegistrationOf(ExecutableFolder() + '\\', ours))
            RegSetKeyValueA(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, text.c_str(),
                static_cast<DWORD>(text.size() + 1));
        return true;
    }

private:
    /// With its key, when that holds nothing else.
    static void RemoveValue(const std::string& key, const std::string& name)
    {
        if (RegDeleteKeyValueA(HKEY_CURRENT_USER, key.c_str(), name.c_str()) != ERROR_SUCCESS)
            return;
        HKEY opened = nullptr;
        DWORD values = 1;
        if (RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS)
            return;
        RegQueryInfoKeyA(
            opened, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values, nullptr, nullptr, nullptr, nullptr);
        RegCloseKey(opened);
        if (values == 0)
            RegDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
    }
};

constexpr std::intptr_t kLastError = 32; // what is above means success

struct CloseIcon {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
struct CloseContext {
    void operator()(HDC context) const { DeleteDC(context); }
};
struct CloseBitmap {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
template <class Handle, class Close> using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Close>;

std::string Expanded(const std::string& path)
{
    std::string text(32'768, '\0');
    const auto size = ExpandEnvironmentStringsA(path.c_str(), text.data(), static_cast<DWORD>(text.size()));
    return size == 0 || size > text.size() ? path : text.substr(0, size - 1);
}

/// Draws the icon over that colour.
std::vector<std::uint32_t> DrawnOver(HICON icon, int width, int height, std::uint32_t colour)
{
    BITMAPINFO info{};
    info.bmiHeader = { sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0 };
    void* bits = nullptr;
    const Owned<HDC, CloseContext> context(CreateCompatibleDC(nullptr));
    const Owned<HBITMAP, CloseBitmap> bitmap(CreateDIBSection(context.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!context || !bitmap)
        return {};
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    auto* const first = static_cast<std::uint32_t*>(bits);
    std::fill(first, first + count, colour);
    const auto previous = SelectObject(context.get(), bitmap.get());
    DrawIconEx(context.get(), 0, 0, icon, width, height, 0, nullptr, DI_NORMAL);
    GdiFlush();
    std::vector<std::uint32_t> pixels(first, first + count);
    SelectObject(context.get(), previous);
    return pixels;
}

/// A pixel from what it became over black and over white: the less the two differ, the less it lets through.
std::uint32_t Pixel(std::uint32_t overBlack, std::uint32_t overWhite)
{
    const auto green = [](std::uint32_t pixel) { return (pixel >> 8) & 0xFF; };
    const auto difference = green(overWhite) > green(overBlack) ? green(overWhite) - green(overBlack) : 0;
    const auto alpha = 255 - difference;
    std::uint32_t pixel = alpha << 24;
    for (int shift = 0; shift <= 16 && alpha > 0; shift += 8) {
        const auto part = ((overBlack >> shift) & 0xFF) * 255 / alpha;
        pixel |= std::min<std::uint32_t>(part, 255) << shift;
    }
    return pixel;
}

} // namespace

std::unique_ptr<AssociationShell> AssociationShell::Open(const std::string&, const std::string&)
{
    return std::make_unique<Explorer>();
}

std::string ShortProgramPath()
{
    auto path = ProgramPath();
    std::string shortPath(32'768, '\0');
    const auto size = GetShortPathNameA(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    if (size > 0 && size < shortPath.size())
        path = shortPath.substr(0, size);
    // A volume may have no short names: then the call gives the long one back.
    return path.find(' ') == std::string::npos ? path : '"' + path + '"';
}

namespace {

Result<void> Open(const std::string& target, const char* parameters)
{
    // Some extensions of the shell ask for it in the thread that they are called from.
    const auto prepared = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    const auto code = reinterpret_cast<std::intptr_t>(
        ShellExecuteA(nullptr, "open", target.c_str(), parameters, "C:\\", SW_SHOWNORMAL));
    if (SUCCEEDED(prepared))
        CoUninitialize();
    if (code <= kLastError)
        return Error{ static_cast<std::int32_t>(code), "No program opens " + target };
    return {};
}

} // namespace

std::string HelpFile(const std::string& topic, const std::string& language)
{
    return language == "en" ? "Help.chm" : "help\\" + language + '\\' + topic + ".html";
}

Result<void> OpenHelp(const std::string& path, const std::string& topic)
{
    if (topic == "index" || !path.ends_with(".chm"))
        return OpenDocument(path);
    const auto page = '"' + path + "::/" + topic + ".html\"";
    return Open("hh.exe", page.c_str());
}

std::string DefaultProgramsPage()
{
    // Before Windows 11 it opens without the part behind the question mark.
    return std::string("ms-settings:defaultapps?registeredAppUser=") + desktop::kRegisteredName;
}

Result<void> OpenDocument(const std::string& target)
{
    return Open(target, nullptr);
}

Picture IconInFile(const std::string& file, std::int32_t index)
{
    // This index asks for the number of icons.
    if (index == -1)
        return {};
    const auto icon = ExtractIconA(GetModuleHandleA(nullptr), Expanded(file).c_str(), static_cast<UINT>(index));
    // 1: the file holds no icons at all.
    if (reinterpret_cast<std::uintptr_t>(icon) <= 1)
        return {};
    const Owned<HICON, CloseIcon> owned(icon);
    const int width = GetSystemMetrics(SM_CXICON);
    const int height = GetSystemMetrics(SM_CYICON);
    auto pixels = DrawnOver(icon, width, height, 0);
    const auto overWhite = DrawnOver(icon, width, height, 0xFFFFFF);
    if (pixels.size() != overWhite.size())
        return {};
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = Pixel(pixels[i], overWhite[i]);
    return Picture(width, height, std::move(pixels));
}

} // namespace zentaro::platform
