#include "app/Music.h"

#include "base/Words.h"

#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr int kPiece = 60;        // seconds
constexpr double kAhead = 20'000; // ms
constexpr std::size_t kMostPieces = 4;

int PieceAt(double time)
{
    return time <= 0 ? 0 : static_cast<int>(time / (1000.0 * kPiece));
}

bool IsTold(const MediaFacts& facts)
{
    return !facts.song.empty() || !facts.artist.empty() || !facts.album.empty();
}

} // namespace

std::vector<std::string> Song::Lines() const
{
    std::vector<std::string> lines;
    for (const auto& line : { facts.artist, facts.album }) {
        if (!line.empty())
            lines.push_back(line);
    }
    std::string last = facts.number > 0 ? Words("Track %1", { std::to_string(facts.number) }) : std::string();
    if (facts.year > 0)
        last += (last.empty() ? "" : " \u00B7 ") + std::to_string(facts.year);
    if (!last.empty())
        lines.push_back(std::move(last));
    return lines;
}

void Music::Follow(const std::optional<PlaylistEntry>& entry)
{
    if (!entry) {
        m_song = {};
        LeaveBars();
        if (std::exchange(m_shown, std::nullopt))
            onNews();
        return;
    }
    if (entry->Id == m_song.id)
        return;
    m_song = { entry->Id, entry->FullPath, entry->Facts.song.empty() ? entry->Title : entry->Facts.song, entry->Facts,
        { entry->Thumbnail, {} } };
    LeaveBars();
    m_runner.FindCover(entry->FullPath, [this, id = entry->Id](Cover cover) {
        if (id == m_song.id)
            CoverFound(std::move(cover));
    });
    Show();
}

void Music::CoverFound(Cover cover)
{
    if (!cover.picture)
        return;
    m_song.cover = std::move(cover);
    Show();
}

void Music::Show()
{
    m_shown.reset();
    if (IsTold(m_song.facts) || m_song.cover.picture)
        m_shown = m_song;
    onNews();
}

std::string Music::CoverFileOf(std::uint64_t id) const
{
    return id != 0 && id == m_song.id ? m_song.cover.file : std::string();
}

void Music::WantBars(double time)
{
    if (!m_shown || m_making >= 0)
        return;
    for (const double moment : { time, time + kAhead }) {
        const bool isInside = m_song.facts.duration <= 0 || moment < m_song.facts.duration * 1000;
        if (isInside && !m_bars.contains(PieceAt(moment)))
            return MakeBars(PieceAt(moment));
    }
}

void Music::MakeBars(int piece)
{
    m_making = piece;
    m_runner.MakeBars({ m_song.path, piece * kPiece, kPiece }, [this, piece](BarPictures pictures) {
        m_making = -1;
        m_bars[piece] = std::move(pictures);
        // The one that lies farthest from where it plays.
        if (m_bars.size() > kMostPieces)
            m_bars.erase(piece - m_bars.begin()->first > m_bars.rbegin()->first - piece ? m_bars.begin()
                                                                                        : std::prev(m_bars.end()));
    });
}

void Music::LeaveBars()
{
    m_bars.clear();
    if (std::exchange(m_making, -1) >= 0)
        m_runner.CancelBars();
}

const BarPicture* Music::BarsAt(double time) const
{
    const auto piece = m_bars.find(PieceAt(time));
    if (piece == m_bars.end() || !piece->second || time < 0)
        return nullptr;
    const double inside = time - 1000.0 * kPiece * piece->first;
    const auto at = static_cast<std::size_t>(inside * kBarPictures / 1000);
    return at < piece->second->size() ? &(*piece->second)[at] : nullptr;
}

} // namespace zentaro
