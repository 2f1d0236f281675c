#include "app/MusicView.h"

#include "app/Music.h"
#include "base/QtPicture.h"
#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QAccessibleWidget>
#include <QImageReader>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

namespace zentaro {

namespace {

constexpr int kCorner = 6;  // px, of the cover
constexpr int kShadow = 22; // px
constexpr int kTitleLines = 2;
constexpr double kLineHeight = 1.42; // of the letters
constexpr double kLeastBar = 2;      // px
constexpr double kBarShare = 0.62;   // of the place that a bar has

QColor Colour(std::uint32_t rgb)
{
    return QColor::fromRgb(rgb);
}

/// The text in lines of that width, no more than `most`; the last one is cut where more would follow.
QStringList Wrapped(const QString& text, const QFont& font, int width, int most)
{
    const QFontMetrics metrics(font);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() + 1 == most;
        const auto rest = text.mid(line.textStart(), isLast ? -1 : line.textLength()).trimmed();
        lines.append(isLast ? metrics.elidedText(rest, Qt::ElideRight, width) : rest);
        if (isLast)
            break;
    }
    layout.endLayout();
    return lines;
}

/// Of one step of brightness: without it a dark gradient shows bands.
QImage Grain()
{
    constexpr int side = 128;
    QImage grain(side, side, QImage::Format_ARGB32);
    std::minstd_rand random(7);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            grain.setPixelColor(x, y, random() % 2 == 0 ? QColor(255, 255, 255, 3) : QColor(0, 0, 0, 3));
    }
    return grain;
}

QFont Letters(const QFont& of, int size, bool isBold)
{
    auto font = of;
    font.setPixelSize(size);
    font.setWeight(isBold ? QFont::DemiBold : QFont::Normal);
    return font;
}

int HeightOf(const QFont& font)
{
    return qRound(font.pixelSize() * kLineHeight);
}

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* const view = qobject_cast<MusicView*>(object);
    return view != nullptr ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

} // namespace

MusicView::MusicView(QString artPath, QWidget* parent)
    : QWidget(parent)
    , m_artPath(std::move(artPath))
{
    QAccessible::installFactory(&MakeAccessible);
    setObjectName("MusicView");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(parent->rect());
    parent->installEventFilter(this);
    hide();
}

void MusicView::Show(const Song* song)
{
    m_scene = {};
    if (song == nullptr) {
        m_cover = {};
        return hide();
    }
    m_cover = ToQImage(song->cover.picture);
    m_tone = ToneOf(song->cover.picture);
    m_title = ToQString(song->title).simplified();
    m_lines.clear();
    for (const auto& line : song->Lines())
        m_lines.append(ToQString(line).simplified());
    setAccessibleName((QStringList(m_title) + m_lines).join(", "));
    show();
    update();
}

void MusicView::MoveBars(const BarPicture* target, double seconds)
{
    const bool isFirst = target != nullptr && !std::exchange(m_hasBars, m_hasBars || target != nullptr);
    if (m_motion.Go(target, seconds) || isFirst)
        update(BarsPlace());
}

void MusicView::ResetBars()
{
    m_motion.Reset();
    m_hasBars = false;
    update(BarsPlace());
}

MusicLayout MusicView::Layout() const
{
    return { width(), height(), !style::HasLessMotion() };
}

QRect MusicView::BarsPlace() const
{
    return ToQt(Layout().bars);
}

bool MusicView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void MusicView::paintEvent(QPaintEvent* event)
{
    if (m_scene.isNull() || m_scene.size() != (QSizeF(size()) * devicePixelRatio()).toSize())
        PaintScene();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, m_scene);
    if (m_hasBars && event->region().intersects(BarsPlace()))
        PaintBars(painter);
}

void MusicView::PaintScene()
{
    m_scene = QPixmap((QSizeF(size()) * devicePixelRatio()).toSize());
    m_scene.setDevicePixelRatio(devicePixelRatio());
    QPainter painter(&m_scene);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const auto layout = Layout();
    const auto cover = ToQt(layout.cover);
    PaintRoom(painter, cover);
    if (!cover.isEmpty())
        PaintCover(painter, cover);
    PaintText(painter, layout);
}

