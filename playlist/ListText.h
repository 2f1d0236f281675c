#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zentaro {

/// Letters of ASCII in small.
std::string LowerAscii(std::string_view text);

/// A character in UTF-8.
struct Letter {
    std::uint32_t code = 0;
    std::size_t length = 1; ///< bytes
};
/// The first one of a text that is not empty; a byte that belongs to none stands for itself, as U+FFFD.
Letter FirstLetter(std::string_view text);
bool IsUtf8(std::string_view text);
/// Every byte is a character.
std::string FromLatin1(std::string_view text);

/// "%20" for every byte that an address does not hold as it is; "/" stays.
std::string PercentEncoded(std::string_view text);
/// What is no such sign stays as it is.
std::string PercentDecoded(std::string_view text);

/// For the text of an element; what no XML may hold is left out.
std::string XmlEscaped(std::string_view text);

/// Goes through a text that is more or less XML, without checking it.
class XmlScanner {
public:
    enum class Part { Begin, End, Text };
    /// The text must live as long as the scanner.
    explicit XmlScanner(std::string_view text)
        : m_rest(text)
    {
    }

    /// False at the end.
    bool Next();
    Part Kind() const { return m_kind; }
    /// The element's name without its prefix, or the text with its signs resolved.
    const std::string& Text() const { return m_text; }

private:
    bool TakeMarkup();

    std::string_view m_rest;
    Part m_kind = Part::Text;
    std::string m_text;
    std::string m_unclosed; // an element without content ends as soon as it has begun
};

} // namespace zentaro
