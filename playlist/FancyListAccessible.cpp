#include "playlist/FancyListAccessible.h"

#include "playlist/FancyList.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QPointer>

#include <utility>

namespace zentaro {

namespace {

/// One row. It names what stands at its place when it is asked, so rows may move up under it.
class FancyListRow : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    FancyListRow(FancyList& list, int row)
        : m_list(&list)
        , m_row(row)
    {
    }
    int Number() const { return m_row; }

    bool isValid() const override { return m_list && m_row < m_list->Count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_list ? m_list->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_list); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        const auto& items = m_list->Items();
        const auto& item = items.Item(m_row);
        if (kind == QAccessible::Name) {
            const auto title = QString::fromStdString(item.Text);
            return items.PlayingItem() == m_row ? FancyList::tr("%1, playing").arg(title) : title;
        }
        return kind == QAccessible::Description ? QString::fromStdString(item.Detail) : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const auto row = m_list->Layout().RowRect(m_row);
        return { m_list->mapToGlobal(QPoint(row.left, row.top)), QSize(row.Width(), row.Height()) };
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const auto visible = m_list->Layout().VisibleRows();
        state.selectable = true;
        state.selected = m_list->SelectedItem() == m_row;
        state.focusable = true;
        state.focused = state.selected && m_list->hasFocus();
        const int place = m_list->Layout().PlaceOf(m_row);
        state.multiSelectable = true;
        state.selected = state.selected || m_list->Items().Item(m_row).IsMarked;
        state.offscreen = place < visible.first || place > visible.last;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return { pressAction(), showMenuAction() }; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    /// What a double click on the row does, or the key for its menu; after the answer, which must not wait for it.
    void doAction(const QString& name) override
    {
        if (!isValid())
            return;
        const bool isPress = name == pressAction();
        QMetaObject::invokeMethod(
            m_list,
            [list = m_list, row = m_row, isPress] {
                if (row >= list->Count())
                    return;
                list->SetSelectedItem(row);
                if (isPress) {
                    emit list->DblClick();
                    return;
                }
                list->setFocus();
                const QPoint at(0, 0);
                QContextMenuEvent menu(QContextMenuEvent::Keyboard, at, list->mapToGlobal(at));
                QCoreApplication::sendEvent(list, &menu);
            },
            Qt::QueuedConnection);
    }

private:
    QPointer<FancyList> m_list;
    int m_row;
};

QAccessibleInterface* Create(const QString&, QObject* object)
{
    auto* list = qobject_cast<FancyList*>(object);
    return list ? new FancyListAccessible(*list) : nullptr;
}

} // namespace

void FancyListAccessible::Install()
{
    static const bool installed = (QAccessible::installFactory(Create), true);
    Q_UNUSED(installed);
}

void FancyListAccessible::TellRowsChanged(FancyList& list)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent changed(&list, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&changed);
}

void FancyListAccessible::TellSelectionChanged(FancyList& list)
{
    const int row = list.SelectedItem();
    if (!QAccessible::isActive() || row < 0 || row >= list.Count())
        return;
    QAccessibleEvent selected(&list, QAccessible::Selection);
    selected.setChild(row);
    QAccessible::updateAccessibility(&selected);
    QAccessibleEvent focused(&list, QAccessible::Focus);
    focused.setChild(row);
    if (list.hasFocus())
        QAccessible::updateAccessibility(&focused);
}

FancyListAccessible::FancyListAccessible(FancyList& list)
    : QAccessibleWidget(&list, QAccessible::List)
{
}

FancyListAccessible::~FancyListAccessible()
{
    for (const auto& [row, id] : m_rows)
        QAccessible::deleteAccessibleInterface(id);
}

int FancyListAccessible::childCount() const
{
    return List().Count() + QAccessibleWidget::childCount();
}

QAccessibleInterface* FancyListAccessible::child(int index) const
{
    const int rows = List().Count();
    return index >= 0 && index < rows ? Row(index) : QAccessibleWidget::child(index - rows);
}

QAccessibleInterface* FancyListAccessible::childAt(int x, int y) const
{
    auto& list = List();
    const auto at = list.mapFromGlobal(QPoint(x, y));
    const bool onSurface =
        at.x() >= 0 && at.x() < list.Layout().SurfaceWidth() && at.y() >= 0 && at.y() < list.Layout().SurfaceHeight();
    if (const int row = onSurface ? list.Layout().RowAt(at.y()) : FancyListItems::kNone; row != FancyListItems::kNone)
        return Row(row);
    // The rows go on behind the line at the bottom, so only the widgets are asked.
    for (int i = list.Count(); i < childCount(); ++i) {
        if (auto* const widget = child(i); widget->rect().contains(x, y))
            return widget;
    }
    return nullptr;
}

int FancyListAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    if (const auto* row = dynamic_cast<const FancyListRow*>(child))
        return row->Number();
    const int widget = QAccessibleWidget::indexOfChild(child);
    return widget < 0 ? widget : widget + List().Count();
}

QAccessibleInterface* FancyListAccessible::focusChild() const
{
    const int selected = List().SelectedItem();
    if (List().hasFocus() && selected >= 0 && selected < List().Count())
        return Row(selected);
    return QAccessibleWidget::focusChild();
}

FancyList& FancyListAccessible::List() const
{
    return *static_cast<FancyList*>(widget());
}

QAccessibleInterface* FancyListAccessible::Row(int row) const
{
    auto [known, added] = m_rows.try_emplace(row, 0);
    if (added)
        known->second = QAccessible::registerAccessibleInterface(new FancyListRow(List(), row));
    return QAccessible::accessibleInterface(known->second);
}

} // namespace zentaro
