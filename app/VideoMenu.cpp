#include "app/VideoMenu.h"

#include "app/PlayCommands.h"
#include "app/Player.h"
#include "app/VideoChoices.h"
#include "base/Words.h"
#include "shell/MenuText.h"
#include "shell/QtText.h"

#include <QMenu>

namespace zentaro {

namespace {

QMenu* AddChoices(QMenu& menu, const QString& title, const std::vector<VideoChoice>& choices)
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

/// As things are now.
void Fill(QMenu* menu, QWidget& window, Player& player)
{
    const auto choices = ReadVideoChoices(player);
    const auto add = [&](QMenu* target, const char* id, QString caption = {}) {
        const auto& command = *FindCommand(id);
        if (caption.isEmpty())
            caption = ToQString(Words(command.caption));
        const auto key = KeyName(player.Keys().Shown(command));
        auto* const action = target->addAction(key.isEmpty() ? caption : caption + '\t' + key);
        action->setEnabled(command.isAvailable == nullptr || command.isAvailable(player));
        // After this event: Qt closes the menu only then, and a dialog that the click opens must not lie under it.
        QObject::connect(
            action, &QAction::triggered, &window, [&player, &command] { command.run(player, 0); },
            Qt::QueuedConnection);
    };
    AddChoices(*menu, ToQString(Words("&Audio Track")), choices.audioTracks);
    auto* const subtitles = AddChoices(*menu, ToQString(Words("&Subtitles")), choices.subtitles);
    subtitles->setEnabled(choices.hasVideo);
    if (!choices.subtitles.empty())
        subtitles->addSeparator();
    add(subtitles, "LoadSubtitles");
    if (choices.titles.size() > 1)
        AddChoices(*menu, ToQString(Words("&Title")), choices.titles);
    if (choices.chapters.size() > 1)
        AddChoices(*menu, ToQString(Words("&Chapter")), choices.chapters);
    menu->addSeparator();
    AddChoices(*menu, ToQString(Words("As&pect Ratio")), choices.aspectRatios);
    AddChoices(*menu, ToQString(Words("&Deinterlace")), choices.deinterlacing);
    auto* const more = menu->addMenu(ToQString(Words("&More")));
    for (const auto& command : PlayCommands())
        add(more, std::string(command.id).c_str());
    menu->addSeparator();
    add(menu, "Snapshot");
    add(menu, "ToggleFullScreen", window.isFullScreen() ? ToQString(Words("Leave &Full Screen")) : QString());
    AddChoices(*menu, ToQString(Words("Play&list")), choices.docking);
}

} // namespace

QMenu* MakeVideoMenu(QWidget& window, Player& player)
{
    auto* const menu = new QMenu(ToQString(Words("&Video")), &window);
    QObject::connect(menu, &QMenu::aboutToShow, &window, [menu, &window, &player] {
        qDeleteAll(menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
        menu->clear();
        Fill(menu, window, player);
    });
    return menu;
}

void ShowVideoMenu(QWidget& window, Player& player, const QPoint& at, bool byKey)
{
    auto* const menu = MakeVideoMenu(window, player);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(at);
    if (byKey)
        ChooseFirst(*menu);
}

} // namespace zentaro
