#include "app/WindowFrame.h"

#include "platform/Window.h"
#include "shell/QtGeometry.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <array>
#include <chrono>
#include <utility>
#include <vector>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr int kDragDistance = 2;  // px
constexpr auto kSettling = 200ms; // the window system tells a new size before it tells the state that it belongs to

Qt::Edges ToQt(const WindowLayout::Edges& edges)
{
    Qt::Edges result;
    result.setFlag(Qt::LeftEdge, edges.left);
    result.setFlag(Qt::TopEdge, edges.top);
    result.setFlag(Qt::RightEdge, edges.right);
    result.setFlag(Qt::BottomEdge, edges.bottom);
    return result;
}

Qt::CursorShape CursorFor(const WindowLayout::Edges& edges)
{
    if ((edges.left && edges.top) || (edges.right && edges.bottom))
        return Qt::SizeFDiagCursor;
    if ((edges.right && edges.top) || (edges.left && edges.bottom))
        return Qt::SizeBDiagCursor;
    if (edges.left || edges.right)
        return Qt::SizeHorCursor;
    return edges.Any() ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

std::vector<Rect> ScreenAreas(QRect (QScreen::*area)() const)
{
    std::vector<Rect> areas;
    for (const auto* const screen : QGuiApplication::screens())
        areas.push_back(FromQt((screen->*area)()));
    return areas;
}

/// Screen readers look for a window around what has the focus; a plain widget would be a mere part of one.
QAccessibleInterface* MakeAccessibleWindow(const QString&, QObject* object)
{
    auto* const window = qobject_cast<WindowFrame*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

constexpr Qt::WindowFlags kFlags = Qt::FramelessWindowHint | Qt::Window;

} // namespace

WindowFrame::WindowFrame()
    : QWidget(nullptr, kFlags)
{
    QAccessible::installFactory(&MakeAccessibleWindow);
    setMinimumSize(WindowLayout::kMinimumWidth, WindowLayout::kMinimumHeight);
    resize(WindowLayout::kFirstWidth, WindowLayout::kFirstHeight);
    setMouseTracking(true);
    m_geometrySettled.setSingleShot(true);
    m_geometrySettled.setInterval(kSettling);
    connect(&m_geometrySettled, &QTimer::timeout, this, [this] {
        KeepNormalGeometry();
        m_isStarting = false;
    });
}

void WindowFrame::LeaveFrameToSystem()
{
    // On Windows, Qt brings Direct3D up to look at the graphics cards before it makes a window that is no dialog.
    if (QGuiApplication::platformName() == "windows") {
        overrideWindowFlags(Qt::FramelessWindowHint | Qt::Dialog);
        create();
        overrideWindowFlags(kFlags);
        windowHandle()->setFlags(kFlags);
    }
    platform::TakeFrame(
        winId(), { [this](int x, int y) { return PartAt(x, y); }, [this] { emit PointerRestsOnCaption(); } });
}

desktop::FramePart WindowFrame::PartAt(int x, int y) const
{
    const QPoint at(static_cast<int>(x / devicePixelRatio()), static_cast<int>(y / devicePixelRatio()));
    if (m_fullScreen || childAt(at) != nullptr)
        return desktop::FramePart::Content;
    const auto edges = isMaximized() ? WindowLayout::Edges() : Layout().EdgesAt(at.x(), at.y());
    return desktop::FramePartAt(edges.left, edges.top, edges.right, edges.bottom,
        Layout().TitleBar().Contains(at.x(), at.y()), Layout().Icon().Contains(at.x(), at.y()));
}

void WindowFrame::TakeSize(int width, int height)
{
    if (isMaximized() || m_fullScreen)
        return;
    const QSize wanted(width, height);
    resize((isVisible() ? wanted.boundedTo(screen()->availableSize()) : wanted).expandedTo(minimumSize()));
}

void WindowFrame::FitTo(const QWidget& part, int width, int height)
{
    const auto scale = devicePixelRatio();
    const Extent wanted{ qRound(width / scale), qRound(height / scale) };
    // Its neighbours take a share of whatever the window gains.
    for (int pass = 0; pass < 3 && part.isVisible() && !isMaximized() && !m_fullScreen; ++pass)
        setGeometry(zentaro::ToQt(FitFilm(
            FromQt(geometry()), { part.width(), part.height() }, wanted, FromQt(screen()->availableGeometry()))));
}

void WindowFrame::TakePlace(int left, int top)
{
    if (isMaximized() || m_fullScreen)
        return;
    move(left, top);
    m_isPlaced = true;
}

void WindowFrame::PlaceFirst()
{
    auto place = geometry();
    if (!m_isPlaced) {
        const auto room = screen()->availableGeometry();
        place.setSize(size().boundedTo(room.size()));
        place.moveCenter(room.center());
    }
    setGeometry(zentaro::ToQt(MoveOntoScreen(FromQt(place), ScreenAreas(&QScreen::availableGeometry))));
    KeepNormalGeometry();
}

QRect WindowFrame::FullScreenArea() const
{
    const auto screens = ScreenAreas(&QScreen::geometry);
    return zentaro::ToQt(ScreenOf(FromQt(geometry()), screens));
}

void WindowFrame::FillScreen(bool fill)
{
    if (fill == m_fullScreen)
        return;
    if (fill) {
        KeepNormalGeometry();
        m_wasMaximized = isMaximized();
        m_fullScreen = true;
        showFullScreen();
        m_geometrySettled.start();
    } else {
        m_fullScreen = false;
        m_wasMaximized ? showMaximized() : showNormal();
        if (!m_wasMaximized)
            setGeometry(m_normal);
    }
    emit FillsScreenChanged(fill);
}

void WindowFrame::ToggleMaximized()
{
    isMaximized() ? showNormal() : showMaximized();
}

void WindowFrame::KeepNormalGeometry()
{
    m_geometrySettled.stop();
    // The window manager has ways of its own out of full screen. On the way in it can tell of other states first.
    if (m_fullScreen && !isFullScreen() && !isMinimized() && size() != FullScreenArea().size()) {
        m_fullScreen = false;
        emit FillsScreenChanged(false);
    }
    // Without a window manager nobody else gives the window its size; one that is asked for a size ends full screen.
    if (m_fullScreen && isFullScreen() && size() != FullScreenArea().size())
        windowHandle()->setGeometry(FullScreenArea());
    if (isMaximized() || m_fullScreen || isMinimized())
        return;
    if (!HasUsualSizeForScale())
        return;
    const bool isResized = std::exchange(m_normal, geometry()).size() != size();
    if (isResized && !m_isStarting)
        emit NormalSizeChanged(width(), height());
}

bool WindowFrame::HasUsualSizeForScale()
{
    const auto before = std::exchange(m_scale, devicePixelRatio());
    if (before == m_scale || before == 0 || m_isStarting || size() == m_normal.size())
        return true;
    // All of it stays on this screen: a middle that comes back to the other one would begin all over.
    const auto room = screen()->availableGeometry();
    if (m_given != m_normal.size())
        m_wanted = m_normal.size();
    m_given = m_wanted.boundedTo(room.size());
    QRect place({}, m_given);
    place.moveCenter(geometry().center());
    place.moveTop(geometry().top());
    setGeometry(zentaro::ToQt(MoveOntoScreen(FromQt(place), std::array{ FromQt(room) })));
    return false;
}

void WindowFrame::resizeEvent(QResizeEvent*)
{
    emit Resized();
    m_geometrySettled.start();
}

void WindowFrame::moveEvent(QMoveEvent*)
{
    m_geometrySettled.start();
}

void WindowFrame::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        emit Resized();
        m_geometrySettled.start();
    }
    QWidget::changeEvent(event);
}

