#pragma once

#include "base/Picture.h"
#include "inspect/SoundBars.h"
#include "playlist/Playlist.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// A song's cover, and the file that it lies in; empty for none.
struct Cover {
    Picture picture;
    std::string file;
    bool operator==(const Cover&) const = default;
};

using BarPictures = std::shared_ptr<const std::vector<BarPicture>>;

/// Finds out about songs beside the window.
class MusicRunner {
public:
    virtual ~MusicRunner() = default;
    /// Calls back once, never from within; nothing is called back any more for the search before.
    virtual void FindCover(const std::string& path, std::function<void(Cover)> done) = 0;
    /// Calls back with the bars of the piece, none where they cannot be had; never from within. Only one at a time.
    virtual void MakeBars(const SoundPiece& piece, std::function<void(BarPictures)> done) = 0;
    /// Ends the making of bars; nothing is called back for it.
    virtual void CancelBars() = 0;
};

/// A song, as it is shown.
struct Song {
    std::uint64_t id = 0; ///< the entry's
    std::string path;
    std::string title; ///< by the file itself, or its name
    MediaFacts facts;
    Cover cover;

    /// The lines under the title: artist, album, and number and year in one.
    std::vector<std::string> Lines() const;
    bool operator==(const Song&) const = default;
};

/// What is known of the song that plays: its tags, its cover, its bars.
class Music {
public:
    explicit Music(MusicRunner& runner)
        : m_runner(runner)
    {
    }
    Music(const Music&) = delete;
    Music& operator=(const Music&) = delete;

    /// What plays, as the list knows it; nothing for what is no song. Its cover is looked for; the thumbnail, unless it
    /// is one for all, stands for it until then.
    void Follow(const std::optional<PlaylistEntry>& entry);
    /// Nothing where there is none, or nothing is known of it.
    const std::optional<Song>& Shown() const { return m_shown; }
    /// The file of that entry's cover; empty while it has none.
    std::string CoverFileOf(std::uint64_t id) const;

    /// The bars of that time (ms) of the song that is shown, and of what follows, are wanted.
    void WantBars(double time);
    /// Those are not wanted any more: what runs is ended, and nothing of them is kept.
    void LeaveBars();
    /// Null while there are none.
    const BarPicture* BarsAt(double time) const;
    /// Called when another song is shown.
    std::function<void()> onNews = [] {};

private:
    void CoverFound(Cover cover);
    void Show();
    void MakeBars(int piece);

    MusicRunner& m_runner;
    Song m_song; // id 0: none
    std::optional<Song> m_shown;
    std::map<int, BarPictures> m_bars; // by piece
    int m_making = -1;
};

} // namespace zentaro
