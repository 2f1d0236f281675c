#pragma once

#include "base/Result.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro {

/// What the player keeps beside `Config.cfg`: texts by their keys, in a file of its own. A file that is missing or
/// damaged counts as empty; one that cannot be read now, or that a newer version has written, is never replaced.
class OwnSettings {
public:
    explicit OwnSettings(std::string path);

    void Load();
    /// Writes the file when something was changed since it was last read or written.
    Result<void> Save();

    /// Nothing where no text is kept.
    std::optional<std::string> Find(std::string_view key) const;
    std::string Text(std::string_view key, std::string_view fallback = {}) const;
    /// A whole number; the fallback also for what is none, or lies outside.
    int Number(std::string_view key, int fallback, int least, int most) const;
    /// `key`: letters, digits and dots. The text may hold anything.
    void Set(std::string_view key, std::string_view text);
    void Remove(std::string_view key);

private:
    std::string m_path;
    std::map<std::string, std::string, std::less<>> m_texts;
    bool m_isChanged = false;
    bool m_isOurs = true; // the file may be replaced
};

} // namespace zentaro
