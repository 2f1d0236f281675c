#include "playlist/FancyListPainter.h"

#include "base/Numbers.h"
#include "playlist/ListFind.h"
#include "playlist/PauseSign.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringTokenizer>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kDetailGap = 4;
constexpr double kMarkedShare = 0.7;  // of the selection's colour
constexpr double kMarkedLight = 0.12; // of the warm light
constexpr int kSeenLine = 2;          // px
constexpr int kBadge = 16;            // px
constexpr double kDetailShare = 0.28; // of the background: below the title, and readable on a selection
constexpr double kFoundShare = 0.4;
constexpr double kHoverShare = 0.35;
constexpr int kFade = 20; // px, at the end of a line that goes on
constexpr QStringView kDetailSeparator(u" \u00B7 ");

QRect ToQRect(const ListRect& rect)
{
    return { rect.left, rect.top, rect.Width(), rect.Height() };
}

QColor Mixed(const QColor& from, const QColor& to, double share)
{
    const auto part = [&](int a, int b) { return RoundHalfEven(a + (b - a) * share); };
    return { part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()) };
}

QColor Faded(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

// Shaping thousands of characters that no screen can show would make a paint slow.
QString Paintable(QStringView line, int width)
{
    auto length = std::min<qsizetype>(line.size(), std::max(256, width));
    if (length < line.size() && line[length].isLowSurrogate())
        --length;
    auto text = line.first(length).toString();
    for (auto& c : text) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line
            || c.category() == QChar::Separator_Paragraph)
            c = u' ';
    }
    return text;
}

// As many of a line's parts as there is room for, the first one always.
QString FittingParts(QString line, const QFontMetrics& metrics, int width)
{
    while (metrics.horizontalAdvance(line) > width) {
        const auto end = line.lastIndexOf(kDetailSeparator);
        if (end < 0)
            break;
        line.truncate(end);
    }
    return line;
}

/// Where a line lies that does not fit: what it begins with is what people look for, and some scripts begin at the
/// right.
int LineLeft(const QString& line, int lineWidth, const ListRect& rect)
{
    return lineWidth > rect.Width() && line.isRightToLeft() ? rect.right - lineWidth : rect.left;
}

// A line that goes on fades: letters cut through look broken.
QPen TextPen(const QColor& color, const QString& line, int lineWidth, const ListRect& rect)
{
    if (lineWidth <= rect.Width())
        return color;
    const bool endsAtLeft = line.isRightToLeft();
    const int end = endsAtLeft ? rect.left : rect.right;
    const int begin = endsAtLeft ? std::min(rect.right, end + kFade) : std::max(rect.left, end - kFade);
    QLinearGradient fade(begin, 0, end, 0);
    fade.setColorAt(0, color);
    fade.setColorAt(1, Faded(color, 0));
    return QPen(fade, 1);
}