void WindowFrame::closeEvent(QCloseEvent* event)
{
    if (m_geometrySettled.isActive())
        KeepNormalGeometry();
    QWidget::closeEvent(event);
}

void WindowFrame::UseCursorFor(const QPoint& at)
{
    const bool isResizable = !isMaximized() && !m_fullScreen;
    setCursor(isResizable ? CursorFor(Layout().EdgesAt(at.x(), at.y())) : Qt::ArrowCursor);
}

void WindowFrame::StartDrag()
{
    const auto from = *std::exchange(m_dragFrom, std::nullopt);
    if (m_fullScreen)
        return;
    const auto edges = Layout().EdgesAt(from.x(), from.y());
    if (edges.Any() && !isMaximized())
        windowHandle()->startSystemResize(ToQt(edges));
    else if (Layout().TitleBar().Contains(from.x(), from.y()))
        windowHandle()->startSystemMove();
}

void WindowFrame::mousePressEvent(QMouseEvent* event)
{
    // A drag begins with the first movement: a mere click would leave the window hanging at the pointer where the
    // window manager sees the release too late.
    if (event->button() == Qt::LeftButton)
        m_dragFrom = event->position().toPoint();
}

void WindowFrame::mouseReleaseEvent(QMouseEvent*)
{
    m_dragFrom.reset();
}

void WindowFrame::mouseMoveEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    const bool isDrag = m_dragFrom && event->buttons().testFlag(Qt::LeftButton);
    if (!isDrag)
        UseCursorFor(at);
    else if ((at - *m_dragFrom).manhattanLength() > kDragDistance)
        StartDrag();
}

void WindowFrame::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    if (event->button() == Qt::LeftButton && Layout().TitleBar().Contains(at.x(), at.y()))
        ToggleMaximized();
}

} // namespace zentaro
