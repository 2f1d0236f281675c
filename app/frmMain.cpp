#include "app/frmMain.h"

#include "app/Player.h"
#include "platform/Window.h"
#include "playback/TimeText.h"
#include "playback/VideoFrame.h"
#include "shell/Caption.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWindow>

#include <chrono>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr double kTwipsPerPixel = 15;
constexpr int kDragDistance = 2; // px

QRect ToQt(const Rect& rect)
{
    return { rect.left, rect.top, rect.width, rect.height };
}

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

QPainterPath Cross(const QRectF& box)
{
    QPainterPath path(box.topLeft());
    path.lineTo(box.bottomRight());
    path.moveTo(box.topRight());
    path.lineTo(box.bottomLeft());
    return path;
}

} // namespace

frmMain::frmMain(const QString& programFolder)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::Window)
    , m_video(new VideoFrame(programFolder + "Audio.JPG", this))
    , m_time(new QLabel(this))
    , m_caption(kProgramName)
{
    setObjectName("frmMain");
    setWindowTitle(kProgramName);
    setWindowIcon(QIcon(programFolder + "icons/zentaro.png"));
    setMinimumSize(WindowLayout::kMinimumWidth, WindowLayout::kMinimumHeight);
    resize(WindowLayout::kFirstWidth, WindowLayout::kFirstHeight);
    setMouseTracking(true);
    m_video->installEventFilter(this);
    m_time->setObjectName("lblTime");
    m_time->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_time->setFont(style::TimeFont());
    m_tmrMovie.setInterval(500ms);
    connect(&m_tmrMovie, &QTimer::timeout, this, &frmMain::OnMovieTimer);
    ShowIdle();
}

void frmMain::Serve(Player& player)
{
    m_player = &player;
}

WindowLayout frmMain::Layout() const
{
    return { width(), height() };
}

ScreenExtent frmMain::Extent() const
{
    const auto size = screen()->size();
    return { size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel };
}

double frmMain::WindowLeft() const
{
    return m_normal.left() * kTwipsPerPixel;
}

double frmMain::WindowTop() const
{
    return m_normal.top() * kTwipsPerPixel;
}

void frmMain::ShowWindow()
{
    if (!m_placed) {
        auto place = geometry();
        place.moveCenter(screen()->availableGeometry().center());
        setGeometry(place);
    }
    KeepNormalGeometry();
    show();
    m_tmrMovie.start();
    // Window managers read the state of a shown window only.
    if (m_topmost)
        platform::SetTopmost(winId(), true);
}

void frmMain::SetWindowSize(int width, int height)
{
    resize(QSize(width, height).expandedTo(minimumSize()));
}

void frmMain::SetWindowPosition(int left, int top)
{
    std::vector<Rect> screens;
    for (const auto* const each : QGuiApplication::screens()) {
        const auto area = each->availableGeometry();
        screens.push_back({ area.x(), area.y(), area.width(), area.height() });
    }
    const auto pixels = [](int twips) { return qRound(twips / kTwipsPerPixel); };
    const auto place = MoveOntoScreen({ pixels(left), pixels(top), width(), height() }, screens);
    setGeometry(ToQt(place));
    m_placed = true;
}

void frmMain::SetTopmost(bool topmost)
{
    m_topmost = topmost;
    if (isVisible())
        platform::SetTopmost(winId(), topmost);
}

void frmMain::SetFullScreen(bool fullScreen)
{
    if (fullScreen == m_fullScreen)
        return;
    if (fullScreen) {
        KeepNormalGeometry();
        m_fullScreen = true;
        m_wasMaximized = isMaximized();
        showFullScreen();
        // Without a window manager nobody else gives the window its size.
        windowHandle()->setGeometry(screen()->geometry());
    } else {
        m_fullScreen = false;
        m_wasMaximized ? showMaximized() : showNormal();
        if (!m_wasMaximized)
            setGeometry(m_normal);
        m_player->Host().FullScreenLeft();
    }
    PlaceChildren();
}

void frmMain::ShowCaption(const std::string& text)
{
    m_caption = ToQString(text);
    setWindowTitle(m_caption);
    update();
}

void frmMain::FlashCaption()
{
    platform::FlashWindowOnce(winId());
}

void frmMain::ShowIdle()
{
    m_time->setText(ToQString(TimeLabelText(0, 0)));
    m_video->ShowAudioLogo(false);
}

