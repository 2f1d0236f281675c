#pragma once

#include "shell/Fade.h"
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
    /// It acts while it is held. Who cannot hold it, as by a key or a screen reader, takes a step instead.
    void SetHeld() { m_isHeld = true; }
    /// As by a key: a click, or a step; nothing while it is disabled.
    void PressOnce();
    const QString& Shortcut() const { return m_shortcut; }
    ButtonState State() const;
    /// From the state before, for a moment after each change.
    ButtonFade StateFade() const { return { m_before, m_fade.Share() }; }

signals:
    void Stepped();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ButtonState m_before = ButtonState::Normal;
    ButtonState m_now = ButtonState::Normal;
    QString m_shortcut;
    bool m_isHeld = false;
    Fade m_fade{ *this, [this] { update(); } };
};

} // namespace zentaro
