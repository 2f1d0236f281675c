#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// As part of a line: a backslash marks what would end the line or a field of it.
std::string Escaped(std::string_view text);
std::string Unescaped(std::string_view escaped);

/// Rows of fields, as the player's own state is kept: a line each, fields between tabs.
class StateWriter {
public:
    explicit StateWriter(std::string_view header);

    /// Begins a row.
    StateWriter& Row(std::string_view word);
    StateWriter& Field(std::string_view text);
    StateWriter& Number(double value);
    /// The text; nothing can be added afterwards.
    std::string Take();

private:
    std::string m_text;
};

/// The rows of such a text, in order, the word of each first; none when the header is another or the end is missing.
std::vector<std::vector<std::string>> ReadState(std::string_view text, std::string_view header);

/// The field as a number; 0 for what is none or not there.
double NumberAt(const std::vector<std::string>& row, std::size_t at);
/// Empty where the row has no such field.
std::string TextAt(const std::vector<std::string>& row, std::size_t at);

} // namespace zentaro