void MusicView::PaintRoom(QPainter& painter, const QRect& cover) const
{
    if (style::HasHighContrast())
        return painter.fillRect(rect(), style::kBase);
    painter.fillRect(rect(), Colour(m_tone.deep));
    const auto light = cover.isEmpty() ? QRectF(rect()).center() : QRectF(cover).center();
    QRadialGradient glow(light, std::max(width(), height()) * 0.85);
    glow.setColorAt(0, Colour(m_tone.glow));
    auto edge = Colour(m_tone.glow);
    edge.setAlpha(0);
    glow.setColorAt(1, edge);
    painter.fillRect(rect(), glow);
    painter.fillRect(rect(), QBrush(Grain()));
}

QImage MusicView::Art() const
{
    QImageReader reader(m_artPath);
    const auto whole = reader.size();
    const int side = std::min(whole.width(), whole.height());
    reader.setClipRect({ (whole.width() - side) / 2, (whole.height() - side) / 2, side, side });
    return reader.read();
}

void MusicView::PaintCover(QPainter& painter, const QRect& cover) const
{
    const auto picture = m_cover.isNull() ? Art() : m_cover;
    if (picture.isNull())
        return;
    QRect place(QPoint(), picture.size().scaled(cover.size(), Qt::KeepAspectRatio));
    place.moveCenter(cover.center());
    painter.setPen(Qt::NoPen);
    for (int ring = kShadow; ring > 0; --ring) {
        painter.setBrush(QColor(0, 0, 0, 5));
        painter.drawRoundedRect(place.adjusted(-ring, -ring + 7, ring, ring + 7), kCorner + ring, kCorner + ring);
    }
    QPainterPath frame;
    frame.addRoundedRect(place, kCorner, kCorner);
    painter.save();
    painter.setClipPath(frame);
    // In one step down to a small size it would flicker.
    const auto shown = (QSizeF(place.size()) * devicePixelRatio()).toSize();
    painter.drawImage(place, picture.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(style::kHairline);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
}

void MusicView::PaintText(QPainter& painter, const MusicLayout& layout) const
{
    struct Line {
        QString text;
        QFont font;
        QColor colour;
    };
    const auto place = ToQt(layout.text);
    const auto second = style::HasHighContrast() ? style::kText : QColor(0xC8, 0xCC, 0xD2);
    std::vector<Line> lines;
    const auto titleFont = Letters(font(), layout.titleSize, true);
    const auto heightOf = [](const Line& line) { return HeightOf(line.font); };
    const int room = place.height() - (m_lines.isEmpty() ? 0 : HeightOf(Letters(font(), layout.lineSize, false)));
    const int titleLines = std::clamp(room / HeightOf(titleFont), 1, kTitleLines);
    for (const auto& text : Wrapped(m_title, titleFont, place.width(), titleLines))
        lines.push_back({ text, titleFont, style::kText });
    const auto lineFont = Letters(font(), layout.lineSize, false);
    for (const auto& text : m_lines)
        lines.push_back({ QFontMetrics(lineFont).elidedText(text, Qt::ElideRight, place.width()), lineFont, second });
    int height = 0;
    std::size_t fitting = 0;
    while (fitting < lines.size() && height + heightOf(lines[fitting]) <= place.height())
        height += heightOf(lines[fitting++]);
    int top = place.top() + (place.height() - height) / 2;
    const auto side = layout.isBeside ? Qt::AlignLeft | Qt::AlignAbsolute : Qt::AlignHCenter;
    for (std::size_t i = 0; i < fitting; ++i) {
        painter.setFont(lines[i].font);
        painter.setPen(lines[i].colour);
        painter.drawText(QRect(place.left(), top, place.width(), heightOf(lines[i])),
            static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, lines[i].text);
        top += heightOf(lines[i]);
    }
}

void MusicView::PaintBars(QPainter& painter) const
{
    const QRectF place(BarsPlace());
    const auto& heights = m_motion.Heights();
    const double step = place.width() / static_cast<double>(kBars);
    const double bar = std::max(std::floor(step * kBarShare), 2.0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto bright = style::HasHighContrast() ? style::kLight : Colour(m_tone.bright);
    auto low = bright;
    low.setAlphaF(0.45F);
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, bright);
    light.setColorAt(1, style::HasHighContrast() ? bright : low);
    painter.setBrush(light);
    for (std::size_t i = 0; i < kBars; ++i) {
        const double high = std::max(heights[i] * place.height(), kLeastBar);
        const QRectF shape(place.left() + std::floor(static_cast<double>(i) * step), place.bottom() - high, bar, high);
        painter.drawRoundedRect(shape, std::min(bar / 2, 3.0), std::min(bar / 2, 3.0));
    }
}

} // namespace zentaro
