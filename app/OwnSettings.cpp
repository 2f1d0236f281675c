#include "app/OwnSettings.h"

#include "app/StateText.h"
#include "platform/Files.h"

#include <charconv>
#include <utility>

namespace zentaro {

namespace {

constexpr std::string_view kMark = "zentaro own settings ";
constexpr int kVersion = 1;
constexpr std::string_view kEnd = "end"; // as the last line: nothing is missing
constexpr std::size_t kLimit = 4 << 20;  // bytes

using Texts = std::map<std::string, std::string, std::less<>>;

std::optional<int> WholeNumber(std::string_view text)
{
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

struct Content {
    int version = 0;
    Texts texts;
};

/// Nothing for a file that is not whole.
std::optional<Content> Parse(std::string_view text)
{
    const auto nextLine = [&text] {
        const auto end = text.find('\n');
        const auto line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        return line;
    };
    const auto head = nextLine();
    const auto version = head.starts_with(kMark) ? WholeNumber(head.substr(kMark.size())) : std::nullopt;
    if (!version)
        return std::nullopt;
    Content content{ *version, {} };
    while (!text.empty()) {
        const auto line = nextLine();
        if (line == kEnd)
            return content;
        const auto mark = line.find('=');
        if (mark == line.npos || mark == 0)
            return std::nullopt;
        content.texts[std::string(line.substr(0, mark))] = Unescaped(line.substr(mark + 1));
    }
    return std::nullopt;
}

} // namespace

OwnSettings::OwnSettings(std::string path)
    : m_path(std::move(path))
{
}

void OwnSettings::Load()
{
    const auto file = platform::ReadFileText(m_path, kLimit);
    auto content = file.state == platform::FileState::Readable ? Parse(file.text) : std::nullopt;
    m_isOurs = file.state != platform::FileState::Unreadable && (!content || content->version <= kVersion);
    m_texts = content ? std::move(content->texts) : Texts();
    m_isChanged = false;
}

Result<void> OwnSettings::Save()
{
    if (!m_isChanged)
        return {};
    if (!m_isOurs)
        return Error{ 0, m_path + " cannot be replaced" };
    std::string text = std::string(kMark) + std::to_string(kVersion) + '\n';
    for (const auto& [key, value] : m_texts)
        text += key + '=' + Escaped(value) + '\n';
    auto written = platform::ReplaceTextFile(m_path, text + std::string(kEnd) + '\n');
    m_isChanged = !written;
    return written;
}

std::optional<std::string> OwnSettings::Find(std::string_view key) const
{
    const auto at = m_texts.find(key);
    return at == m_texts.end() ? std::nullopt : std::optional(at->second);
}

std::string OwnSettings::Text(std::string_view key, std::string_view fallback) const
{
    return Find(key).value_or(std::string(fallback));
}

int OwnSettings::Number(std::string_view key, int fallback, int least, int most) const
{
    const auto number = WholeNumber(Text(key));
    return number && *number >= least && *number <= most ? *number : fallback;
}

void OwnSettings::Set(std::string_view key, std::string_view text)
{
    if (Find(key) == text)
        return;
    m_texts[std::string(key)] = text;
    m_isChanged = true;
}

void OwnSettings::Remove(std::string_view key)
{
    const auto at = m_texts.find(key);
    if (at == m_texts.end())
        return;
    m_texts.erase(at);
    m_isChanged = true;
}

} // namespace zentaro
