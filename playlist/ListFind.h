#pragma once

#include "playlist/Playlist.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zentaro {

/// A part of a text, in bytes.
struct TextPart {
    std::size_t begin = 0, end = 0;
    bool operator==(const TextPart&) const = default;
};

/// The parts of the text in which the words are found, in order; whatever the case of letters and their accents.
std::vector<TextPart> FoundParts(std::string_view text, std::string_view words);

/// Finds entries by words of title, artist, album and folder, all of which they must have. It keeps what it has read of
/// the entries until they change.
class ListFind {
public:
    explicit ListFind(const Playlist& playlist)
        : m_playlist(playlist)
    {
    }

    /// The rows, in order; all of them for no words.
    std::vector<int> Rows(std::string_view words);

private:
    void Read();

    const Playlist& m_playlist;
    std::vector<std::string> m_texts; // one for each row
    std::uint64_t m_revision = 0;
    bool m_isRead = false;
};

} // namespace zentaro
