#include "app/ThumbScrub.h"

#include "app/Player.h"
#include "inspect/QtServices.h"
#include "playlist/FancyList.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kPlaces = 16; // in a thumbnail's width

} // namespace

ThumbScrub::ThumbScrub(Player& player, Previews& previews, FancyList& list)
    : QObject(&list)
    , m_player(player)
    , m_previews(previews)
    , m_list(list)
{
    connect(&list, &FancyList::ThumbPointed, this, &ThumbScrub::Point);
    connect(&list, &FancyList::ThumbLeft, this, &ThumbScrub::Leave);
}

void ThumbScrub::Point(int row, double share)
{
    const auto& facts = std::as_const(m_player).Entries().FactsAt(row);
    if (facts.width <= 0 || facts.duration <= 0 || !m_player.Choices().Has(Choice::Previews))
        return Leave();
    const int place = std::clamp(static_cast<int>(share * kPlaces), 0, kPlaces - 1);
    m_row = row;
    m_share = static_cast<double>(place + 1) / kPlaces;
    const double length = facts.duration * 1000;
    m_previews.onNews = [this] { ShowPicture(); };
    m_previews.PointAt({ m_player.Entries().PathAt(row), length }, length * place / kPlaces, kPlaces);
    ShowPicture();
}

void ThumbScrub::Leave()
{
    if (std::exchange(m_row, -1) < 0)
        return;
    m_previews.Leave();
    m_bytes = nullptr;
    m_picture = {};
    m_list.SetScrub(-1, {}, 0);
}

void ThumbScrub::ShowPicture()
{
    if (m_row < 0)
        return;
    if (const auto bytes = m_previews.Picture(); bytes != m_bytes) {
        m_bytes = bytes;
        m_picture = bytes ? DecodePictureBytes(*bytes) : Picture();
    }
    m_list.SetScrub(m_row, m_picture, m_share);
}

} // namespace zentaro
