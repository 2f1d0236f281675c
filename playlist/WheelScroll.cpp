#include "playlist/WheelScroll.h"

#include "base/Numbers.h"

#include <QWheelEvent>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kNotch = 120;     // eighths of a degree
constexpr int kTime = 120;      // ms for a notch
constexpr double kFinest = 1.0; // px

} // namespace

WheelScroll::WheelScroll(FancyListLayout& layout)
    : m_layout(layout)
{
    m_way.setDuration(kTime);
    m_way.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_way, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& value) { m_layout.SetScrollValue(value.toInt()); });
}

void WheelScroll::Turn(const QWheelEvent& event)
{
    const bool isFine = !event.pixelDelta().isNull() || event.angleDelta().y() % kNotch != 0;
    const double pixels = event.pixelDelta().isNull()
        ? static_cast<double>(event.angleDelta().y()) / kNotch * m_layout.ItemHeight()
        : event.pixelDelta().y();
    if (isFine) {
        Stop();
        // Fine deltas would each round to nothing.
        m_rest += pixels;
        if (std::abs(m_rest) < kFinest)
            return;
        const int whole = static_cast<int>(m_rest);
        m_rest -= whole;
        m_layout.SetScrollValue(m_layout.ScrollValue() - whole);
        return;
    }
    const bool isOnTheWay = m_way.state() == QAbstractAnimation::Running;
    const int from = isOnTheWay ? m_way.endValue().toInt() : m_layout.ScrollValue();
    m_way.stop();
    m_way.setStartValue(m_layout.ScrollValue());
    m_way.setEndValue(std::clamp(from - RoundHalfEven(pixels), 0, m_layout.ScrollMax()));
    m_way.start();
}

} // namespace zentaro
