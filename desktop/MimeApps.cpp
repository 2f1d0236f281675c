#include "desktop/MimeApps.h"

#include <algorithm>
#include <utility>

namespace zentaro::desktop {
namespace {

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    while (true) {
        const auto end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsHeader(std::string_view line)
{
    return line.starts_with('[');
}

bool IsHeaderOf(std::string_view line, std::string_view group)
{
    return IsHeader(line) && line.substr(1).starts_with(group) && line.substr(1 + group.size()).starts_with(']');
}

std::vector<std::string> ProgramsOf(std::string_view line)
{
    auto programs = Split(line.substr(line.find('=') + 1), ';');
    for (auto& program : programs)
        program = std::string(Trimmed(program));
    std::erase(programs, "");
    return programs;
}

/// Without blanks around "=", as one of the readers wants it.
std::string LineOf(std::string_view type, const std::vector<std::string>& programs)
{
    auto line = std::string(type) + "=";
    for (const auto& program : programs)
        line += program + ";";
    return line;
}

} // namespace

MimeApps::MimeApps(const std::string& text)
    : m_lines(Split(text, '\n'))
{
}

std::vector<std::string> MimeApps::Programs(std::string_view group, std::string_view type) const
{
    std::vector<std::string> all;
    for (const auto line : LinesOf(group, type)) {
        for (auto& program : ProgramsOf(m_lines[line]))
            all.push_back(std::move(program));
    }
    return all;
}

void MimeApps::PutFirst(std::string_view group, std::string_view type, const std::vector<std::string>& programs)
{
    auto lines = LinesOf(group, type);
    if (lines.empty()) {
        const auto start = StartOf(group);
        m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(start), LineOf(type, {}));
        lines = { start };
    }
    // Readers differ in which of several lines of a type counts.
    for (const auto line : lines) {
        auto all = programs;
        for (const auto& program : ProgramsOf(m_lines[line])) {
            if (std::find(programs.begin(), programs.end(), program) == programs.end())
                all.push_back(program);
        }
        if (ProgramsOf(m_lines[line]) != all)
            m_lines[line] = LineOf(type, all);
    }
}

void MimeApps::Remove(std::string_view group, std::string_view type, const std::string& program)
{
    auto lines = LinesOf(group, type);
    std::reverse(lines.begin(), lines.end());
    for (const auto line : lines) {
        auto programs = ProgramsOf(m_lines[line]);
        if (std::erase(programs, program) == 0)
            continue;
        if (programs.empty())
            m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(line));
        else
            m_lines[line] = LineOf(type, programs);
    }
}

std::string MimeApps::Text() const
{
    std::string text;
    for (const auto& line : m_lines)
        text += line + '\n';
    text.pop_back();
    return text;
}

std::vector<std::size_t> MimeApps::LinesOf(std::string_view group, std::string_view type) const
{
    std::vector<std::size_t> found;
    bool inside = false;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const std::string_view line = m_lines[i];
        if (IsHeader(line))
            inside = IsHeaderOf(line, group);
        else if (inside && line.find('=') != std::string_view::npos && Trimmed(line.substr(0, line.find('='))) == type)
            found.push_back(i);
    }
    return found;
}

/// The place of a group's first line.
std::size_t MimeApps::StartOf(std::string_view group)
{
    const auto header =
        std::find_if(m_lines.begin(), m_lines.end(), [&](const std::string& line) { return IsHeaderOf(line, group); });
    if (header == m_lines.end()) {
        if (m_lines.back().empty())
            m_lines.pop_back();
        m_lines.push_back("[" + std::string(group) + "]");
        m_lines.push_back("");
        return m_lines.size() - 1;
    }
    // The text may end with the header itself.
    if (header + 1 == m_lines.end()) {
        m_lines.push_back("");
        return m_lines.size() - 1;
    }
    return static_cast<std::size_t>(header - m_lines.begin()) + 1;
}

} // namespace zentaro::desktop
