#include "app/PauseMark.h"

#include "playlist/PauseSign.h"
#include "shell/Style.h"

#include <QPainter>

#include <utility>

namespace zentaro {

namespace {

/// The lower right quarter of an icon, and a little more.
QRectF SignOn(const QRectF& icon)
{
    const double side = icon.width() * 0.58;
    return { icon.right() - side, icon.bottom() - side, side, side };
}

QIcon WithSign(const QIcon& icon)
{
    QIcon marked;
    for (const int side : { 16, 24, 32, 48, 64, 128 }) {
        auto picture = icon.pixmap(QSize(side, side), 1.0);
        QPainter painter(&picture);
        PaintPauseSign(painter, SignOn(QRectF(picture.rect())), style::kLight);
        painter.end();
        marked.addPixmap(picture);
    }
    return marked;
}

} // namespace

PauseMark::PauseMark(QWidget* window)
    : QWidget(window)
{
    setObjectName("PauseMark");
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PauseMark::Show(bool isPaused)
{
    if (std::exchange(m_isPaused, isPaused) == isPaused)
        return;
    if (isPaused)
        m_icon = window()->windowIcon();
    window()->setWindowIcon(isPaused ? WithSign(m_icon) : m_icon);
    update();
}

void PauseMark::paintEvent(QPaintEvent*)
{
    if (!m_isPaused)
        return;
    QPainter painter(this);
    PaintPauseSign(painter, SignOn(QRectF(rect())), style::kLight);
}

} // namespace zentaro
