#include "playback/VideoFrame.h"

#include <QAccessibleWidget>
#include <QBuffer>
#include <QContextMenuEvent>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

// Larger pictures than any screen shows are no video, and their memory could not be had.
constexpr unsigned kMaxPictureEdge = 16384;

void MakeBlack(QWidget& widget)
{
    auto palette = widget.palette();
    palette.setColor(QPalette::Window, Qt::black);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

constexpr int kSmallestSurface = 32; // px

constexpr int kMarkRadius = 30; // px
constexpr int kHintGap = 14;    // px, between the mark and the words under it

/// The play button's outline in a faint glow: a stage before the light, not a hole.
void PaintIdleMark(QPainter& painter, const QRectF& stage)
{
    const auto middle = stage.center();
    QRadialGradient glow(middle, std::max(stage.width(), stage.height()) * 0.6);
    glow.setColorAt(0, QColor(0x1D, 0x20, 0x27));
    glow.setColorAt(1, QColor(0x0B, 0x0C, 0x0F));
    painter.fillRect(stage, glow);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x70, 0x78, 0x85), 2));
    painter.drawEllipse(middle, kMarkRadius, kMarkRadius);
    painter.setPen(QPen(QColor(0x70, 0x78, 0x85), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(0x70, 0x78, 0x85));
    const QPolygonF triangle{ { -5.5, -10 }, { 11, 0 }, { -5.5, 10 } };
    painter.drawPolygon(triangle.translated(middle));
}

} // namespace

void LetCoverVideo(QWidget& widget)
{
    if (!VideoSurface::TakesWindowNumber())
        return;
    // Without this all its siblings get windows, too, and nothing painted behind them shows through any more.
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    widget.setAttribute(Qt::WA_DontCreateNativeAncestors);
    widget.setAttribute(Qt::WA_NativeWindow);
}

PictureSink::PictureSink(QWidget& surface)
    : m_surface(&surface)
{
}

bool PictureSink::Resize(unsigned width, unsigned height)
{
    if (width == 0 || height == 0 || width > kMaxPictureEdge || height > kMaxPictureEdge)
        return false;
    const std::lock_guard lock(m_mutex);
    m_back = QImage(static_cast<int>(width), static_cast<int>(height), QImage::Format_RGB32);
    return !m_back.isNull();
}

void PictureSink::Show()
{
    const std::lock_guard lock(m_mutex);
    const auto size = m_back.size();
    std::swap(m_front, m_back);
    if (m_back.size() != size)
        m_back = QImage(size, QImage::Format_RGB32);
    if (m_surface != nullptr)
        QMetaObject::invokeMethod(m_surface, qOverload<>(&QWidget::update), Qt::QueuedConnection);
}

QImage PictureSink::Current() const
{
    const std::lock_guard lock(m_mutex);
    return m_front;
}

void PictureSink::Close()
{
    const std::lock_guard lock(m_mutex);
    m_surface = nullptr;
}

VideoSurface::VideoSurface(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("VLCPlayer");
    // Qt paints the bars beside the picture; the engine's plain output leaves them alone.
    MakeBlack(*this);
    setMouseTracking(true);
    hide();
    LetCoverVideo(*this);
    if (!TakesWindowNumber())
        m_sink = std::make_shared<PictureSink>(*this);
}

VideoSurface::~VideoSurface()
{
    if (m_sink)
        m_sink->Close();
}

void VideoSurface::Appear()
{
    if (auto* const frame = qobject_cast<VideoFrame*>(parentWidget()))
        frame->ShowSurface(*this);
}

void VideoSurface::Vanish()
{
    if (m_sink)
        m_sink->Close();
    setObjectName(QString());
    hide();
    if (auto* const frame = qobject_cast<VideoFrame*>(parentWidget()))
        frame->Forget(*this);
}

bool VideoSurface::TakesWindowNumber()
{
    const auto name = QGuiApplication::platformName();
    return name == "xcb" || name == "windows";
}

