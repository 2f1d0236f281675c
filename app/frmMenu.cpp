#include "app/frmMenu.h"

#include "app/Player.h"
#include "shell/MenuText.h"

#include <QMenu>
#include <QTimer>

namespace zentaro {

frmMenu::frmMenu(Player& player, QWidget* owner, bool forDesktop)
    : QObject(owner)
    , m_player(player)
    , m_owner(owner)
    , m_forDesktop(forDesktop)
{
    Rebuild();
}

QMenu* frmMenu::Menu(const std::string& name) const
{
    const auto at = m_menus.find(name);
    return at == m_menus.end() ? nullptr : at->second;
}

void frmMenu::Popup(const std::string& name, const QPoint& at, bool byKey)
{
    auto* const menu = Menu(name);
    if (menu == nullptr)
        return;
    menu->popup(at);
    if (byKey)
        ChooseFirst(*menu);
}

void frmMenu::PopupAbove(const std::string& name, const QPoint& at)
{
    m_above = Menu(name);
    m_aboveAt = at;
    if (m_above)
        m_above->popup(at - QPoint(0, m_above->sizeHint().height()));
}

void frmMenu::KeepAbove()
{
    if (m_above && m_above->isVisible())
        m_above->move(m_aboveAt - QPoint(0, m_above->sizeHint().height()));
}

// Adds what is new, takes away what is gone and shows the rest as it is now.
void frmMenu::Rebuild()
{
    auto& tree = m_player.BothMenus().frmMenu;
    for (auto at = m_actions.begin(); at != m_actions.end();) {
        if (tree.Find(at->first.first, at->first.second) != nullptr) {
            ++at;
            continue;
        }
        delete at->second;
        at = m_actions.erase(at);
    }
    for (const auto& item : tree.Items()) {
        auto& action = m_actions[{ item.name, item.index }];
        if (action != nullptr) {
            Show(*action, item);
            continue;
        }
        auto* const parent = Menu(item.parent);
        if (tree.IsMenu(item)) {
            auto* const menu = m_menus[item.name] = new QMenu(m_owner);
            connect(menu, &QMenu::aboutToShow, this, [this, name = item.name] { OpenClassicMenu(m_player, name); });
            action = menu->menuAction();
        } else {
            action = new QAction(this);
            action->setSeparator(item.isSeparator);
            connect(action, &QAction::triggered, this, [this, name = item.name, index = item.index] {
                // After this event: Qt closes the menu only then, and a dialog that the click opens must not lie under
                // it.
                QTimer::singleShot(0, this, [this, name, index] {
                    if (const auto* const clicked = m_player.BothMenus().frmMenu.Find(name, index))
                        ClickClassicItem(m_player, *clicked);
                    // A checkable action has changed its mark by itself.
                    Rebuild();
                });
            });
        }
        if (parent != nullptr)
            parent->addAction(action);
        Show(*action, item);
    }
    KeepAbove();
}

void frmMenu::Show(QAction& action, const ClassicItem& item) const
{
    const bool isName = ClassicTree::IsSlot(item) && item.enabled;
    const auto name = [&] { return m_forDesktop ? DesktopMenuName(item.caption) : MenuName(item.caption); };
    action.setText(isName ? name() : MenuCaption(item.caption));
    action.setEnabled(item.enabled);
    action.setVisible(item.visible);
    action.setCheckable(item.checked);
    action.setChecked(item.checked);
}

} // namespace zentaro
