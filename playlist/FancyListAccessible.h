#pragma once

#include <QAccessibleWidget>

#include <map>

namespace zentaro {

class FancyList;

/// The list as a screen reader meets it: a list whose children are its rows, followed by the child widgets.
class FancyListAccessible : public QAccessibleWidget {
public:
    /// Makes the tool kit ask us for every FancyList. Calling it again changes nothing.
    static void Install();
    static void TellRowsChanged(FancyList& list);
    static void TellSelectionChanged(FancyList& list);

    explicit FancyListAccessible(FancyList& list);
    ~FancyListAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;

private:
    FancyList& List() const;
    QAccessibleInterface* Row(int row) const;

    mutable std::map<int, QAccessible::Id> m_rows;
};

} // namespace zentaro
