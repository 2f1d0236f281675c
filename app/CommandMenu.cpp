#include "app/CommandMenu.h"

#include "app/Player.h"
#include "shell/MenuText.h"

#include <QMenu>

namespace zentaro {

namespace {

/// Letters and digits have the same code in both worlds.
int QtKey(std::int16_t virtualKey)
{
    switch (virtualKey) {
    case 33:
        return Qt::Key_PageUp;
    case 34:
        return Qt::Key_PageDown;
    case 38:
        return Qt::Key_Up;
    case 40:
        return Qt::Key_Down;
    case 112:
        return Qt::Key_F1;
    default:
        return virtualKey;
    }
}

} // namespace

CommandMenu::CommandMenu(Player& player, QWidget* window)
    : QObject(window)
    , m_player(player)
    , m_window(window)
{
    for (const auto& item : player.SmartMenuXP1().Items())
        Make(item);
    player.SmartMenuXP1().onChange = [this](const CommandItem& item) { Show(item); };
}

CommandMenu::~CommandMenu()
{
    m_player.SmartMenuXP1().onChange = nullptr;
}

void CommandMenu::Make(const CommandItem& item)
{
    auto* const parent = item.parent.empty() ? nullptr : m_menus[item.parent];
    if (item.kind == CommandKind::Separator) {
        parent->addSeparator();
        return;
    }
    if (m_player.SmartMenuXP1().HasSubmenu(item)) {
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
        Show(*m_player.SmartMenuXP1().Find(key));
    });
    // Only what does something has its keys; a submenu that names the same ones must not take them away.
    if (item.shortcutKey != 0) {
        const auto modifier = item.shortcutModifier == kControlModifier ? Qt::ControlModifier : Qt::NoModifier;
        action->setShortcut(QKeyCombination(modifier, static_cast<Qt::Key>(QtKey(item.shortcutKey))));
        // A key that rests on the keyboard must not toggle on and on.
        action->setAutoRepeat(false);
        m_window->addAction(action);
    }
    return action;
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
