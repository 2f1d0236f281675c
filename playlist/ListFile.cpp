#include "playlist/ListFile.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "playlist/ListText.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <map>
#include <utility>

namespace zentaro {

namespace {

constexpr std::string_view kFileAddress = "file://";
constexpr std::string_view kMark = "\xEF\xBB\xBF"; // of a text that is UTF-8
constexpr std::string_view kBlanks = " \t";

std::string_view Trimmed(std::string_view text)
{
    const auto begin = text.find_first_not_of(kBlanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// The next line without its end; moves on behind it.
std::string_view TakeLine(std::string_view& text)
{
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

std::optional<double> Number(std::string_view text)
{
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    return read.ec == std::errc() ? std::optional(value) : std::nullopt;
}

bool IsDriveLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool HasDrive(std::string_view path)
{
    return path.size() >= 2 && IsDriveLetter(path[0]) && path[1] == ':';
}

bool IsAbsolute(std::string_view path, char separator)
{
    return (!path.empty() && path.front() == separator) || (separator == '\\' && HasDrive(path));
}

/// "http:" and the like; a single letter is a drive.
bool HasScheme(std::string_view name)
{
    const auto colon = name.find(':');
    return colon != std::string_view::npos && colon > 1 && IsDriveLetter(name.front())
        && std::all_of(name.begin(), name.begin() + static_cast<std::ptrdiff_t>(colon),
            [](char c) { return IsDriveLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'; });
}

/// The path of an address "file://..."; empty for files of other machines.
std::string PathOfAddress(std::string_view address, char separator)
{
    auto rest = address.substr(kFileAddress.size());
    if (LowerAscii(rest).starts_with("localhost/"))
        rest.remove_prefix(std::string_view("localhost").size());
    if (!rest.starts_with('/'))
        return {};
    auto path = PercentDecoded(rest.substr(0, rest.find_first_of("?#")));
    std::replace(path.begin(), path.end(), '/', separator);
    return path;
}

std::string AddressOfPath(std::string path, char separator)
{
    std::replace(path.begin(), path.end(), separator, '/');
    return std::string(kFileAddress) + (path.starts_with('/') ? "" : "/") + PercentEncoded(path);
}

/// The folder and the name behind it, without the steps up that the name begins with.
std::string InFolder(std::string folder, std::string_view name, char separator)
{
    const auto step = [separator](std::string_view text, std::string_view dots) {
        return text.starts_with(dots) && text.size() > dots.size() && text[dots.size()] == separator;
    };
    for (;;) {
        if (step(name, ".")) {
            name.remove_prefix(2);
            continue;
        }
        const auto above = folder.size() > 1 ? folder.rfind(separator, folder.size() - 2) : std::string::npos;
        if (!step(name, "..") || above == std::string::npos)
            return folder.append(name);
        folder.resize(above + 1);
        name.remove_prefix(3);
    }
}

class Reader {
public:
    Reader(const std::string& folder, char separator)
        : m_folder(folder)
        , m_separator(separator)
    {
    }

    ListedFiles Take() { return std::move(m_files); }

    /// `isEncoded`: the name is an address even where it is relative.
    void Add(std::string_view name, std::string title, double length, bool isEncoded = false)
    {
        auto path = PathOf(name, isEncoded);
        if (path.empty() || path.find('\0') != std::string::npos || m_files.entries.size() >= kMostListed)
            ++m_files.unreadable;
        else
            m_files.entries.push_back({ std::move(path), std::move(title), length > 0 ? length : 0 });
    }

    void ReadM3u(std::string_view text)
    {
        std::string title;
        double length = 0;
        while (!text.empty()) {
            const auto line = TakeLine(text);
            const auto tidy = Trimmed(line);
            if (tidy.starts_with("#EXTINF:")) {
                const auto facts = tidy.substr(8);
                const auto comma = facts.find(',');
                length = Number(facts.substr(0, comma)).value_or(0);
                title = comma == std::string_view::npos ? std::string() : std::string(Trimmed(facts.substr(comma + 1)));
            } else if (!tidy.empty() && tidy.front() != '#') {
                Add(line, std::exchange(title, {}), std::exchange(length, 0));
            }
        }
    }

    void ReadPls(std::string_view text)
    {
        struct Row {
            std::string_view file, title, length;
        };
        std::map<long, Row> rows;
        while (!text.empty()) {
            const auto line = TakeLine(text);
            const auto equals = line.find('=');
            if (equals == std::string_view::npos)
                continue;
            const auto key = LowerAscii(Trimmed(line.substr(0, equals)));
            for (const auto& [word, field] :
                { std::pair(std::string_view("file"), &Row::file), std::pair(std::string_view("title"), &Row::title),
                    std::pair(std::string_view("length"), &Row::length) }) {
                const auto number =
                    key.starts_with(word) ? Number(std::string_view(key).substr(word.size())) : std::nullopt;
                if (number && *number >= 0 && *number < 1e9)
                    rows[static_cast<long>(*number)].*field = line.substr(equals + 1);
            }
        }
        for (const auto& [number, row] : rows) {
            if (!row.file.empty())
                Add(row.file, std::string(Trimmed(row.title)), Number(row.length).value_or(0));
        }
    }

    void ReadXspf(std::string_view text)
    {
        std::string location, title, length, content;
        bool isInTrack = false;
        for (XmlScanner scanner(text); scanner.Next();) {
            if (scanner.Kind() == XmlScanner::Part::Text) {
                content += scanner.Text();
                continue;
            }
            const bool isEnd = scanner.Kind() == XmlScanner::Part::End;
            const auto& name = scanner.Text();
            if (name == "track") {
                if (isInTrack && isEnd)
                    Add(location, std::move(title), Number(Trimmed(length)).value_or(0) / 1000, true);
                isInTrack = !isEnd;
                location = title = length = {};
            } else if (isInTrack && isEnd) {
                // The first of several places is the one that is meant.
                if (name == "location" && location.empty())
                    location = Trimmed(WithoutLineEnds(content));
                else if (name == "title")
                    title = Trimmed(WithoutLineEnds(content));
                else if (name == "duration")
                    length = WithoutLineEnds(content);
            }
            content.clear();
        }
    }

private:
    static std::string WithoutLineEnds(std::string text)
    {
        std::erase(text, '\r');
        std::erase(text, '\n');
        return text;
    }

    std::string PathOf(std::string_view name, bool isEncoded) const
    {
        if (LowerAscii(name.substr(0, kFileAddress.size())) == kFileAddress)
            return FromDrive(PathOfAddress(name, m_separator));
        if (name.empty() || HasScheme(name))
            return {};
        auto path = isEncoded ? PercentDecoded(name) : std::string(name);
        if (isEncoded || m_separator == '\\')
            std::replace(path.begin(), path.end(), '/', m_separator);
        path = FromDrive(std::move(path));
        return IsAbsolute(path, m_separator) ? path : InFolder(m_folder, path, m_separator);
    }

    /// In addresses a separator stands before the drive.
    std::string FromDrive(std::string path) const
    {
        const auto begin = path.find_first_not_of(m_separator);
        const bool isDrive =
            m_separator == '\\' && begin != std::string::npos && HasDrive(std::string_view(path).substr(begin));
        return isDrive ? path.substr(begin) : path;
    }

    const std::string& m_folder;
    char m_separator;
    ListedFiles m_files;
};

/// The path as seen from the folder; the path itself when no way leads there, or when that way is no shorter.
std::string ShortestPath(const std::string& path, const std::string& folder, char separator)
{
    std::size_t common = 0; // up to the last folder that both share
    const auto most = std::min(path.size(), folder.size());
    for (std::size_t i = 0; i < most && path[i] == folder[i]; ++i) {
        if (path[i] == separator)
            common = i + 1;
    }
    // Nothing shared but the root, or another drive.
    if (common <= 1)
        return path;
    std::string relative;
    for (const char c : folder.substr(common)) {
        if (c == separator)
            relative.append("..") += separator;
    }
    relative += path.substr(common);
    // The folder itself, and what would be taken for a place of its own.
    if (relative.empty() || IsAbsolute(relative, separator))
        relative = std::string(".") + separator + relative;
    return relative.size() < path.size() ? relative : path;
}

/// A name in a format of lines.
std::string LineName(const std::string& path, const std::string& folder, char separator)
{
    const auto name = ShortestPath(path, folder, separator);
    const bool isLost = path.find_first_of("\r\n") != std::string::npos || !IsUtf8(path);
    if (isLost)
        return AddressOfPath(path, separator);
    // What would be taken for a comment, an address, or the blank before it.
    const bool isMistaken = name.starts_with('#') || HasScheme(name) || Trimmed(name) != name;
    return isMistaken && name != path ? std::string(".") + separator + name : name;
}

std::string TitleLine(const std::string& title)
{
    std::string line = title;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return line;
}

int WholeSeconds(double length)
{
    return length > 0 ? RoundHalfEven(length) : -1;
}

std::string FormatM3u(const std::vector<ListedEntry>& entries, const std::string& folder, char separator)
{
    std::string text = "#EXTM3U\n";
    for (const auto& entry : entries) {
        text += "#EXTINF:" + std::to_string(WholeSeconds(entry.length)) + "," + TitleLine(entry.title) + "\n";
        text += LineName(entry.path, folder, separator) + "\n";
    }
    return text;
}

std::string FormatPls(const std::vector<ListedEntry>& entries, const std::string& folder, char separator)
{
    std::string text = "[playlist]\n";
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto number = std::to_string(i + 1) + "=";
        text += "File" + number + LineName(entries[i].path, folder, separator) + "\n";
        text += "Title" + number + TitleLine(entries[i].title) + "\n";
        text += "Length" + number + std::to_string(WholeSeconds(entries[i].length)) + "\n";
    }
    return text + "NumberOfEntries=" + std::to_string(entries.size()) + "\nVersion=2\n";
}

std::string FormatXspf(const std::vector<ListedEntry>& entries, const std::string& folder, char separator)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<playlist version=\"1\" xmlns=\"http://xspf.org/ns/0/\">\n  <trackList>\n";
    for (const auto& entry : entries) {
        auto name = ShortestPath(entry.path, folder, separator);
        if (name == entry.path) {
            name = AddressOfPath(name, separator);
        } else {
            std::replace(name.begin(), name.end(), separator, '/');
            name = PercentEncoded(name);
        }
        text += "    <track>\n      <location>" + XmlEscaped(name) + "</location>\n";
        if (!entry.title.empty())
            text += "      <title>" + XmlEscaped(TitleLine(entry.title)) + "</title>\n";
        if (entry.length > 0)
            text += "      <duration>" + std::to_string(RoundHalfEven(entry.length * 1000)) + "</duration>\n";
        text += "    </track>\n";
    }
    return text + "  </trackList>\n</playlist>\n";
}

} // namespace

std::optional<ListFormat> ListFormatOf(std::string_view path, char separator)
{
    const auto extension = LowerExtension(path, separator);
    if (extension == "m3u" || extension == "m3u8")
        return ListFormat::M3u;
    if (extension == "pls")
        return ListFormat::Pls;
    return extension == "xspf" ? std::optional(ListFormat::Xspf) : std::nullopt;
}

ListedFiles ParseListFile(std::string_view text, ListFormat format, const std::string& folder, char separator)
{
    if (text.starts_with(kMark))
        text.remove_prefix(kMark.size());
    Reader reader(folder, separator);
    if (format == ListFormat::M3u)
        reader.ReadM3u(text);
    else if (format == ListFormat::Pls)
        reader.ReadPls(text);
    else
        reader.ReadXspf(text);
    return reader.Take();
}

std::string FormatListFile(
    const std::vector<ListedEntry>& entries, ListFormat format, const std::string& folder, char separator)
{
    if (format == ListFormat::M3u)
        return FormatM3u(entries, folder, separator);
    return format == ListFormat::Pls ? FormatPls(entries, folder, separator) : FormatXspf(entries, folder, separator);
}

std::vector<std::string> ListedPathCandidates(const std::string& path, char separator)
{
    std::vector candidates{ path };
    const auto add = [&](std::string other) {
        if (std::find(candidates.begin(), candidates.end(), other) == candidates.end())
            candidates.push_back(std::move(other));
    };
    add(std::string(Trimmed(path)));
    if (!IsUtf8(path))
        add(FromLatin1(path));
    if (separator == '/') {
        for (auto other : std::vector(candidates)) {
            std::replace(other.begin(), other.end(), '\\', '/');
            add(std::move(other));
        }
    }
    return candidates;
}

} // namespace zentaro
