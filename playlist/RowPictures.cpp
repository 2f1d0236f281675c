#include "playlist/RowPictures.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kAround = 40; // rows above and below those in sight that are made ready
constexpr int kFar = 150;   // from here on a thumbnail may go
constexpr std::size_t kMostLoaded = 500;

} // namespace

RowPictures::RowPictures(Playlist& playlist, std::function<void(std::vector<PictureOrder>)> order)
    : m_playlist(playlist)
    , m_order(std::move(order))
{
}

void RowPictures::RowsInSight(int first, int last)
{
    m_first = first;
    m_last = last;
    OrderMissing();
}

void RowPictures::EntriesChanged()
{
    // Rows that are inspected anew bring their thumbnails along.
    m_seen = std::min(m_seen, m_playlist.Count());
    for (; m_seen < m_playlist.Count(); ++m_seen) {
        if (m_playlist.IsThumbnailKept(m_seen) && m_playlist.List().Item(m_seen).Pic)
            m_loaded.push_back(m_playlist.IdAt(m_seen));
    }
    OrderMissing();
    DropFarOnes();
}

void RowPictures::OrderMissing()
{
    std::vector<PictureOrder> orders;
    for (int row = m_first; row <= m_last; ++row)
        OrderRow(row, orders);
    OrderRow(m_playlist.List().PlayingItem(), orders);
    for (int distance = 1; distance <= kAround && m_first <= m_last; ++distance) {
        OrderRow(m_last + distance, orders);
        OrderRow(m_first - distance, orders);
    }
    if (!orders.empty())
        m_order(std::move(orders));
}

void RowPictures::OrderRow(int row, std::vector<PictureOrder>& orders)
{
    if (row < 0 || row >= m_playlist.Count() || !m_playlist.IsThumbnailKept(row) || m_playlist.List().Item(row).Pic)
        return;
    if (m_ordered.insert(m_playlist.IdAt(row)).second)
        orders.push_back({ m_playlist.IdAt(row), m_playlist.PathAt(row) });
}

void RowPictures::Found(std::vector<FoundPicture> pictures)
{
    for (auto& found : pictures) {
        m_ordered.erase(found.id);
        // Without a picture there is none to be had any more.
        const bool isKept = bool(found.picture);
        m_playlist.SetThumbnail(found.id, std::move(found.picture), isKept);
        if (isKept)
            m_loaded.push_back(found.id);
    }
    DropFarOnes();
}

void RowPictures::DropFarOnes()
{
    if (m_loaded.size() <= kMostLoaded)
        return;
    std::erase_if(m_loaded, [this](std::uint64_t id) {
        const auto row = m_playlist.IndexOf(id);
        if (!row)
            return true;
        if ((*row >= m_first - kFar && *row <= m_last + kFar) || *row == m_playlist.List().PlayingItem())
            return false;
        m_playlist.SetThumbnail(id, {}, true);
        return true;
    });
}

} // namespace zentaro
