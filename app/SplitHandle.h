#pragma once

#include "shell/SliderAccessible.h"

#include <QSplitterHandle>

namespace zentaro {

/// The splitter's handle: a drag moves it, and so do the arrows, Home and End while it has the focus.
class SplitHandle : public QSplitterHandle, public SliderFace {
    Q_OBJECT

public:
    SplitHandle(Qt::Orientation orientation, QSplitter* parent);

    /// Whether it takes this key for itself.
    static bool UsesKey(int key);

    // In pixels from the splitter's left or upper edge.
    double Value() const override;
    double Maximum() const override;
    double Step() const override;
    void ChooseValue(double value) override;
    QAccessible::Role Role() const override { return QAccessible::Splitter; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace zentaro
