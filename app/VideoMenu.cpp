#include "app/VideoMenu.h"

#include "app/Player.h"
#include "app/VideoChoices.h"
#include "shell/MenuText.h"

#include <QMenu>

namespace zentaro {

namespace {

QMenu* AddChoices(QMenu& menu, const char* title, const std::vector<VideoChoice>& choices)
{
    auto* const submenu = menu.addMenu(title);
    submenu->setEnabled(!choices.empty());
    for (const auto& choice : choices) {
        auto* const action = submenu->addAction(MenuName(choice.caption));
        action->setCheckable(true);
        action->setChecked(choice.isChecked);
        QObject::connect(action, &QAction::triggered, &menu, choice.choose);
    }
    return submenu;
}

} // namespace

void ShowVideoMenu(QWidget& window, Player& player, const QPoint& at)
{
    auto* const menu = new QMenu(&window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto choices = ReadVideoChoices(player);
    const auto add = [&](QMenu* target, const char* caption, bool enabled, void (Player::*run)()) {
        auto* const action = target->addAction(caption);
        action->setEnabled(enabled);
        // Later: the menu is to be gone before a box comes.
        QObject::connect(
            action, &QAction::triggered, &window, [&player, run] { (player.*run)(); }, Qt::QueuedConnection);
    };
    AddChoices(*menu, "&Audio Track", choices.audioTracks);
    auto* const subtitles = AddChoices(*menu, "&Subtitles", choices.subtitles);
    subtitles->setEnabled(choices.hasVideo);
    if (!choices.subtitles.empty())
        subtitles->addSeparator();
    add(subtitles, "&Load File...", choices.hasVideo, &Player::LoadSubtitleFile);
    if (choices.titles.size() > 1)
        AddChoices(*menu, "&Title", choices.titles);
    if (choices.chapters.size() > 1)
        AddChoices(*menu, "&Chapter", choices.chapters);
    menu->addSeparator();
    AddChoices(*menu, "As&pect Ratio", choices.aspectRatios);
    AddChoices(*menu, "&Deinterlace", choices.deinterlacing);
    menu->addSeparator();
    add(menu, "S&napshot\tS", player.CanTakeSnapshot(), &Player::TakeSnapshot);
    const bool isFullScreen = window.isFullScreen();
    add(menu, isFullScreen ? "Leave &Full Screen\tF" : "&Full Screen\tF", true, &Player::ToggleFullScreen);
    AddChoices(*menu, "Play&list", choices.docking);
    menu->popup(at);
}

} // namespace zentaro