QString WithPlainLineEnds(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace

QFont FancyListFont(int height)
{
    QFont font;
    font.setWeight(QFont::Normal);
    font.setPixelSize(std::max(1, height));
    while (font.pixelSize() > 1 && QFontMetrics(font).height() > height)
        font.setPixelSize(font.pixelSize() - 1);
    return font;
}

FancyListPainter::FancyListPainter(
    QPainter& painter, const FancyListLayout& layout, const FancyListLook& look, ThumbCache& thumbs)
    : m_painter(painter)
    , m_layout(layout)
    , m_look(look)
    , m_thumbs(thumbs)
{
}

void FancyListPainter::Paint()
{
    m_painter.fillRect(0, 0, m_layout.SurfaceWidth(), m_layout.SurfaceHeight(), m_look.palette.color(QPalette::Window));
    if (m_layout.Items().Count() == 0)
        PaintHint();
    const auto rows = m_layout.VisibleRows();
    for (int place = rows.first; place <= rows.last; ++place)
        PaintRow(m_layout.RowOf(place));
    if (m_look.dropLine >= 0)
        m_painter.fillRect(0, m_look.dropLine, m_layout.SurfaceWidth(), 2, QColor(kWarmLight));
    if (m_layout.ScrollBarVisible())
        PaintScrollBar();
    if (m_look.focusFrame)
        PaintFocusFrame();
}

void FancyListPainter::PaintHint()
{
    const QRect all(0, 0, m_layout.SurfaceWidth(), m_layout.SurfaceHeight());
    m_painter.setFont(m_look.detailFont);
    m_painter.setPen(Mixed(m_look.palette.color(QPalette::ButtonText), m_look.palette.color(QPalette::Window), 0.38));
    m_painter.drawText(all.adjusted(kFade, 0, -kFade, 0), Qt::AlignCenter | Qt::TextWordWrap, m_look.hint);
}

void FancyListPainter::PaintRow(int row)
{
    const auto& item = m_layout.Items().Item(row);
    const bool selected = row == m_layout.Items().SelectedItem();
    const auto highlight = m_look.palette.color(QPalette::Highlight);
    auto background = m_look.palette.color(selected ? QPalette::Highlight : QPalette::Window);
    if (item.IsMarked)
        background =
            Mixed(selected ? highlight : Mixed(background, highlight, kMarkedShare), QColor(kWarmLight), kMarkedLight);
    else if (row == m_look.hoverRow && !selected)
        background = Mixed(background, highlight, kHoverShare);
    const auto text = m_look.palette.color(selected ? QPalette::HighlightedText : QPalette::ButtonText);
    auto area = ToQRect(m_layout.RowRect(row));
    area.setHeight(area.height() - 1);
    if (!selected)
        m_painter.fillRect(0, area.bottom() + 1, area.width(), 1, m_look.palette.color(QPalette::Button));
    m_painter.fillRect(area, background);
    const bool isScrubbed = row == m_look.scrubRow && m_look.scrubPicture && m_layout.Thumbnails();
    if (isScrubbed)
        PaintScrub(m_layout.ImageRect(row));
    else if (!item.Pic.IsEmpty() && m_layout.Thumbnails())
        RenderThumb(item.Pic, m_layout.ImageRect(row));
    if (item.Seen > 0 && m_layout.Thumbnails())
        PaintSeen(item.Seen, m_layout.ImageRect(row));
    PaintText(item, m_layout.TextRect(row), text, Mixed(text, background, kDetailShare));
    if (row == m_layout.Items().PlayingItem())
        PaintPlayingMark(row);
}

void FancyListPainter::RenderThumb(const Picture& picture, const ListRect& box)
{
    if (!m_layout.NoThumbBlack())
        m_painter.fillRect(ToQRect(box), Qt::black);
    const auto place = FancyListLayout::FitThumb(picture.Width(), picture.Height(), box);
    const auto ratio = m_painter.device()->devicePixelRatioF();
    auto image =
        m_thumbs.Scaled(picture, { RoundHalfEven(place.Width() * ratio), RoundHalfEven(place.Height() * ratio) });
    if (image.isNull())
        return;
    image.setDevicePixelRatio(ratio);
    m_painter.drawImage(QPoint(place.left, place.top), image);
}

void FancyListPainter::PaintText(
    const FancyListItem& item, const ListRect& rect, const QColor& color, const QColor& dimmed)
{
    if (rect.Width() <= 0 || rect.Height() <= 0)
        return;
    m_painter.save();
    m_painter.setClipRect(ToQRect(rect), Qt::IntersectClip);
    m_painter.setFont(m_look.font);
    const QFontMetrics metrics(m_look.font);
    int top = rect.top;
    const auto title = WithPlainLineEnds(QString::fromStdString(item.Text));
    for (const auto line : qTokenize(title, u'\n')) {
        if (top >= rect.bottom)
            break;
        const auto text = Paintable(line, rect.Width());
        if (!m_look.find.empty())
            PaintFound(text, rect, top);
        const auto width = metrics.horizontalAdvance(text);
        m_painter.setPen(TextPen(color, text, width, rect));
        m_painter.drawText(QPoint(LineLeft(text, width, rect), top + metrics.ascent()), text);
        top += metrics.height();
    }
    if (!item.Detail.empty() && top < rect.bottom) {
        const QFontMetrics detailMetrics(m_look.detailFont);
        const auto detail =
            FittingParts(Paintable(QString::fromStdString(item.Detail), rect.Width()), detailMetrics, rect.Width());
        const auto width = detailMetrics.horizontalAdvance(detail);
        m_painter.setPen(TextPen(dimmed, detail, width, rect));
        m_painter.setFont(m_look.detailFont);
        m_painter.drawText(QPoint(LineLeft(detail, width, rect), top + kDetailGap + detailMetrics.ascent()), detail);
    }
    m_painter.restore();
}

void FancyListPainter::PaintScrub(const ListRect& box)
{
    RenderThumb(m_look.scrubPicture, box);
    m_painter.fillRect(box.left, box.bottom - kSeenLine, box.Width(), kSeenLine, Faded(Qt::white, 0.3));
    m_painter.fillRect(box.left, box.bottom - kSeenLine, RoundHalfEven(box.Width() * m_look.scrubShare), kSeenLine,
        QColor(kWarmLight));
}

// Started ones have a line under the thumbnail, watched ones a tick in its corner.
void FancyListPainter::PaintSeen(double share, const ListRect& box)
{
    m_painter.save();
    if (share < 1) {
        const QRect line(box.left, box.bottom + 1, box.Width(), kSeenLine);
        m_painter.fillRect(line, Faded(m_look.palette.color(QPalette::ButtonText), 0.2));
        m_painter.fillRect(
            QRect(line.topLeft(), QSize(RoundHalfEven(box.Width() * share), kSeenLine)), QColor(kWarmLight));
    } else {
        const QRectF badge(box.right - kBadge, box.bottom - kBadge, kBadge, kBadge);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(QColor(0, 0, 0, 170));
        m_painter.drawEllipse(badge);
        m_painter.setPen(QPen(QColor(kWarmLight), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const auto at = [&](double x, double y) { return badge.topLeft() + QPointF(x, y) * kBadge; };
        const QPointF tick[] = { at(0.27, 0.52), at(0.44, 0.69), at(0.74, 0.33) };
        m_painter.drawPolyline(tick, 3);
    }
    m_painter.restore();
}

void FancyListPainter::PaintFound(const QString& line, const ListRect& rect, int top)
{
    const QFontMetrics metrics(m_look.font);
    const auto bytes = line.toStdString();
    const auto widthUpTo = [&](std::size_t end) {
        return metrics.horizontalAdvance(QString::fromUtf8(bytes.data(), static_cast<qsizetype>(end)));
    };
    for (const auto& part : FoundParts(bytes, m_look.find)) {
        const int left = widthUpTo(part.begin);
        m_painter.fillRect(rect.left + left, top, widthUpTo(part.end) - left, metrics.height(),
            Faded(QColor(kWarmLight), kFoundShare));
    }
}

// A bar at the left edge, beside the thumbnail.
void FancyListPainter::PaintPlayingMark(int row)
{
    const auto area = m_layout.RowRect(row);
    const int inset = std::max(0, m_layout.Padding());
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(kWarmLight));
    m_painter.drawRoundedRect(QRectF(-3, area.top + inset, 6, area.Height() - 2 * inset), 3, 3);
    m_painter.restore();
    if (!m_look.isPaused || !m_layout.Thumbnails())
        return;
    const auto box = m_layout.ImageRect(row);
    PaintPauseSign(
        m_painter, QRectF(box.left + 2, box.bottom - kBadge - 6, kBadge + 4, kBadge + 4), QColor(kWarmLight));
}

void FancyListPainter::PaintScrollBar()
{
    const auto text = m_look.palette.color(QPalette::ButtonText);
    const bool idle = m_look.scrollBar == ScrollBarLook::Normal;
    const QColor thumb = m_look.scrollBar == ScrollBarLook::Press ? QColor(kWarmLight) : Faded(text, idle ? 0.24 : 0.5);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    const auto paint = [&](const ListRect& rect, const QColor& color) {
        const double inset = idle ? 2 : 1;
        const auto bar = QRectF(ToQRect(rect)).adjusted(inset, 1, -inset, -1);
        m_painter.setBrush(color);
        m_painter.drawRoundedRect(bar, bar.width() / 2, bar.width() / 2);
    };
    if (!idle)
        paint(m_layout.ScrollBar(kScrollBarWidth), Faded(text, 0.07));
    paint(m_layout.ScrollThumb(kScrollBarWidth), thumb);
    m_painter.restore();
}

void FancyListPainter::PaintFocusFrame()
{
    m_painter.setPen(QColor(kWarmLight));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(0, 0, m_layout.SurfaceWidth() - 1, m_layout.SurfaceHeight() - 1);
}

} // namespace zentaro
