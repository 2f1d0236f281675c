#pragma once

#include "base/Result.h"

#include <memory>
#include <string>

namespace zentaro::platform {

/// A store of strings that has the shape of the Windows registry: a root, a key path with "\" between its parts, a
/// value name (empty for the key's own value), a text. On Windows it is the registry; elsewhere files of the user, safe
/// against two writers and against a torn file. Texts are bytes: what is not valid UTF-8 survives unchanged.
class StringStore {
public:
    enum class Root { CurrentUser, ClassesRoot };

    virtual ~StringStore() = default;

    /// `fallback` when the key or the value is missing or cannot be read.
    virtual std::string Read(
        Root root, const std::string& key, const std::string& name, const std::string& fallback) = 0;
    /// Creates the key when it is missing.
    virtual Result<void> Write(Root root, const std::string& key, const std::string& name, const std::string& text) = 0;
    /// A missing value is success.
    virtual Result<void> Delete(Root root, const std::string& key, const std::string& name) = 0;

    /// Until CommitBatch() or DropBatch(), a store of files collects changes and shows them to this object alone; a
    /// change that could not be written fails at once all the same. The registry, where a change costs nothing, takes
    /// each one as it comes.
    virtual void BeginBatch() { }
    virtual Result<void> CommitBatch() { return {}; }
    virtual void DropBatch() { }

    static std::unique_ptr<StringStore> Open();
};

/// The key below CurrentUser of the per-user settings store: an application title and a section.
inline std::string SettingsKey(const std::string& title, const std::string& section)
{
    return "Software\\" + title + "\\" + section;
}

} // namespace zentaro::platform
