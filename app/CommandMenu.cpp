#include "app/CommandMenu.h"

#include "app/Commands.h"
#include "app/Player.h"
#include "shell/MenuText.h"
#include "shell/QtText.h"

#include <QMenu>

namespace zentaro {

CommandMenu::CommandMenu(Player& player, QWidget* window)
    : QObject(window)
    , m_player(player)
    , m_window(window)
{
    for (const auto& item : player.BothMenus().SmartMenuXP1.Items())
        Make(item);
    ShowKeys();
    player.Keys().onChange.push_back([this] { ShowKeys(); });
    player.BothMenus().SmartMenuXP1.onChange = [this](const CommandItem& item) { Show(item); };
}

CommandMenu::~CommandMenu()
{
    m_player.BothMenus().SmartMenuXP1.onChange = nullptr;
}

void CommandMenu::Make(const CommandItem& item)
{
    auto* const parent = item.parent.empty() ? nullptr : m_menus[item.parent];
    if (item.kind == CommandKind::Separator) {
        parent->addSeparator();
        return;
    }
    if (m_player.BothMenus().SmartMenuXP1.HasSubmenu(item)) {
        auto* const menu = m_menus[item.key] = new QMenu(m_window);
        m_actions[item.key] = menu->menuAction();
        if (parent == nullptr)
            m_top.push_back(menu);
    } else {
        m_actions[item.key] = MakeItem(item);
    }
    if (parent != nullptr)
        parent->addAction(m_actions[item.key]);
    Show(item);
}

QAction* CommandMenu::MakeItem(const CommandItem& item)
{
    auto* const action = new QAction(this);
    action->setCheckable(item.kind == CommandKind::Option);
    connect(action, &QAction::triggered, this, [this, key = item.key] {
        m_player.RunCommand(key);
        // A checkable action has changed its mark by itself.
        Show(*m_player.BothMenus().SmartMenuXP1.Find(key));
    });
    // A key that rests on the keyboard must not toggle on and on.
    action->setAutoRepeat(false);
    return action;
}

// Only what does something has its keys; a submenu that names the same ones must not take them away.
void CommandMenu::ShowKeys()
{
    for (const auto& item : m_player.BothMenus().SmartMenuXP1.Items()) {
        const auto* const command = FindCommand(item.command);
        if (command == nullptr || item.command == "History" || command->place != KeyPlace::Anywhere)
            continue;
        QList<QKeySequence> keys;
        for (const auto& key : m_player.Keys().KeysOf(command->id))
            keys << QKeySequence(ToQString(key));
        auto* const action = m_actions[item.key];
        action->setShortcuts(keys);
        m_window->addAction(action);
    }
}

void CommandMenu::Show(const CommandItem& item)
{
    auto& action = *m_actions[item.key];
    const bool isName = CommandTree::IsSlot(item) && item.enabled;
    action.setText(isName ? MenuName(item.caption) : MenuCaption(item.caption));
    action.setEnabled(item.enabled);
    action.setVisible(item.visible);
    action.setChecked(item.checked);
}

} // namespace zentaro