void frmMain::ShowMessage(const UserMessage& message)
{
    const auto icon = message.icon == UserMessage::Icon::Information ? QMessageBox::Information : QMessageBox::Warning;
    QMessageBox box(icon, ToQString(message.title), ToQString(message.text), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void frmMain::PumpMessages(int times)
{
    for (int i = 0; i < times; ++i)
        QCoreApplication::processEvents();
}

void frmMain::OnMovieTimer()
{
    auto* const engine = m_player->Host().VLCPlayer();
    if (engine == nullptr || !m_player->MediaControlsEnabled())
        return;
    const auto state = engine->State();
    if (state < Engine::kPlaying)
        return;
    m_time->setText(ToQString(TimeLabelText(std::max(engine->Time(), 0.0), std::max(engine->Length(), 0.0))));
    m_video->ShowAudioLogo(!engine->HasVideoOutput());
}

void frmMain::PlaceChildren()
{
    if (m_fullScreen) {
        m_video->setGeometry(rect());
        m_video->raise();
        return;
    }
    const auto layout = Layout();
    m_video->setGeometry(ToQt(layout.Content()));
    m_time->setGeometry(ToQt(layout.TimeLabel()));
}

void frmMain::KeepNormalGeometry()
{
    if (!isMaximized() && !m_fullScreen && !isMinimized())
        m_normal = geometry();
}

void frmMain::resizeEvent(QResizeEvent*)
{
    PlaceChildren();
    KeepNormalGeometry();
    if (m_player != nullptr && !m_fullScreen)
        m_player->WindowResized(width(), height());
}

void frmMain::moveEvent(QMoveEvent*)
{
    KeepNormalGeometry();
}

void frmMain::paintEvent(QPaintEvent*)
{
    const auto layout = Layout();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), style::kBase);
    painter.fillRect(ToQt(layout.TitleBar()), style::kRaised);
    painter.fillRect(ToQt(layout.Panel()), style::kRaised);
    painter.fillRect(0, layout.Panel().top, width(), 1, style::kHairline);
    const auto icon = ToQt(layout.Icon());
    windowIcon().paint(&painter, icon.adjusted(2, 2, -2, -2));
    painter.setPen(style::kText);
    painter.setFont(font());
    const auto caption = ToQt(layout.Caption());
    const auto line = QString(m_caption).replace('\n', ' ');
    painter.drawText(caption, Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(line, Qt::ElideRight, caption.width()));

    const auto paintButton = [&](TitleButton button, const Rect& at, auto&& glyph) {
        const auto box = ToQt(at);
        if (m_hovered == button)
            painter.fillRect(box, button == TitleButton::Close ? style::kCloseHover : style::kHairline);
        painter.setPen(QPen(m_pressed == button ? style::kLight : style::kText, 1.4, Qt::SolidLine, Qt::RoundCap));
        QRectF face(0, 0, 9, 9);
        face.moveCenter(QRectF(box).center());
        painter.drawPath(glyph(face));
    };
    paintButton(TitleButton::Close, layout.CloseButton(), &Cross);
    paintButton(TitleButton::Maximize, layout.MaximizeButton(), [](const QRectF& face) {
        QPainterPath path;
        path.addRoundedRect(face, 1.5, 1.5);
        return path;
    });
    paintButton(TitleButton::Minimize, layout.MinimizeButton(), [](const QRectF& face) {
        QPainterPath path(QPointF(face.left(), face.bottom()));
        path.lineTo(face.bottomRight());
        return path;
    });
}

frmMain::TitleButton frmMain::TitleButtonAt(const QPoint& at) const
{
    const auto layout = Layout();
    if (layout.CloseButton().Contains(at.x(), at.y()))
        return TitleButton::Close;
    if (layout.MaximizeButton().Contains(at.x(), at.y()))
        return TitleButton::Maximize;
    return layout.MinimizeButton().Contains(at.x(), at.y()) ? TitleButton::Minimize : TitleButton::None;
}

void frmMain::Press(TitleButton button)
{
    switch (button) {
    case TitleButton::Close:
        close();
        break;
    case TitleButton::Maximize:
        isMaximized() ? showNormal() : showMaximized();
        break;
    case TitleButton::Minimize:
        showMinimized();
        break;
    case TitleButton::None:
        break;
    }
}

void frmMain::UseCursorFor(const QPoint& at)
{
    const bool resizable = !isMaximized() && !m_fullScreen && TitleButtonAt(at) == TitleButton::None;
    setCursor(resizable ? CursorFor(Layout().EdgesAt(at.x(), at.y())) : Qt::ArrowCursor);
}

void frmMain::StartDrag()
{
    const auto from = *std::exchange(m_dragFrom, std::nullopt);
    if (m_fullScreen)
        return;
    const auto layout = Layout();
    const auto edges = layout.EdgesAt(from.x(), from.y());
    if (edges.Any() && !isMaximized())
        windowHandle()->startSystemResize(ToQt(edges));
    else if (layout.TitleBar().Contains(from.x(), from.y()))
        windowHandle()->startSystemMove();
}

void frmMain::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto at = event->position().toPoint();
    m_pressed = TitleButtonAt(at);
    // A drag begins with the first movement: a mere click would leave the window hanging at the pointer where the
    // window manager sees the release too late.
    if (m_pressed == TitleButton::None)
        m_dragFrom = at;
    update();
}

void frmMain::mouseReleaseEvent(QMouseEvent* event)
{
    const auto pressed = std::exchange(m_pressed, TitleButton::None);
    m_dragFrom.reset();
    update();
    // A press that leaves the button before its release does nothing.
    if (pressed != TitleButton::None && pressed == TitleButtonAt(event->position().toPoint()))
        Press(pressed);
}

void frmMain::mouseMoveEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    if (m_dragFrom && event->buttons().testFlag(Qt::LeftButton)) {
        if ((at - *m_dragFrom).manhattanLength() > kDragDistance)
            StartDrag();
        return;
    }
    UseCursorFor(at);
    const auto hovered = TitleButtonAt(at);
    if (std::exchange(m_hovered, hovered) != hovered)
        update();
}

void frmMain::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    const bool onBar = Layout().TitleBar().Contains(at.x(), at.y()) && TitleButtonAt(at) == TitleButton::None;
    if (event->button() == Qt::LeftButton && onBar)
        Press(TitleButton::Maximize);
}

void frmMain::leaveEvent(QEvent*)
{
    m_hovered = TitleButton::None;
    update();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        m_player->Host().SetFullScreen(!m_fullScreen);
        return true;
    }
    if (event->type() == QEvent::Enter)
        unsetCursor();
    return QWidget::eventFilter(watched, event);
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_fullScreen)
        m_player->Host().SetFullScreen(false);
    else
        QWidget::keyPressEvent(event);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->accept();
    m_tmrMovie.stop();
    m_player->Unload();
}

} // namespace zentaro
