#pragma once

#include <memory>
#include <string>
#include <unknwn.h>
#include <windows.h>

namespace zentaro::platform {

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Face> using Held = std::unique_ptr<Face, ReleaseObject>;

/// The text, which is UTF-8, up to its first NUL byte.
inline std::wstring Wide(const std::string& text)
{
    std::wstring wide(text.size() + 1, L'\0');
    const auto size = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
    wide.resize(size > 0 ? static_cast<std::size_t>(size) - 1 : 0);
    return wide;
}

} // namespace zentaro::platform
