#include "app/StateText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr std::string_view kEnd = "end\n";

std::vector<std::string> Fields(std::string_view line)
{
    std::vector<std::string> fields;
    for (;;) {
        const auto tab = line.find('\t');
        fields.push_back(Unescaped(line.substr(0, tab)));
        if (tab == std::string_view::npos)
            return fields;
        line.remove_prefix(tab + 1);
    }
}

} // namespace

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '\\' || c == '\t' || c == '\n' || c == '\r')
            escaped += '\\';
        escaped += c == '\t' ? 't' : c == '\n' ? 'n' : c == '\r' ? 'r' : c;
    }
    return escaped;
}

std::string Unescaped(std::string_view field)
{
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\' || i + 1 == field.size()) {
            text += field[i];
            continue;
        }
        const char next = field[++i];
        text += next == 't' ? '\t' : next == 'n' ? '\n' : next == 'r' ? '\r' : next;
    }
    return text;
}

StateWriter::StateWriter(std::string_view header)
    : m_text(header)
{
}

StateWriter& StateWriter::Row(std::string_view word)
{
    m_text.append("\n").append(word);
    return *this;
}

StateWriter& StateWriter::Field(std::string_view text)
{
    m_text.append("\t").append(Escaped(text));
    return *this;
}

StateWriter& StateWriter::Number(double value)
{
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return Field({ digits.data(), written.ptr });
}

std::string StateWriter::Take()
{
    return std::move(m_text.append("\n").append(kEnd));
}

std::vector<std::vector<std::string>> ReadState(std::string_view text, std::string_view header)
{
    std::vector<std::vector<std::string>> rows;
    const auto isWhole = text.size() > header.size() + kEnd.size() && text.starts_with(header)
        && text[header.size()] == '\n' && text.ends_with(kEnd) && text[text.size() - kEnd.size() - 1] == '\n';
    if (!isWhole)
        return rows;
    text = text.substr(header.size() + 1, text.size() - header.size() - 1 - kEnd.size());
    while (!text.empty()) {
        const auto end = text.find('\n');
        rows.push_back(Fields(text.substr(0, end)));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return rows;
}

double NumberAt(const std::vector<std::string>& row, std::size_t at)
{
    double value = 0;
    if (at >= row.size())
        return 0;
    const auto read = std::from_chars(row[at].data(), row[at].data() + row[at].size(), value);
    return read.ec == std::errc() && std::isfinite(value) ? value : 0;
}

std::string TextAt(const std::vector<std::string>& row, std::size_t at)
{
    return at < row.size() ? row[at] : std::string();
}

} // namespace zentaro
