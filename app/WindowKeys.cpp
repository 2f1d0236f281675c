#include "app/WindowKeys.h"

#include "app/Commands.h"
#include "app/ControlPanel.h"
#include "app/ListSearch.h"
#include "app/Player.h"
#include "app/SplitHandle.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/MenuStrip.h"
#include "shell/QtText.h"
#include "shell/SkinButton.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

#include <utility>

namespace zentaro {

WindowKeys::WindowKeys(Player& player, QWidget& window, Parts parts)
    : QObject(&window)
    , m_player(player)
    , m_window(window)
    , m_parts(parts)
    , m_search(new ListSearch(player, parts.list))
{
    MakeShortcuts();
    player.Keys().onChange.push_back([this] { MakeShortcuts(); });
    window.installEventFilter(this);
    parts.list.installEventFilter(this);
}

void WindowKeys::MakeShortcuts()
{
    for (auto* const old : std::exchange(m_shortcuts, {}))
        delete old;
    for (const auto& command : AllCommands()) {
        // Those of the menu strip are its items' own.
        if (command.place != KeyPlace::Anywhere || m_player.BothMenus().SmartMenuXP1.Find(command.id) != nullptr)
            continue;
        int which = 0;
        for (const auto& key : m_player.Keys().KeysOf(command.id)) {
            auto* const shortcut = m_shortcuts.emplace_back(new QShortcut(QKeySequence(ToQString(key)), &m_window));
            shortcut->setAutoRepeat(command.repeats);
            connect(shortcut, &QShortcut::activated, this, [this, &command, which] { Run(command, which); });
            ++which;
        }
    }
}

void WindowKeys::Run(const Command& command, int which)
{
    if (command.release != nullptr && std::exchange(m_held, &command) == &command)
        return;
    command.run(m_player, which);
}

bool WindowKeys::Release(const QKeyEvent& event)
{
    if (m_held == nullptr || event.isAutoRepeat())
        return false;
    std::exchange(m_held, nullptr)->release(m_player);
    return true;
}

bool WindowKeys::RunAt(KeyPlace place, const QKeyEvent& event)
{
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key()));
    for (const auto& command : AllCommands()) {
        if (command.place != place)
            continue;
        for (const auto& key : m_player.Keys().KeysOf(command.id)) {
            if (QKeySequence(ToQString(key)) == QKeySequence(pressed)) {
                RunCommand(m_player, command.id);
                return true;
            }
        }
    }
    return false;
}

bool WindowKeys::PressLeftOver(const QKeyEvent& event)
{
    auto* const focus = QApplication::focusWidget();
    if (focus == &m_window || focus == &m_parts.video)
        return RunAt(KeyPlace::Video, event);
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    auto* const button = qobject_cast<SkinButton*>(focus);
    if (!isEnter || button == nullptr || event.isAutoRepeat())
        return false;
    button->PressOnce();
    return true;
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
    if (qobject_cast<const SplitHandle*>(focus) != nullptr)
        return SplitHandle::UsesKey(key);
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
    const bool isFree = focus == nullptr || focus == &m_window || focus == &m_parts.list || focus == &m_parts.video;
    return isFree && m_parts.list.HasCard() && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        && (event.modifiers() & ~Qt::KeypadModifier) == 0;
}

bool WindowKeys::ListKeyPressed(const QKeyEvent& event)
{
    return m_search->Press(event) || MoveSelection(event) || RunAt(KeyPlace::List, event);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress && type != QEvent::KeyRelease)
        return false;
    auto* const key = static_cast<QKeyEvent*>(event);
    if (type == QEvent::KeyPress && TakesCard(*key)) {
        emit m_parts.list.CardTaken();
        return true;
    }
    if (watched == &m_parts.list)
        return type == QEvent::KeyPress && ListKeyPressed(*key);
    switch (type) {
    case QEvent::ShortcutOverride:
        // Asked of the part that has the focus, and then of the window around it, before a shortcut is looked for.
        if (!FocusUsesKey(*key))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return PressLeftOver(*key);
    case QEvent::KeyRelease:
        return Release(*key);
    default:
        return false;
    }
}

} // namespace zentaro
