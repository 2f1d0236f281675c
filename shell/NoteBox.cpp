#include "shell/NoteBox.h"

#include "shell/Style.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kDistance = 12;     // px, from the area's edges
constexpr int kPadding = 10;      // px
constexpr int kGap = 8;           // px, between picture and text
constexpr int kMark = 3;          // px, the light at the left edge
constexpr int kLargeArea = 900;   // px wide
constexpr int kLargeLetters = 18; // px

} // namespace

NoteBox::NoteBox(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("Note");
    setCursor(Qt::ArrowCursor);
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void NoteBox::Show(const QRect& area, const QString& text, const QImage& picture, std::chrono::milliseconds time)
{
    // Read from afar where the video is large.
    auto letters = parentWidget()->font();
    if (area.width() >= kLargeArea)
        letters.setPixelSize(kLargeLetters);
    setFont(letters);
    const int frame = 2 * kPadding + kMark;
    const int widest = std::max(area.width() - 2 * kDistance - frame, 0);
    m_text = text;
    m_picture = picture;
    // What was taken goes on playing below.
    const QSize pictureRoom = kPictureRoom.boundedTo({ area.width() / 2, area.height() / 3 });
    m_pictureSize = picture.isNull() ? QSize(0, 0) : picture.size().scaled(pictureRoom, Qt::KeepAspectRatio);
    const int textWidth = fontMetrics().horizontalAdvance(text) + 1;
    const int pictureHeight = picture.isNull() ? 0 : m_pictureSize.height() + kGap;
    setGeometry(area.left() + kDistance, area.top() + kDistance,
        frame + std::min(std::max(textWidth, m_pictureSize.width()), widest),
        2 * kPadding + pictureHeight + fontMetrics().height());
    setAccessibleName(text);
    show();
    raise();
    update();
    m_end.start(time);
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

void NoteBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), style::kRaised);
    painter.setPen(style::kHairline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(0, 0, kMark, height(), style::kLight);
    const auto inner = rect().adjusted(kPadding + kMark, kPadding, -kPadding, -kPadding);
    if (!m_picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(inner.topLeft(), m_pictureSize), m_picture);
    }
    painter.setPen(style::kText);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
        fontMetrics().elidedText(m_text, Qt::ElideMiddle, inner.width()));
}

void NoteBox::mousePressEvent(QMouseEvent*)
{
    hide();
}

} // namespace zentaro
