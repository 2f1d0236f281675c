#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace zentaro {

/// Two bars on a dark disc: what plays waits.
inline void PaintPauseSign(QPainter& painter, const QRectF& disc, const QColor& light)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x16, 0x18, 0x1D, 225));
    painter.drawEllipse(disc);
    painter.setBrush(light);
    for (const double left : { 0.3, 0.56 }) {
        const QRectF bar(disc.left() + left * disc.width(), disc.top() + 0.27 * disc.height(), 0.14 * disc.width(),
            0.46 * disc.height());
        painter.drawRoundedRect(bar, disc.width() * 0.04, disc.width() * 0.04);
    }
    painter.restore();
}

} // namespace zentaro
