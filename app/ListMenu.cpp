#include "app/ListMenu.h"

#include "app/Commands.h"
#include "shell/QtText.h"

namespace zentaro {

namespace {

/// Ids of commands; "" is a line between them.
constexpr const char* kItems[] = { "PlaySelected", "PlayNext", "RemoveEntry", "ShowInFolder", "Properties", "",
    "UndoListEdit", "RedoListEdit", "SelectAll", "", "MoveEntryUp", "MoveEntryDown", "SortByName", "SortByLength",
    "SortByDate", "SortBySize", "SortByFolder", "", "FindInList", "ShowCurrent", "", "SaveList" };

} // namespace

ListMenu::ListMenu(Player& player, QWidget* parent)
    : QMenu("&More", parent)
    , m_player(player)
{
    for (const auto* const id : kItems) {
        const auto* const command = FindCommand(id);
        if (command == nullptr) {
            addSeparator();
            continue;
        }
        const auto key = ToQString(std::string(ShownKey(*command)));
        auto* const action = addAction(ToQString(std::string(command->caption)) + (key.isEmpty() ? "" : "\t" + key));
        action->setData(ToQString(std::string(command->id)));
        action->setCheckable(command->isChecked != nullptr);
        // After this event: Qt closes the menu only then, and a dialog that the click opens must not lie under it.
        connect(
            action, &QAction::triggered, this, [this, command] { command->run(m_player, 0); }, Qt::QueuedConnection);
    }
    connect(this, &QMenu::aboutToShow, this, &ListMenu::Show);
}

void ListMenu::Show()
{
    for (auto* const action : actions()) {
        const auto* const command = FindCommand(ToText(action->data().toString()));
        if (command == nullptr)
            continue;
        action->setEnabled(command->isAvailable == nullptr || command->isAvailable(m_player));
        if (command->isChecked != nullptr)
            action->setChecked(command->isChecked(m_player));
    }
}

} // namespace zentaro
