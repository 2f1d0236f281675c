#include "platform/StringStore.h"
#include "platform/System_windows.h"

#include <optional>
#include <type_traits>
#include <windows.h>

namespace zentaro::platform {
namespace {

struct CloseKey {
    void operator()(HKEY key) const { RegCloseKey(key); }
};

/// An opened key, or why there is none.
struct RegistryKey {
    LSTATUS status;
    std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey> key;
};

/// HKEY_CLASSES_ROOT shows the user's classes before those of the machine, and the user may write only the former.
std::string UsersPath(StringStore::Root root, const std::string& path)
{
    return root == StringStore::Root::CurrentUser ? path : "Software\\Classes\\" + path;
}

RegistryKey OpenKey(HKEY root, const std::string& path, REGSAM access)
{
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExA(root, path.c_str(), 0, access, &key);
    return { status, decltype(RegistryKey::key)(key) };
}

RegistryKey CreateKey(StringStore::Root root, const std::string& path)
{
    HKEY key = nullptr;
    const LSTATUS status = RegCreateKeyA(HKEY_CURRENT_USER, UsersPath(root, path).c_str(), &key);
    return { status, decltype(RegistryKey::key)(key) };
}

/// The text of a value without its terminating NUL byte.
std::optional<std::string> QueryText(HKEY key, const std::string& name)
{
    std::string text(256, '\0');
    DWORD type = 0;
    DWORD size = 0;
    LSTATUS status = ERROR_MORE_DATA;
    while (status == ERROR_MORE_DATA) {
        size = static_cast<DWORD>(text.size());
        status = RegQueryValueExA(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
        // The value may grow between two looks.
        if (status == ERROR_MORE_DATA)
            text.resize(size > text.size() ? size : text.size() * 2);
    }
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
        return std::nullopt;
    text.resize(size);
    if (!text.empty() && text.back() == '\0')
        text.pop_back();
    return text;
}

std::optional<std::string> QueryText(HKEY root, const std::string& path, const std::string& name)
{
    const auto opened = OpenKey(root, path, KEY_QUERY_VALUE);
    return opened.status == ERROR_SUCCESS ? QueryText(opened.key.get(), name) : std::nullopt;
}

class Registry : public StringStore {
public:
    std::string Read(Root root, const std::string& key, const std::string& name, const std::string& fallback) override
    {
        auto text = QueryText(HKEY_CURRENT_USER, UsersPath(root, key), name);
        if (!text && root == Root::ClassesRoot)
            text = QueryText(HKEY_CLASSES_ROOT, key, name);
        return text.value_or(fallback);
    }

    Result<void> Write(Root root, const std::string& key, const std::string& name, const std::string& text) override
    {
        const auto opened = CreateKey(root, key);
        auto status = opened.status;
        if (status == ERROR_SUCCESS)
            status = RegSetValueExA(opened.key.get(), name.c_str(), 0, REG_SZ,
                reinterpret_cast<const BYTE*>(text.c_str()), static_cast<DWORD>(text.size() + 1));
        return Outcome("Cannot write " + key, status);
    }

    Result<void> Delete(Root root, const std::string& key, const std::string& name) override
    {
        const auto opened = OpenKey(HKEY_CURRENT_USER, UsersPath(root, key), KEY_SET_VALUE);
        auto status = opened.status;
        if (status == ERROR_SUCCESS)
            status = RegDeleteValueA(opened.key.get(), name.c_str());
        return Outcome("Cannot delete from " + key, status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status);
    }

private:
    static Result<void> Outcome(const std::string& what, LSTATUS status)
    {
        if (status == ERROR_SUCCESS)
            return {};
        return SystemError(what, static_cast<DWORD>(status));
    }
};

} // namespace

std::unique_ptr<StringStore> StringStore::Open()
{
    return std::make_unique<Registry>();
}

} // namespace zentaro::platform
