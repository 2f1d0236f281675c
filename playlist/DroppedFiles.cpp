#include "playlist/DroppedFiles.h"

#include "base/Paths.h"
#include "playlist/MediaTypes.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace zentaro {

namespace {

namespace fs = std::filesystem;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string_view TakeNumber(std::string_view& text)
{
    std::size_t end = 0;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    auto digits = text.substr(0, end);
    text.remove_prefix(end);
    while (digits.size() > 1 && digits.front() == '0')
        digits.remove_prefix(1);
    return digits;
}

// A file name's bytes as they are: UTF-8 on Windows, anything elsewhere. A name that has no such form, half a character
// on Windows, gives an empty one, and is left out like anything that cannot be read.
fs::path ToPath(const std::string& text)
{
    try {
        return { std::u8string(text.begin(), text.end()) };
    } catch (const std::system_error&) {
        return {};
    }
}

std::string ToText(const fs::path& path)
{
    try {
        const auto text = path.u8string();
        return { text.begin(), text.end() };
    } catch (const std::system_error&) {
        return {};
    }
}

class FolderReader {
public:
    FolderReader(char separator, const GoOn& goOn, bool takesAll)
        : m_separator(separator)
        , m_goOn(goOn)
        , m_takesAll(takesAll)
    {
    }

    /// False when the reading was stopped.
    bool Read(const std::string& folder, std::vector<std::string>& files)
    {
        std::error_code error;
        const auto place = fs::canonical(ToPath(folder), error);
        if (error || !m_seen.insert(place).second)
            return true;
        std::vector<std::string> media;
        std::vector<std::string> folders;
        for (auto entry = fs::directory_iterator(place, error); !error && entry != fs::directory_iterator();
             entry.increment(error)) {
            if (!m_goOn())
                return false;
            Sort(*entry, media, folders);
        }
        const auto prefix = WithTrailingSeparator(folder, m_separator);
        std::sort(media.begin(), media.end(), NaturalLess);
        for (const auto& name : media)
            files.push_back(prefix + name);
        std::sort(folders.begin(), folders.end(), NaturalLess);
        return std::all_of(
            folders.begin(), folders.end(), [&](const std::string& name) { return Read(prefix + name, files); });
    }

private:
    void Sort(
        const fs::directory_entry& entry, std::vector<std::string>& media, std::vector<std::string>& folders) const
    {
        std::error_code error;
        auto name = ToText(entry.path().filename());
        if (entry.is_directory(error))
            folders.push_back(std::move(name));
        else if (IsMediaFile(name, m_separator, m_takesAll))
            media.push_back(std::move(name));
    }

    char m_separator;
    const GoOn& m_goOn;
    bool m_takesAll;
    std::set<fs::path> m_seen;
};

} // namespace

bool NaturalLess(std::string_view a, std::string_view b)
{
    const auto wholeA = a;
    const auto wholeB = b;
    while (!a.empty() && !b.empty()) {
        if (IsDigit(a.front()) && IsDigit(b.front())) {
            const auto numberA = TakeNumber(a);
            const auto numberB = TakeNumber(b);
            if (numberA.size() != numberB.size())
                return numberA.size() < numberB.size();
            if (numberA != numberB)
                return numberA < numberB;
            continue;
        }
        const auto charA = static_cast<unsigned char>(Lower(a.front()));
        const auto charB = static_cast<unsigned char>(Lower(b.front()));
        if (charA != charB)
            return charA < charB;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    if (a.empty() != b.empty())
        return a.empty();
    // "a01" and "A1" stand for the same; any fixed order will do.
    return wholeA < wholeB;
}

std::vector<std::string> DroppedMediaFiles(const std::vector<std::string>& paths, char separator, const GoOn& goOn,
    bool takesAll, std::vector<std::string>* skipped)
{
    std::vector<std::string> files;
    FolderReader reader(separator, goOn, takesAll);
    for (const auto& path : paths) {
        std::error_code error;
        if (fs::is_directory(ToPath(path), error)) {
            if (!reader.Read(TidyPath(path), files))
                break;
        } else if (IsMediaFile(path, separator, takesAll)) {
            files.push_back(TidyPath(path));
        } else if (skipped != nullptr) {
            skipped->push_back(path);
        }
    }
    return files;
}

std::vector<AddRequest> AddRequests(const std::vector<std::string>& paths, char separator, bool playFirst)
{
    std::vector<AddRequest> requests;
    requests.reserve(paths.size());
    for (const auto& path : paths)
        requests.push_back({ FileNamePart(path, separator), path, false, playFirst && requests.empty() });
    return requests;
}

} // namespace zentaro
