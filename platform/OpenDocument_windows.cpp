#include "platform/OpenDocument.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

namespace zentaro::platform {

namespace {

constexpr std::intptr_t kLastError = 32; // what is above means success

} // namespace

std::string HelpFile()
{
    return "Help.chm";
}

Result<void> OpenDocument(const std::string& target)
{
    const auto code =
        reinterpret_cast<std::intptr_t>(ShellExecuteA(nullptr, "open", target.c_str(), nullptr, "C:\\", SW_SHOWNORMAL));
    if (code <= kLastError)
        return Error{ static_cast<std::int32_t>(code), "No program opens " + target };
    return {};
}

} // namespace zentaro::platform
