#pragma once

#include "shell/SkinPasses.h"

#include <QAbstractButton>

namespace zentaro {

/// One of the window's buttons: it takes the pointer and the keys and knows its state; the window paints its picture
/// under it. A press that leaves it before the release does nothing.
class SkinButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `name` is read out and, with the shortcut, shown as tooltip.
    SkinButton(const QString& name, const QString& shortcut, QWidget* parent);

    void SetName(const QString& name, const QString& shortcut);
    ButtonState State() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zentaro
