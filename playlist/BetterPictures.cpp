#include "playlist/BetterPictures.h"

#include "inspect/Thumbnail.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr std::size_t kMost = 80; // larger ones in memory

bool IsLarge(const Picture& picture)
{
    return picture.Width() > kThumbnailWidth || picture.Height() > kThumbnailHeight;
}

} // namespace

void BetterPictures::RowsInSight(int first, int last)
{
    m_first = first;
    m_last = last;
    GoOn();
}

bool BetterPictures::IsWanted(int row) const
{
    const auto& picture = m_playlist.List().Item(row).Pic;
    const auto& facts = m_playlist.FactsAt(row);
    // One that could not be had again when it has gone stays.
    const bool canGo = isStandIn(picture) || (!IsLarge(picture) && m_playlist.IsThumbnailKept(row));
    return picture && canGo && facts.duration > 0 && !m_without.contains(m_playlist.IdAt(row));
}

void BetterPictures::GoOn()
{
    if (!order || m_ordered != 0)
        return;
    for (int row = std::max(m_first, 0); row <= std::min(m_last, m_playlist.Count() - 1); ++row) {
        if (!IsWanted(row))
            continue;
        m_ordered = m_playlist.IdAt(row);
        const auto& facts = m_playlist.FactsAt(row);
        return order({ m_ordered, m_playlist.PathAt(row), facts.duration * 1000, facts.width <= 0 });
    }
}

void BetterPictures::Found(std::uint64_t id, Picture picture)
{
    m_ordered = 0;
    if (const auto row = m_playlist.IndexOf(id); row && IsLarge(picture)) {
        const auto before = m_playlist.List().Item(*row).Pic;
        m_better.push_back({ id, isStandIn(before) ? before : Picture() });
        m_playlist.SetThumbnail(id, std::move(picture), true);
        DropFarOnes();
    } else {
        m_without.insert(id);
    }
    GoOn();
}

void BetterPictures::DropFarOnes()
{
    for (auto left = m_better.size(); m_better.size() > kMost && left > 0; --left) {
        const auto far = m_better.front();
        m_better.pop_front();
        const auto row = m_playlist.IndexOf(far.id);
        if (row && ((*row >= m_first && *row <= m_last) || *row == m_playlist.List().PlayingItem()))
            m_better.push_back(far);
        else if (row && IsLarge(m_playlist.List().Item(*row).Pic))
            m_playlist.SetThumbnail(far.id, far.standIn, far.standIn.IsEmpty());
    }
}

} // namespace zentaro
