#include "shell/SkinButton.h"

#include "shell/Style.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCursor>
#include <QPainter>

#include <utility>

namespace zentaro {

namespace {

class SkinButtonAccessible : public QAccessibleWidget {
public:
    explicit SkinButtonAccessible(SkinButton* button)
        : QAccessibleWidget(button, QAccessible::Button)
    {
    }
    QStringList actionNames() const override { return { pressAction(), setFocusAction() }; }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        const auto key = Button().Shortcut();
        return name == pressAction() && !key.isEmpty() ? QStringList(key) : QStringList();
    }
    /// After the answer: what the press opens can take its time.
    void doAction(const QString& name) override
    {
        if (name != pressAction())
            return QAccessibleWidget::doAction(name);
        QMetaObject::invokeMethod(&Button(), &SkinButton::PressOnce, Qt::QueuedConnection);
    }
    QAccessible::State state() const override
    {
        auto state = QAccessibleWidget::state();
        state.pressed = Button().isDown();
        return state;
    }

private:
    SkinButton& Button() const { return *static_cast<SkinButton*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* const button = qobject_cast<SkinButton*>(object);
    return button != nullptr ? new SkinButtonAccessible(button) : nullptr;
}

} // namespace

SkinButton::SkinButton(const QString& name, const QString& shortcut, QWidget* parent)
    : QAbstractButton(parent)
{
    QAccessible::installFactory(&MakeAccessible);
    setObjectName(name);
    SetName(name, shortcut);
    setCursor(Qt::ArrowCursor);
    // Keys go to the window; Tab still reaches the button.
    setFocusPolicy(Qt::TabFocus);
    // Repaints when the pointer comes and goes, and with it the window's picture below.
    setAttribute(Qt::WA_Hover);
    m_fade.Go(1, 1);
}

bool SkinButton::event(QEvent* event)
{
    const bool isHandled = QAbstractButton::event(event);
    if (const auto state = State(); state != m_now) {
        m_before = std::exchange(m_now, state);
        m_fade.Go(0, 1);
    }
    return isHandled;
}

void SkinButton::SetName(const QString& name, const QString& shortcut)
{
    if (name == accessibleName() && shortcut == m_shortcut)
        return;
    setAccessibleName(name);
    m_shortcut = shortcut;
    setToolTip(shortcut.isEmpty() ? name : name + " (" + shortcut + ")");
}

void SkinButton::PressOnce()
{
    // A dialog keeps the pointer from the window; it must keep this way off it, too.
    const auto* const dialog = QApplication::activeModalWidget();
    if (!isEnabled() || (dialog != nullptr && !dialog->isAncestorOf(this)))
        return;
    if (m_isHeld)
        emit Stepped();
    else
        click();
}

ButtonState SkinButton::State() const
{
    if (!isEnabled())
        return ButtonState::Disabled;
    if (isDown())
        return ButtonState::Press;
    // A press keeps the pointer's leaving from the button until it is released.
    const bool isUnderPointer = underMouse() && rect().contains(mapFromGlobal(QCursor::pos()));
    return isUnderPointer ? ButtonState::Over : ButtonState::Normal;
}

void SkinButton::paintEvent(QPaintEvent*)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::kLight, 1.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
}

} // namespace zentaro
