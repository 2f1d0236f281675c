#include "app/CommandMenu.h"
#include "app/Player.h"
#include "app/PlayerKeys.h"
#include "app/frmMain.h"
#include "app/frmMenu.h"
#include "playlist/FancyList.h"
#include "shell/Caption.h"
#include "shell/MenuStrip.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/VolumeKnob.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QSystemTrayIcon>

// The window's menus, the tray icon and the dialogs.
namespace zentaro {

void frmMain::MakeMenus()
{
    const auto* const commands = new CommandMenu(*m_player, this);
    m_strip = new MenuStrip(this);
    for (auto* const menu : commands->TopMenus())
        m_strip->addMenu(menu);
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, m_strip, &MenuStrip::OpenFirst);
    for (const auto& row : PlayerKeys()) {
        for (std::size_t i = 0; i < row.keys.size(); ++i) {
            const QKeySequence keys(ToQString(std::string(row.keys[i])));
            auto* const shortcut = new QShortcut(keys, this);
            shortcut->setAutoRepeat(row.repeats);
            connect(shortcut, &QShortcut::activated, this,
                [this, &row, index = static_cast<int>(i)] { row.run(*m_player, index); });
        }
    }
}

bool frmMain::FocusUsesKey(const QKeyEvent& event) const
{
    const auto* const focus = QApplication::focusWidget();
    const int key = event.key();
    const bool isSideways = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool isUpDown = key == Qt::Key_Up || key == Qt::Key_Down;
    const bool isPlain = event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
    if (focus == nullptr || focus == this)
        return false;
    if (focus == m_strip)
        return true;
    if (focus == m_list)
        return isPlain && (isUpDown || key == Qt::Key_Home || key == Qt::Key_End);
    if (focus == m_seek)
        return isSideways;
    if (focus == m_volume)
        return isPlain && (isSideways || isUpDown);
    return isPlain && key == Qt::Key_Space && qobject_cast<const QAbstractButton*>(focus) != nullptr;
}

bool frmMain::MoveSelection(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
        m_player->MoveSelection(SelectionMove::Up);
        return true;
    case Qt::Key_Down:
        m_player->MoveSelection(SelectionMove::Down);
        return true;
    case Qt::Key_Home:
        m_player->MoveSelection(SelectionMove::ToFirst);
        return true;
    case Qt::Key_End:
        m_player->MoveSelection(SelectionMove::ToLast);
        return true;
    default:
        return false;
    }
}

void frmMain::ShowOptions()
{
    if (onShowOptions)
        onShowOptions();
}

void frmMain::ShowAbout()
{
    if (onShowAbout)
        onShowAbout();
}

void frmMain::ShowHelp()
{
    if (onShowHelp)
        onShowHelp();
}

frmMenu& frmMain::ClassicMenus()
{
    if (m_menus == nullptr)
        m_menus = new frmMenu(*m_player, this);
    return *m_menus;
}

void frmMain::SetTrayShown(bool shown)
{
    m_hasTrayIcon = shown;
    // A messenger reads the settings, too, and is to stay unseen.
    if (!isVisible() || shown == (m_tray != nullptr))
        return;
    delete m_tray.data();
    if (!shown)
        return;
    m_tray = new QSystemTrayIcon(windowIcon(), this);
    m_tray->setToolTip(kApplicationTitle);
    // The right button opens it as soon as it goes down; the icon has nothing else to say.
    m_tray->setContextMenu(ClassicMenus().Menu("mnuFileMenu"));
    m_tray->show();
}

void frmMain::PopupMenu(const std::string& menu)
{
    if (menu != "mnuOpenDVD") {
        ClassicMenus().Popup(menu, QCursor::pos());
        return;
    }
    const auto* const button = m_buttons[Button::Dvd];
    ClassicMenus().PopupAbove(menu, button->mapToGlobal(QPoint()));
}

} // namespace zentaro
