#include "playlist/ListText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace zentaro {

namespace {

constexpr std::string_view kHex = "0123456789ABCDEF";

int HexValue(char c)
{
    if (c >= 'a' && c <= 'f')
        c = static_cast<char>(c - 'a' + 'A');
    const auto at = kHex.find(c);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

bool StaysInAddress(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')
        || std::string_view("/-._~!$'()*+,=@").find(c) != std::string_view::npos;
}

std::string Utf8Of(std::uint32_t code)
{
    const auto byte = [](std::uint32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    const auto tail = [&](int shift) { return byte(0x80 | ((code >> shift) & 0x3F)); };
    if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        return {};
    if (code < 0x80)
        return { byte(code) };
    if (code < 0x800)
        return { byte(0xC0 | (code >> 6)), tail(0) };
    if (code < 0x10000)
        return { byte(0xE0 | (code >> 12)), tail(6), tail(0) };
    return { byte(0xF0 | (code >> 18)), tail(12), tail(6), tail(0) };
}

/// What "amp" or "#38" stands for; nothing for others.
std::string Resolved(std::string_view sign)
{
    constexpr std::array<std::pair<std::string_view, const char*>, 5> names{ { { "amp", "&" }, { "lt", "<" },
        { "gt", ">" }, { "quot", "\"" }, { "apos", "'" } } };
    for (const auto& [name, text] : names) {
        if (name == sign)
            return text;
    }
    if (!sign.starts_with('#'))
        return {};
    sign.remove_prefix(1);
    const bool isHex = sign.starts_with('x') || sign.starts_with('X');
    sign.remove_prefix(isHex ? 1 : 0);
    std::uint32_t code = 0;
    const auto read = std::from_chars(sign.data(), sign.data() + sign.size(), code, isHex ? 16 : 10);
    return read.ec == std::errc() && read.ptr == sign.data() + sign.size() ? Utf8Of(code) : std::string();
}

std::string WithoutSigns(std::string_view text)
{
    constexpr std::size_t longestSign = 12;
    std::string plain;
    while (!text.empty()) {
        const auto at = std::min(text.find('&'), text.size());
        plain += text.substr(0, at);
        text.remove_prefix(at);
        if (text.empty())
            break;
        const auto end = text.substr(0, longestSign).find(';');
        const auto resolved = end == std::string_view::npos ? std::string() : Resolved(text.substr(1, end - 1));
        plain += resolved.empty() ? "&" : resolved;
        text.remove_prefix(resolved.empty() ? 1 : end + 1);
    }
    return plain;
}

} // namespace

std::string LowerAscii(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

Letter FirstLetter(std::string_view text)
{
    constexpr Letter none{ 0xFFFD, 1 };
    const auto lead = static_cast<unsigned char>(text[0]);
    if (lead < 0x80)
        return { lead, 1 };
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || length > text.size())
        return none;
    std::uint32_t code = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return none;
        code = (code << 6) | (byte & 0x3F);
    }
    constexpr std::array<std::uint32_t, 5> least{ 0, 0, 0x80, 0x800, 0x10000 };
    const bool isCharacter = code >= least[length] && code <= 0x10FFFF && (code < 0xD800 || code >= 0xE000);
    return isCharacter ? Letter{ code, length } : none;
}

bool IsUtf8(std::string_view text)
{
    while (!text.empty()) {
        const auto letter = FirstLetter(text);
        if (letter.code == 0xFFFD && letter.length == 1)
            return false;
        text.remove_prefix(letter.length);
    }
    return true;
}

std::string FromLatin1(std::string_view text)
{
    std::string utf8;
    for (const char c : text)
        utf8 += c == '\0' ? std::string(1, c) : Utf8Of(static_cast<unsigned char>(c));
    return utf8;
}

std::string PercentEncoded(std::string_view text)
{
    std::string encoded;
    for (const char c : text) {
        if (StaysInAddress(c)) {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += kHex[byte >> 4];
        encoded += kHex[byte & 0xF];
    }
    return encoded;
}

std::string PercentDecoded(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
        const int low = high >= 0 ? HexValue(text[i + 2]) : -1;
        if (low >= 0) {
            plain += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
            i += 2;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

std::string XmlEscaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (static_cast<unsigned char>(c) >= ' ' || c == '\t')
            escaped += c;
    }
    return IsUtf8(escaped) ? escaped : FromLatin1(escaped);
}

bool XmlScanner::Next()
{
    if (!m_unclosed.empty()) {
        m_kind = Part::End;
        m_text = std::exchange(m_unclosed, {});
        return true;
    }
    while (!m_rest.empty()) {
        if (m_rest.front() != '<') {
            const auto end = std::min(m_rest.find('<'), m_rest.size());
            m_kind = Part::Text;
            m_text = WithoutSigns(m_rest.substr(0, end));
            m_rest.remove_prefix(end);
            return true;
        }
        if (TakeMarkup())
            return true;
    }
    return false;
}

// False for what is neither element nor text.
bool XmlScanner::TakeMarkup()
{
    const auto take = [this](std::string_view begin, std::string_view end, std::string_view& inner) {
        if (!m_rest.starts_with(begin))
            return false;
        const auto at = std::min(m_rest.find(end, begin.size()), m_rest.size());
        inner = m_rest.substr(begin.size(), at - begin.size());
        m_rest.remove_prefix(std::min(at + end.size(), m_rest.size()));
        return true;
    };
    std::string_view inner;
    if (take("<![CDATA[", "]]>", inner)) {
        m_kind = Part::Text;
        m_text = inner;
        return true;
    }
    if (take("<!--", "-->", inner) || take("<?", "?>", inner) || take("<!", ">", inner))
        return false;
    const bool isEnd = m_rest.starts_with("</");
    if (!take(isEnd ? "</" : "<", ">", inner))
        return false;
    const bool isClosed = inner.ends_with('/');
    auto name = inner.substr(0, inner.find_first_of(" \t\r\n/"));
    name.remove_prefix(name.find(':') == std::string_view::npos ? 0 : name.find(':') + 1);
    m_kind = isEnd ? Part::End : Part::Begin;
    m_text = name;
    if (!isEnd && isClosed)
        m_unclosed = m_text;
    return true;
}

} // namespace zentaro
