#include "app/ListMenu.h"

#include "app/Commands.h"
#include "app/Player.h"
#include "base/Words.h"
#include "shell/MenuText.h"
#include "shell/QtText.h"

namespace zentaro {

namespace {

/// Ids of commands; "" is a line between them, ">" begins a menu of that name, "<" ends it.
constexpr const char* kItems[] = { "PlaySelected", "PlayNext", "RemoveEntry", "ShowInFolder", "Properties", "",
    "UndoListEdit", "RedoListEdit", "SelectAll", "FindInList", "ShowCurrent", "", ">&Order", "MoveEntryUp",
    "MoveEntryDown", "", "SortByName", "SortByLength", "SortByDate", "SortBySize", "SortByFolder", "<", ">&Memory",
    "BringBack", "GoToLastPlace", "StartOver", "", "Remember", "RememberRemovable", "NeverRemember", "", "ForgetEntry",
    "ForgetAll", "ClearHistory", "<", "", "CompactList", "FamiliarWays", "SaveList" };

} // namespace

ListMenu::ListMenu(Player& player, QWidget* parent)
    : QMenu(ToQString(Words("&More")), parent)
    , m_player(player)
{
    QMenu* menu = this;
    for (const std::string_view id : kItems) {
        if (id == "<")
            menu = this;
        else if (id.starts_with('>'))
            menu = addMenu(ToQString(Words(id.substr(1))));
        else if (const auto* const command = FindCommand(id))
            Add(*menu, *command);
        else
            menu->addSeparator();
    }
    connect(this, &QMenu::aboutToShow, this, &ListMenu::Show);
}

void ListMenu::Add(QMenu& menu, const Command& command)
{
    const auto key = KeyName(m_player.Keys().Shown(command));
    auto* const action = menu.addAction(ToQString(Words(command.caption)) + (key.isEmpty() ? "" : "\t" + key));
    action->setCheckable(command.isChecked != nullptr);
    m_actions.push_back({ action, &command });
    // After this event: Qt closes the menu only then, and a dialog that the click opens must not lie under it.
    connect(
        action, &QAction::triggered, this, [this, &command] { command.run(m_player, 0); }, Qt::QueuedConnection);
}

void ListMenu::Show()
{
    for (const auto& [action, command] : m_actions) {
        action->setEnabled(command->isAvailable == nullptr || command->isAvailable(m_player));
        if (command->isChecked != nullptr)
            action->setChecked(command->isChecked(m_player));
    }
}

} // namespace zentaro