void VideoSurface::paintEvent(QPaintEvent*)
{
    const auto picture = m_sink ? m_sink->Current() : QImage();
    if (picture.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect target(QPoint(), picture.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    painter.drawImage(target, picture);
}

VLCAudioLogo::VLCAudioLogo(QString picturePath, QWidget* parent)
    : QWidget(parent)
    , m_picturePath(std::move(picturePath))
{
    setObjectName("VLCAudioLogo");
    LetCoverVideo(*this);
    MakeBlack(*this);
    setMouseTracking(true);
    hide();
}

void VLCAudioLogo::resizeEvent(QResizeEvent*)
{
    // Once: a window that grows or shrinks does not wait for the disk.
    if (m_file.isEmpty()) {
        QFile file(m_picturePath);
        if (file.open(QIODevice::ReadOnly))
            m_file = file.readAll();
    }
    QBuffer buffer(&m_file);
    QImageReader reader(&buffer);
    const auto ratio = devicePixelRatio();
    const auto inner = (QSizeF(size()) * ratio).toSize();
    if (inner.isEmpty())
        return;
    reader.setScaledSize(inner);
    const auto picture = reader.read();
    // A file that cannot be read leaves the picture of before.
    if (picture.isNull())
        return;
    m_picture = QPixmap::fromImage(picture);
    m_picture.setDevicePixelRatio(ratio);
}

void VLCAudioLogo::paintEvent(QPaintEvent*)
{
    QPainter(this).drawPixmap(rect(), m_picture);
}

namespace {

/// What the right button gives can be asked for, too.
class VideoAccessible : public QAccessibleWidget {
public:
    explicit VideoAccessible(VideoFrame* video)
        : QAccessibleWidget(video, QAccessible::Animation)
    {
    }
    QStringList actionNames() const override { return { setFocusAction(), showMenuAction() }; }
    void doAction(const QString& name) override
    {
        if (name != showMenuAction())
            return QAccessibleWidget::doAction(name);
        const auto middle = widget()->rect().center();
        QCoreApplication::postEvent(
            widget(), new QContextMenuEvent(QContextMenuEvent::Other, middle, widget()->mapToGlobal(middle)));
    }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* const video = qobject_cast<VideoFrame*>(object);
    return video != nullptr ? new VideoAccessible(video) : nullptr;
}

} // namespace

VideoFrame::VideoFrame(const QString& logoPath, QWidget* parent)
    : QWidget(parent)
    , m_logo(new VLCAudioLogo(logoPath, this))
{
    QAccessible::installFactory(&MakeAccessible);
    setObjectName("fraVideo");
    setAccessibleName(tr("Video"));
    MakeBlack(*this);
    setMouseTracking(true);
}

VideoSurface* VideoFrame::AddSurface(bool isShown)
{
    auto* const surface = new VideoSurface(this);
    surface->setGeometry(Inner());
    if (isShown)
        ShowSurface(*surface);
    return surface;
}

void VideoFrame::ShowSurface(VideoSurface& surface)
{
    m_surface = &surface;
    surface.setGeometry(Inner());
    setCursor(m_pointer);
    surface.setCursor(m_pointer);
    surface.show();
    KeepBelow();
}

void VideoFrame::Forget(const VideoSurface& surface)
{
    if (m_surface != &surface)
        return;
    m_surface = nullptr;
    update();
}

void VideoFrame::ShowAudioLogo(bool shown)
{
    if (shown == m_logo->isVisible())
        return;
    // The window system can have told it of its first size after it had its place, and it was hidden since.
    m_logo->setGeometry(Inner());
    m_logo->setVisible(shown);
    KeepBelow();
}

void VideoFrame::KeepBelow()
{
    // A new window comes above all others, also above what covers the video.
    m_logo->lower();
    if (m_surface)
        m_surface->lower();
}

void VideoFrame::ShowPointerAs(Qt::CursorShape shape)
{
    if (m_pointer == shape)
        return;
    m_pointer = shape;
    // Windows of their own take none from a widget without one.
    for (auto* const part : std::initializer_list<QWidget*>{ this, m_logo, m_surface }) {
        if (part != nullptr)
            part->setCursor(m_pointer);
    }
}

// Where a pixel of ours is one and a half of the screen, a window's place and its size are rounded each by itself: it
// can stick out of the frame.
QRect VideoFrame::Inner() const
{
    const auto ratio = devicePixelRatio();
    const auto sticksOut = [&](int from, int size) {
        return qRound(from * ratio) + qRound(size * ratio) > qRound((from + size) * ratio);
    };
    const auto at = mapTo(window(), QPoint());
    const auto inner = rect().adjusted(0, 0, sticksOut(at.x(), width()) ? -1 : 0, sticksOut(at.y(), height()) ? -1 : 0);
    // The engine divides by the size of its window, and a hidden frame can have none.
    return { inner.topLeft(), inner.size().expandedTo({ kSmallestSurface, kSmallestSurface }) };
}

void VideoFrame::PlaceParts()
{
    if (m_surface)
        m_surface->setGeometry(Inner());
    m_logo->setGeometry(Inner());
}

void VideoFrame::moveEvent(QMoveEvent*)
{
    PlaceParts();
    // Qt leaves the windows of its parts where they are when the frame alone moves and keeps its size.
    for (const auto* const part : std::initializer_list<QWidget*>{ m_logo, m_surface }) {
        if (part != nullptr && part->windowHandle() != nullptr)
            part->windowHandle()->setPosition(part->mapTo(window(), QPoint()));
    }
}

void VideoFrame::paintEvent(QPaintEvent*)
{
    if (m_surface)
        return;
    QPainter painter(this);
    const QPointF middle = QRectF(rect()).center();
    PaintIdleMark(painter, rect());
    const auto hint = fontMetrics().elidedText(tr("Drop files here to play them"), Qt::ElideRight, width());
    const QRectF line(0, middle.y() + kMarkRadius + kHintGap, width(), fontMetrics().height());
    painter.setPen(QColor(0x9A, 0xA0, 0xA6));
    painter.drawText(line, Qt::AlignCenter, hint);
}

void VideoFrame::resizeEvent(QResizeEvent*)
{
    PlaceParts();
}

bool VideoFrame::IsOnIdleMark(const QPointF& at) const
{
    return !m_surface && !m_logo->isVisible() && QLineF(at, QRectF(rect()).center()).length() <= kMarkRadius;
}

void VideoFrame::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_surface)
        setCursor(IsOnIdleMark(event->position()) ? Qt::PointingHandCursor : m_pointer);
    QWidget::mouseMoveEvent(event);
}

void VideoFrame::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsOnIdleMark(event->position()))
        emit IdleMarkClicked();
    QWidget::mouseReleaseEvent(event);
}

} // namespace zentaro
