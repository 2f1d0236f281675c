#include "playlist/PlayOrder.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

PlayOrder::PlayOrder(RandomSource random)
    : m_random(std::move(random))
{
}

void PlayOrder::BuildSequential(int count, int selected)
{
    m_pendingShuffle = kNone;
    // Adding files one by one extends the table instead of writing it anew each time.
    if (!m_ascending || static_cast<int>(m_table.size()) > count)
        m_table.clear();
    m_ascending = true;
    for (int index = static_cast<int>(m_table.size()); index < count; ++index)
        m_table.push_back(index);
    SetPosition(selected);
}

void PlayOrder::BuildShuffle(int count, int selected)
{
    m_pendingShuffle = count;
    SetPosition(selected);
}

int PlayOrder::Count() const
{
    return m_pendingShuffle != kNone ? m_pendingShuffle : static_cast<int>(m_table.size());
}

int PlayOrder::At(int position)
{
    DrawPendingShuffle();
    return position >= 0 && position < Count() ? m_table[static_cast<std::size_t>(position)] : kNone;
}

void PlayOrder::SetPosition(int position)
{
    m_position = position >= 0 && position < Count() ? position : kNone;
}

void PlayOrder::RemoveAt(int position)
{
    DrawPendingShuffle();
    if (position < 0 || position >= Count())
        return;
    m_table.erase(m_table.begin() + position);
    m_ascending = m_ascending && position == Count();
    m_position = std::min(m_position, Count() - 1);
}

void PlayOrder::Clear()
{
    m_table.clear();
    m_pendingShuffle = kNone;
    m_ascending = true;
    m_position = kNone;
}

void PlayOrder::DrawPendingShuffle()
{
    if (m_pendingShuffle == kNone)
        return;
    m_table.assign(static_cast<std::size_t>(m_pendingShuffle), kNone);
    m_ascending = false;
    const int count = std::exchange(m_pendingShuffle, kNone);
    for (int index = 0; index < count; ++index) {
        std::size_t slot = 0;
        // The rounding gives the first and the last slot half the chance of the others.
        do {
            slot = static_cast<std::size_t>(RoundHalfEven(m_random() * (count - 1)));
        } while (m_table[slot] != kNone);
        m_table[slot] = index;
    }
}

} // namespace zentaro
