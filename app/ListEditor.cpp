#include "app/ListEditor.h"

#include "base/Words.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace zentaro {

std::vector<int> ListEditor::ChosenRows() const
{
    const auto& list = m_rooms.library.Entries().List();
    auto rows = list.MarkedRows();
    if (rows.empty() && list.SelectedItem() >= 0 && list.SelectedItem() < list.Count())
        rows.push_back(list.SelectedItem());
    return rows;
}

void ListEditor::Remove()
{
    const int before = Entries().Count();
    // One entry leaves the order as it is told of it; several have it built anew.
    const bool isRenumbered = m_rooms.settings.ChosenWays().FollowsWhatPlays();
    const auto marked = isRenumbered ? ChosenRows() : Entries().List().MarkedRows();
    if (!marked.empty())
        Entries().Arrange(ListEdit::Remove, RemainingRows(before, marked), PlayMode());
    else
        Entries().RemoveSelected();
    OfferUndo(before - Entries().Count());
    Changed();
}

void ListEditor::RemoveAll()
{
    const int before = Entries().Count();
    Entries().RemoveAll();
    OfferUndo(before);
    Changed();
}

void ListEditor::Changed()
{
    m_rooms.onEdited();
    m_rooms.face.window->StateChanged();
}

void ListEditor::OfferUndo(int removed)
{
    if (removed == 0)
        return;
    const auto text = CountedWords(removed, "Removed one entry", "Removed %n entries");
    m_rooms.face.window->ShowOffer(text, "UndoListEdit");
}

void ListEditor::Arrange(ListEdit edit, const std::vector<int>& rows)
{
    std::vector<int> present(rows.size());
    std::iota(present.begin(), present.end(), 0);
    if (rows == present && static_cast<int>(rows.size()) == Entries().Count())
        return;
    Entries().Arrange(edit, rows, PlayMode());
    Changed();
}

void ListEditor::MoveBy(int step)
{
    const auto rows = ChosenRows();
    if (rows.empty())
        return;
    const int to = step < 0 ? rows.front() - 1 : rows.back() + 2;
    if (to < 0 || to > Entries().Count())
        return;
    MoveTo(to);
    const auto moved = ChosenRows();
    Entries().List().ShowRow(step < 0 ? moved.front() : moved.back());
}

void ListEditor::MoveTo(int row)
{
    Arrange(ListEdit::Move, MovedRows(Entries().Count(), ChosenRows(), row));
}

void ListEditor::Sort(ListSort by)
{
    Arrange(ListEdit::Sort, SortedRows(Entries(), by, m_rooms.settings.Separator()));
}

void ListEditor::PlayNext()
{
    auto& list = Entries().List();
    const int playing = list.PlayingItem() >= 0 ? list.PlayingItem() : list.SelectedItem();
    auto rows = ChosenRows();
    std::erase(rows, playing);
    if (rows.empty())
        return;
    // The selection stands for what plays, and the order goes on from it.
    list.SetSelectedItem(playing);
    const auto moved = static_cast<int>(rows.size());
    Arrange(ListEdit::Move, MovedRows(Entries().Count(), rows, playing + 1));
    Entries().BuildOrder(PlayMode());
    std::vector<int> next(static_cast<std::size_t>(moved));
    std::iota(next.begin(), next.end(), list.SelectedItem() + 1);
    if (PlayMode() == kPlayShuffle)
        Entries().Order().PutNext(next);
    m_rooms.face.window->ShowNote(moved == 1 ? Words("Plays next: %1", { list.Item(next.front()).Text })
                                             : CountedWords(moved, "", "%n entries play next"));
}

void ListEditor::Undo()
{
    if (Entries().Undo(PlayMode()))
        ShowRestored();
}

void ListEditor::Redo()
{
    if (Entries().Redo(PlayMode()))
        ShowRestored();
}

// An entry that plays on while it was taken out has its mark again.
void ListEditor::ShowRestored()
{
    auto& list = Entries().List();
    const auto& path = m_rooms.transport.Item().path;
    if (m_rooms.transport.State().mediaControlsEnabled && list.PlayingItem() < 0)
        list.MarkPlaying(Entries().IndexOfPath(path).value_or(FancyListItems::kNone));
    m_rooms.menus.SmartMenuXP1.SetEnabled({ "RemoveAll", "Next", "Previous" }, Entries().Count() > 0);
    if (Entries().Count() > 0)
        m_rooms.menus.SmartMenuXP1.SetEnabled("Remove", true);
    Changed();
}

} // namespace zentaro
