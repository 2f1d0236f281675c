#pragma once

#include <QAbstractButton>
#include <QRect>

namespace zentaro {

/// An offer in the middle of the empty list: what a click or Enter does.
class ListCard : public QAbstractButton {
public:
    explicit ListCard(QWidget* parent);

    /// Hidden for an empty text. `area`: where it may lie, in pixels of its parent.
    void Show(const QString& text, const QRect& area);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zentaro
