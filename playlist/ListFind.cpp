#include "playlist/ListFind.h"

#include "playlist/ListText.h"

#include <algorithm>
#include <cstdint>

namespace zentaro {

namespace {

/// The letters of U+00C0 and following without accents; "." stays as it is.
constexpr std::string_view kPlainLatin = "aaaaaa.ceeeeiiii.nooooo.ouuuuy..aaaaaa.ceeeeiiii.nooooo.ouuuuy.y"
                                         "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii..jjkkklllllll"
                                         "lllnnnnnn...oooooo..rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr std::uint32_t kLatin = 0xC0;

std::uint32_t Folded(std::uint32_t code)
{
    if (code >= 'A' && code <= 'Z')
        return code + 32;
    if (code >= kLatin && code < kLatin + kPlainLatin.size()) {
        const char plain = kPlainLatin[code - kLatin];
        if (plain != '.')
            return static_cast<unsigned char>(plain);
        return code < 0xDF ? code + 32 : code; // the capitals of Latin 1
    }
    const bool isGreek = code >= 0x391 && code <= 0x3A9;
    const bool isCyrillic = code >= 0x410 && code <= 0x42F;
    if (isGreek || isCyrillic)
        return code + 32;
    return code >= 0x400 && code < 0x410 ? code + 80 : code;
}

void Append(std::string& text, std::uint32_t code)
{
    // Only compared with its like: any form will do that keeps different letters apart.
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    for (int shift = 18; shift >= 0; shift -= 6)
        text += static_cast<char>(static_cast<unsigned char>(0x80 | ((code >> shift) & 0x3F)));
}

/// The text in the form in which it is compared; `places`, for each of its bytes, where in the text it comes from.
std::string Folded(std::string_view text, std::vector<std::size_t>* places = nullptr)
{
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto letter = FirstLetter(text.substr(at));
        Append(folded, Folded(letter.code));
        if (places != nullptr)
            places->resize(folded.size(), at);
        at += letter.length;
    }
    if (places != nullptr)
        places->push_back(text.size());
    return folded;
}

std::vector<std::string> Words(std::string_view text)
{
    std::vector<std::string> words;
    while (!text.empty()) {
        const auto end = std::min(text.find(' '), text.size());
        if (end > 0)
            words.push_back(Folded(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

} // namespace

std::vector<TextPart> FoundParts(std::string_view text, std::string_view words)
{
    std::vector<std::size_t> places;
    const auto folded = Folded(text, &places);
    std::vector<TextPart> parts;
    for (const auto& word : Words(words)) {
        for (auto at = folded.find(word); at != std::string::npos; at = folded.find(word, at + word.size()))
            parts.push_back({ places[at], places[at + word.size()] });
    }
    std::sort(parts.begin(), parts.end(), [](const TextPart& a, const TextPart& b) { return a.begin < b.begin; });
    return parts;
}

std::vector<int> ListFind::Rows(std::string_view words)
{
    Read();
    const auto wanted = Words(words);
    std::vector<int> rows;
    for (std::size_t row = 0; row < m_texts.size(); ++row) {
        const auto& text = m_texts[row];
        if (std::all_of(wanted.begin(), wanted.end(),
                [&](const std::string& word) { return text.find(word) != std::string::npos; }))
            rows.push_back(static_cast<int>(row));
    }
    return rows;
}

void ListFind::Read()
{
    if (std::exchange(m_isRead, true) && std::exchange(m_revision, m_playlist.Revision()) == m_playlist.Revision())
        return;
    m_revision = m_playlist.Revision();
    m_texts.clear();
    m_texts.reserve(static_cast<std::size_t>(m_playlist.Count()));
    for (int row = 0; row < m_playlist.Count(); ++row) {
        const auto& facts = m_playlist.FactsAt(row);
        m_texts.push_back(Folded(m_playlist.List().Item(row).Text + "\n" + m_playlist.PathAt(row) + "\n" + facts.artist
            + "\n" + facts.album));
    }
}

} // namespace zentaro
