#include "playlist/PlayOrder.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace zentaro {

PlayOrder::PlayOrder(RandomSource random)
    : m_random(std::move(random))
{
}

void PlayOrder::BuildSequential(int count, int selected)
{
    ++m_builds;
    m_now.pendingShuffle = kNone;
    // Adding files one by one extends the table instead of writing it anew each time.
    if (!m_now.isAscending || static_cast<int>(m_now.values.size()) > count)
        m_now.values.clear();
    m_now.isAscending = true;
    for (int index = static_cast<int>(m_now.values.size()); index < count; ++index)
        m_now.values.push_back(index);
    SetPosition(selected);
}

void PlayOrder::BuildShuffle(int count, int selected)
{
    ++m_builds;
    m_now.pendingShuffle = count;
    SetPosition(selected);
}

int PlayOrder::Count() const
{
    return m_now.pendingShuffle != kNone ? m_now.pendingShuffle : static_cast<int>(m_now.values.size());
}

int PlayOrder::At(int position)
{
    DrawPendingShuffle();
    return position >= 0 && position < Count() ? m_now.values[static_cast<std::size_t>(position)] : kNone;
}

void PlayOrder::SetPosition(int position)
{
    m_now.position = position >= 0 && position < Count() ? position : kNone;
}

void PlayOrder::RemoveAt(int position)
{
    DrawPendingShuffle();
    if (position < 0 || position >= Count())
        return;
    m_now.values.erase(m_now.values.begin() + position);
    m_now.isAscending = m_now.isAscending && position == Count();
    m_now.position = std::min(m_now.position, Count() - 1);
}

void PlayOrder::Clear()
{
    m_now.values.clear();
    m_now.pendingShuffle = kNone;
    m_now.isAscending = true;
    m_now.position = kNone;
}

void PlayOrder::PutNext(const std::vector<int>& values)
{
    DrawPendingShuffle();
    const int present = At(m_now.position);
    const auto isMoved = [&](int value) {
        return value != present && std::find(values.begin(), values.end(), value) != values.end();
    };
    std::vector<int> moved;
    std::copy_if(values.begin(), values.end(), std::back_inserter(moved),
        [&](int value) { return value != present && value >= 0 && value < Count(); });
    std::erase_if(m_now.values, isMoved);
    const auto at = std::find(m_now.values.begin(), m_now.values.end(), present);
    m_now.position = at == m_now.values.end() ? kNone : static_cast<int>(at - m_now.values.begin());
    m_now.values.insert(m_now.values.begin() + m_now.position + 1, moved.begin(), moved.end());
    m_now.isAscending = std::is_sorted(m_now.values.begin(), m_now.values.end());
}

void PlayOrder::DrawPendingShuffle()
{
    if (m_now.pendingShuffle == kNone)
        return;
    m_now.values.assign(static_cast<std::size_t>(m_now.pendingShuffle), kNone);
    m_now.isAscending = false;
    const int count = std::exchange(m_now.pendingShuffle, kNone);
    for (int index = 0; index < count; ++index) {
        std::size_t slot = 0;
        // The rounding gives the first and the last slot half the chance of the others.
        do {
            slot = static_cast<std::size_t>(RoundHalfEven(m_random() * (count - 1)));
        } while (m_now.values[slot] != kNone);
        m_now.values[slot] = index;
    }
}

} // namespace zentaro
