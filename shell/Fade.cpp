#include "shell/Fade.h"

#include "shell/Style.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kDuration = 90; // ms

} // namespace

Fade::Fade(QWidget& widget, std::function<void()> changed)
    : m_widget(widget)
    , m_changed(std::move(changed))
{
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&m_motion, &QVariantAnimation::valueChanged, &m_motion,
        [this](const QVariant& value) { Show(value.toDouble()); });
}

void Fade::Show(double share)
{
    m_share = share;
    m_changed();
}

void Fade::Go(double from, double to)
{
    const int allowed = m_widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_widget);
    const int duration = m_widget.isVisible() && !style::HasLessMotion() ? std::min(kDuration, allowed) : 0;
    m_motion.stop();
    if (duration <= 0)
        return Show(to);
    m_motion.setStartValue(from);
    m_motion.setEndValue(to);
    m_motion.setDuration(duration);
    m_motion.start();
}

} // namespace zentaro
