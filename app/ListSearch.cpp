#include "app/ListSearch.h"

#include "app/Player.h"
#include "base/Words.h"
#include "playlist/FancyList.h"
#include "shell/Announcer.h"
#include "shell/QtText.h"

#include <QKeyEvent>

#include <algorithm>

namespace zentaro {

namespace {

bool IsText(const QKeyEvent& event)
{
    const auto text = event.text();
    const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(event.modifiers() & others) && !text.isEmpty() && text[0].isPrint();
}

} // namespace

ListSearch::ListSearch(Player& player, FancyList& list)
    : QObject(&list)
    , m_player(player)
    , m_list(list)
    , m_find(player.Entries())
{
    connect(&list, &FancyList::FindOutdated, this, &ListSearch::Show);
}

bool ListSearch::UsesKey(const QKeyEvent& event) const
{
    const auto key = event.key();
    if (m_words.empty())
        return IsText(event) && key != Qt::Key_Space && m_list.Count() > 0;
    return IsText(event) || key == Qt::Key_Escape || key == Qt::Key_Backspace || key == Qt::Key_Return
        || key == Qt::Key_Enter;
}

bool ListSearch::Press(const QKeyEvent& event)
{
    if (UsesKey(event))
        return Type(event);
    if (m_words.empty() || (event.key() != Qt::Key_Up && event.key() != Qt::Key_Down))
        return false;
    Step(event.key() == Qt::Key_Up ? -1 : 1);
    return true;
}

bool ListSearch::Type(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape) {
        m_words.clear();
    } else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        PlayFound();
        return true;
    } else if (event.key() == Qt::Key_Backspace) {
        auto words = ToQString(m_words);
        words.chop(words.back().isLowSurrogate() ? 2 : 1);
        m_words = ToText(words);
    } else {
        m_words += ToText(event.text());
    }
    Show();
    if (!m_words.empty())
        Announce(*m_list.window(),
            ToQString(Words("Find: %1   %2 of %3",
                { m_words, std::to_string(m_list.Layout().PlaceCount()), std::to_string(m_list.Count()) })));
    return true;
}

void ListSearch::Show()
{
    m_list.SetFind(m_words, m_words.empty() ? std::vector<int>() : m_find.Rows(m_words));
}

void ListSearch::Step(int step)
{
    const auto& layout = m_list.Layout();
    if (layout.PlaceCount() == 0)
        return;
    const int place = layout.PlaceOf(m_list.SelectedItem());
    const int row = layout.RowOf(place < 0 ? 0 : std::clamp(place + step, 0, layout.PlaceCount() - 1));
    m_list.SetSelectedItem(row);
    m_player.Entries().OnClick(m_player.Settings().PlayMode);
    m_player.Entries().List().ShowRow(row);
}

void ListSearch::PlayFound()
{
    const auto& layout = m_list.Layout();
    if (layout.PlaceCount() == 0)
        return;
    const int selected = m_list.SelectedItem();
    const int row = layout.PlaceOf(selected) >= 0 && selected < m_list.Count() ? selected : layout.RowOf(0);
    m_words.clear();
    Show();
    m_player.Sequence().PlayEntry(row);
    m_player.Entries().List().ShowRow(row);
}

} // namespace zentaro
