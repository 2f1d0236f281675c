#include "app/WindowKeys.h"

#include "app/Commands.h"
#include "app/ControlPanel.h"
#include "app/ListSearch.h"
#include "app/Player.h"
#include "playlist/FancyList.h"
#include "shell/MenuStrip.h"
#include "shell/QtText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace zentaro {

WindowKeys::WindowKeys(Player& player, QWidget& window, Parts parts)
    : QObject(&window)
    , m_player(player)
    , m_window(window)
    , m_parts(parts)
    , m_search(new ListSearch(player, parts.list))
{
    MakeShortcuts();
    window.installEventFilter(this);
    parts.list.installEventFilter(this);
}

void WindowKeys::MakeShortcuts()
{
    connect(new QShortcut(Qt::Key_F10, &m_window), &QShortcut::activated, &m_parts.strip, &MenuStrip::OpenFirst);
    for (const auto& command : AllCommands()) {
        // The first key of an item of the menu strip is that item's own.
        const bool isItem = m_player.BothMenus().SmartMenuXP1.Find(command.id) != nullptr;
        for (std::size_t i = isItem ? 1 : 0; i < command.keys.size(); ++i) {
            auto* const shortcut = new QShortcut(QKeySequence(ToQString(std::string(command.keys[i]))), &m_window);
            shortcut->setAutoRepeat(command.repeats);
            connect(shortcut, &QShortcut::activated, this, [this, isItem, &command, which = static_cast<int>(i)] {
                isItem ? m_player.RunCommand(command.id) : RunCommand(m_player, command.id, which);
            });
        }
    }
}

bool WindowKeys::FocusUsesKey(const QKeyEvent& event) const
{
    const auto* const focus = QApplication::focusWidget();
    if (focus == &m_parts.strip || TakesCard(event))
        return true;
    if (focus == &m_parts.list && m_search->UsesKey(event))
        return true;
    const bool isPlain = event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
    if (focus == nullptr || focus == &m_window || !isPlain)
        return false;
    const auto key = event.key();
    if (focus == &m_parts.list)
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
    return m_parts.controls.UsesKey(focus, key);
}

bool WindowKeys::MoveSelection(const QKeyEvent& event)
{
    const auto move = [&](SelectionMove where) {
        m_player.Entries().MoveSelection(where, m_player.Settings().PlayMode);
        m_parts.list.SelectionMovedByKey(event.modifiers() & Qt::ShiftModifier);
        return true;
    };
    switch (event.key()) {
    case Qt::Key_Up:
        return move(SelectionMove::Up);
    case Qt::Key_Down:
        return move(SelectionMove::Down);
    case Qt::Key_Home:
        return move(SelectionMove::ToFirst);
    case Qt::Key_End:
        return move(SelectionMove::ToLast);
    default:
        return false;
    }
}

bool WindowKeys::TakesCard(const QKeyEvent& event) const
{
    const auto* const focus = QApplication::focusWidget();
    const bool isFree = focus == nullptr || focus == &m_window || focus == &m_parts.list;
    return isFree && m_parts.list.HasCard() && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        && (event.modifiers() & ~Qt::KeypadModifier) == 0;
}

bool WindowKeys::ListKeyPressed(const QKeyEvent& event)
{
    return m_search->Press(event) || MoveSelection(event);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && TakesCard(*static_cast<QKeyEvent*>(event))) {
        emit m_parts.list.CardTaken();
        return true;
    }
    if (watched == &m_parts.list && event->type() == QEvent::KeyPress)
        return ListKeyPressed(*static_cast<QKeyEvent*>(event));
    // Asked of the part that has the focus, and then of the window around it, before a shortcut is looked for.
    if (watched == &m_window && event->type() == QEvent::ShortcutOverride
        && FocusUsesKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return false;
}

} // namespace zentaro
