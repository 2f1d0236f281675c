#include "playlist/ListHistory.h"

#include <utility>

namespace zentaro {

ListStep& ListHistory::Begin(ListEdit edit, ListShape before)
{
    m_undone.clear();
    m_isAdding = edit == ListEdit::Add;
    if (m_done.size() == kMostSteps)
        m_done.pop_front();
    auto& step = m_done.emplace_back();
    step.edit = edit;
    step.other = std::move(before);
    return step;
}

void ListHistory::Undone()
{
    m_isAdding = false;
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
}

void ListHistory::Redone()
{
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
}

} // namespace zentaro
