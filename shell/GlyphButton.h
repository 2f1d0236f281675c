#pragma once

#include "shell/WindowLayout.h"

#include <QAbstractButton>
#include <QPainterPath>

namespace zentaro {

/// The sign of a button, drawn in a box of 24 x 24; what is not filled is stroked.
struct Glyph {
    QPainterPath path;
    bool isFilled = true;
};

Glyph GlyphOf(Button button);

/// One of the window's buttons: its sign in one of four looks. A press that leaves it before the release does nothing.
class GlyphButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `name` is read out and, with the shortcut, shown as tooltip.
    GlyphButton(Button button, const QString& name, const QString& shortcut, QWidget* parent);

    /// Draws another button's sign from now on.
    void ShowSign(Button button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QColor SignColor() const;

    Button m_button;
    Glyph m_glyph;
};

} // namespace zentaro
