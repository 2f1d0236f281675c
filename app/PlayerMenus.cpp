#include "app/PlayerMenus.h"

#include "app/Player.h"
#include "shell/MenuText.h"

#include <QMenu>
#include <QShortcut>

#include <array>
#include <functional>

namespace zentaro {

namespace {

using Command = std::function<void(Player&)>;

struct Choice {
    const char* caption;
    int value;
};

/// A submenu of which one entry is the present one.
void AddChoices(QMenu& menu, const char* title, std::initializer_list<Choice> choices, int present,
    const std::function<void(int)>& choose)
{
    auto* const submenu = menu.addMenu(title);
    for (const auto& choice : choices) {
        auto* const action = submenu->addAction(choice.caption);
        action->setCheckable(true);
        action->setChecked(choice.value == present);
        QObject::connect(action, &QAction::triggered, submenu, [choose, value = choice.value] { choose(value); });
    }
}

/// Where a disc, or a file with chapters, can be entered; nothing while there is only one place.
void AddParts(QMenu& menu, const char* title, const PartChoice& parts, const std::function<void(int)>& choose)
{
    if (parts.captions.size() < 2)
        return;
    auto* const submenu = menu.addMenu(title);
    for (int i = 0; i < static_cast<int>(parts.captions.size()); ++i) {
        auto* const action = submenu->addAction(MenuName(parts.captions[static_cast<std::size_t>(i)]));
        action->setCheckable(true);
        action->setChecked(i == parts.present);
        QObject::connect(action, &QAction::triggered, submenu, [choose, i] { choose(i); });
    }
}

void AddCommand(QMenu& menu, const char* caption, const char* keys, bool enabled, const std::function<void()>& command)
{
    auto* const action = menu.addAction(caption);
    // Shown only: the window's own shortcut does the work.
    action->setText(QString(caption) + (*keys != '\0' ? QString("\t") + keys : QString()));
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, command);
}

} // namespace

void AddShortcuts(QWidget& window, Player& player)
{
    struct Row {
        QKeySequence keys;
        Command command;
    };
    const std::array rows = {
        Row{ Qt::CTRL | Qt::Key_O, [](Player& target) { target.OpenFiles(false); } },
        Row{ Qt::CTRL | Qt::Key_P, &Player::PlayPause },
        Row{ Qt::CTRL | Qt::Key_S, &Player::cmdStopClick },
        Row{ Qt::CTRL | Qt::Key_F, &Player::cmdFulScreenClick },
        Row{ Qt::CTRL | Qt::Key_Up, &Player::IncreaseRate },
        Row{ Qt::CTRL | Qt::Key_Down, &Player::DecreaseRate },
        Row{ Qt::CTRL | Qt::Key_R, &Player::ResetRate },
        Row{ Qt::Key_PageDown, &Player::cmdNextClick },
        Row{ Qt::Key_PageUp, &Player::cmdPreviousClick },
    };
    for (const auto& row : rows) {
        auto* const shortcut = new QShortcut(row.keys, &window);
        QObject::connect(
            shortcut, &QShortcut::activated, &window, [&player, command = row.command] { command(player); });
    }
    QObject::connect(
        new QShortcut(Qt::CTRL | Qt::Key_X, &window), &QShortcut::activated, &window, [&window] { window.close(); });
}

void ShowPlayMenu(QWidget& window, Player& player, const QPoint& at)
{
    QMenu menu(&window);
    const auto& settings = player.Settings();
    const bool isLoaded = player.MediaControlsEnabled();
    AddChoices(menu, "Play Mode",
        { { "&Normal", kPlayNormal }, { "&Continuous", kPlayContinuous }, { "&Shuffle", kPlayShuffle } },
        settings.PlayMode, [&](int mode) {
            mode == kPlayNormal ? player.PBNormal() : mode == kPlayShuffle ? player.PBShuffle() : player.PBCont();
        });
    AddChoices(menu, "Repeat Mode",
        { { "&No Repeat", kNoRepeat }, { "&Single Repeat", kRepeatSingle }, { "&Repeat All", kRepeatAll } },
        settings.RepeatMode, [&](int mode) { player.SetRepeatMode(mode); });
    menu.addSeparator();
    AddParts(menu, "Title", player.Titles(), [&](int index) { player.SetTitle(index); });
    AddParts(menu, "Chapter", player.Chapters(), [&](int index) { player.SetChapter(index); });
    menu.addSeparator();
    AddCommand(menu, "Full Screen", "Ctrl+F", isLoaded, [&] { player.cmdFulScreenClick(); });
    menu.addSeparator();
    AddCommand(menu, "Increase Speed", "Ctrl+Up", isLoaded, [&] { player.IncreaseRate(); });
    AddCommand(menu, "Decrease Speed", "Ctrl+Down", isLoaded, [&] { player.DecreaseRate(); });
    AddCommand(menu, "Reset Speed", "Ctrl+R", isLoaded, [&] { player.ResetRate(); });
    menu.addSeparator();
    AddChoices(menu, "After file playing finished",
        { { "Do nothing", 0 }, { "Exit Zentaro", 1 }, { "Restart the Computer", 2 }, { "Shutdown the Computer", 3 } },
        static_cast<int>(player.AfterPlaying().MarkedItem()),
        [&](int action) { player.DoAfter(static_cast<std::int16_t>(action)); });
    menu.addSeparator();
    AddChoices(menu, "Playlist",
        { { "Left", 0 }, { "Right", 1 }, { "Top", 2 }, { "Bottom", 3 }, { "Whole Window", 4 } },
        settings.PlaylistPosition, [&](int position) { player.DockPlaylist(static_cast<PlaylistDock>(position)); });
    menu.exec(at);
}

void ShowListMenu(QWidget& window, Player& player, const QPoint& at)
{
    QMenu menu(&window);
    const bool hasEntries = player.Entries().Count() > 0;
    AddCommand(menu, "Add Media File(s)...", "", true, [&] { player.OpenFiles(true); });
    AddCommand(menu, "Remove", "", player.Entries().SelectedEntry() != nullptr, [&] { player.RemoveSelected(); });
    AddCommand(menu, "Remove All", "", hasEntries, [&] { player.RemoveAll(); });
    menu.addSeparator();
    AddCommand(menu, "Next", "PgDown", hasEntries, [&] { player.cmdNextClick(); });
    AddCommand(menu, "Previous", "PgUp", hasEntries, [&] { player.cmdPreviousClick(); });
    menu.exec(at);
}

} // namespace zentaro
