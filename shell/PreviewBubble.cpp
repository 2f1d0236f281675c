#include "shell/PreviewBubble.h"

#include "shell/Style.h"

#include <QPainter>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kPadding = 4;  // px
constexpr int kGap = 3;      // px, between picture and text
constexpr int kTextSide = 4; // px, beside the text
constexpr QSize kEmpty{ 160, 90 };

} // namespace

PreviewBubble::PreviewBubble(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("PreviewBubble");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void PreviewBubble::Show(const QPoint& above, const QString& time, const QString& chapter)
{
    m_above = above;
    m_time = time;
    m_chapter = chapter;
    Place();
    if (isVisible())
        return;
    show();
    raise();
    // A window that was never shown forgets a place that it was given.
    Place();
}

void PreviewBubble::SetPicture(const std::shared_ptr<const std::string>& bytes, bool mayCome)
{
    m_mayCome = mayCome;
    if (bytes != m_bytes) {
        m_bytes = bytes;
        m_picture = bytes ? QImage::fromData(QByteArray::fromRawData(bytes->data(), static_cast<int>(bytes->size())))
                          : QImage();
    }
    if (isVisible())
        Place();
}

QSize PreviewBubble::PictureSize() const
{
    if (!m_picture.isNull())
        return m_picture.size().scaled(kPictureRoom, Qt::KeepAspectRatio).expandedTo({ 2, 2 });
    return m_mayCome ? kEmpty : QSize(0, 0);
}

void PreviewBubble::Place()
{
    const auto picture = PictureSize();
    const int widestText = std::max(picture.width(), kPictureRoom.width());
    int text = fontMetrics().horizontalAdvance(m_time);
    if (!m_chapter.isEmpty())
        text = std::max(text, std::min(fontMetrics().horizontalAdvance(m_chapter), widestText));
    const int lines = m_chapter.isEmpty() ? 1 : 2;
    const QSize size(2 * kPadding + std::max(picture.width(), text + 2 * kTextSide),
        2 * kPadding + (picture.isEmpty() ? 0 : picture.height() + kGap) + lines * fontMetrics().height());
    const int right = std::max(parentWidget()->width() - size.width(), 0);
    const QPoint corner(std::clamp(m_above.x() - size.width() / 2, 0, right), std::max(m_above.y() - size.height(), 0));
    setGeometry(QRect(corner, size));
    update();
}

void PreviewBubble::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), style::kRaised);
    painter.setPen(style::kHairline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const auto size = PictureSize();
    const QRect picture(QPoint((width() - size.width()) / 2, kPadding), size);
    if (!m_picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(picture, m_picture);
    } else if (!size.isEmpty()) {
        painter.fillRect(picture, style::kBase);
    }
    const int top = size.isEmpty() ? kPadding : picture.bottom() + 1 + kGap;
    QRect line(kPadding, top, width() - 2 * kPadding, fontMetrics().height());
    painter.setPen(style::kText);
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine, m_time);
    line.translate(0, line.height());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(m_chapter, Qt::ElideRight, line.width() - 2 * kTextSide));
}

} // namespace zentaro
