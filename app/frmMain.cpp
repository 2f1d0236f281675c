#include "app/frmMain.h"

#include "app/Player.h"
#include "app/VideoMenu.h"
#include "platform/Files.h"
#include "platform/Process.h"
#include "platform/Window.h"
#include "playback/TimeText.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "playlist/OpenFiles.h"
#include "shell/Caption.h"
#include "shell/DigitLabel.h"
#include "shell/FullScreenBar.h"
#include "shell/MessageDialog.h"
#include "shell/NoteBox.h"
#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/Style.h"
#include "shell/VolumeKnob.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QSplitter>
#include <QToolTip>
#include <QWindow>

#include <chrono>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr double kTwipsPerPixel = 15;
constexpr int kDragDistance = 2;  // px
constexpr int kSplitterWidth = 6; // px

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
    auto* const window = qobject_cast<frmMain*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

frmMain::frmMain(const QString& programFolder)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::Window)
    , m_programFolder(programFolder)
    , m_content(new QSplitter(this))
    , m_video(new VideoFrame(programFolder + "Audio.JPG", m_content))
    , m_time(new DigitLabel(this))
    , m_rate(new QLabel(this))
    , m_volumeNumber(new DigitLabel(this))
    , m_caption(kProgramName)
{
    QAccessible::installFactory(&MakeAccessibleWindow);
    setObjectName("frmMain");
    setWindowTitle(kProgramName);
    setWindowIcon(QIcon(programFolder + "icons/zentaro.png"));
    setMinimumSize(WindowLayout::kMinimumWidth, WindowLayout::kMinimumHeight);
    resize(WindowLayout::kFirstWidth, WindowLayout::kFirstHeight);
    setMouseTracking(true);
    setAcceptDrops(true);
    m_content->setChildrenCollapsible(false);
    m_content->setHandleWidth(kSplitterWidth);
    m_video->installEventFilter(this);
    m_video->setAcceptDrops(true);
    m_video->setFocusPolicy(Qt::ClickFocus);
    m_video->setAccessibleName("Video");
    for (auto* const label : { m_time, m_rate, m_volumeNumber })
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_rate->setObjectName("lblRate");
    m_rate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_volumeNumber->setObjectName("lblVolume");
    m_volumeNumber->setFont(style::SmallFont());
    for (auto* const label : { m_rate, m_volumeNumber })
        label->setForegroundRole(QPalette::PlaceholderText);
    m_time->setObjectName("lblTime");
    m_progressDelay.setSingleShot(true);
    m_geometrySettled.setSingleShot(true);
    m_geometrySettled.setInterval(200ms);
    connect(&m_geometrySettled, &QTimer::timeout, this, &frmMain::KeepNormalGeometry);
    connect(&m_progressDelay, &QTimer::timeout, this, [this] { m_list->ShowAddProgress(m_progress); });
    m_tmrMovie.setInterval(500ms);
    m_tmrRewind.setInterval(10ms);
    m_tmrRewind.setTimerType(Qt::PreciseTimer);
    m_tmrCheckDVD.setInterval(1000ms);
    ShowIdle();
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
    // The window can be used without its pictures; whoever looks for them finds the name.
    if (const auto loaded = m_skin.Load(m_programFolder + "images/"); !loaded)
        qWarning("%s", loaded.error().text.c_str());
    if (QGuiApplication::platformName() == "offscreen")
        qWarning("There is no display: the window is not seen, but files play. Ctrl+C ends the player.");
    if (!m_placed) {
        const auto room = screen()->availableGeometry();
        QRect place({}, size().boundedTo(room.size()).expandedTo(minimumSize()));
        place.moveCenter(room.center());
        setGeometry(place);
    }
    KeepNormalGeometry();
    // Else the first part that takes keys would have them.
    setFocus();
    // Not earlier: a messenger that waits for its player ends at once. Not later: the first file can take long.
    platform::OnQuitRequest([this] { close(); });
    show();
    m_tmrMovie.start();
    SetTrayShown(m_hasTrayIcon);
    // Window managers read the state of a shown window only.
    if (m_topmost)
        platform::SetTopmost(winId(), true);
}

void frmMain::SetWindowSize(int width, int height)
{
    if (isMaximized() || m_fullScreen)
        return;
    resize(QSize(width, height).boundedTo(screen()->availableSize()).expandedTo(minimumSize()));
}

void frmMain::SetWindowPosition(int left, int top)
{
    if (isMaximized() || m_fullScreen)
        return;
    const auto pixels = [](int twips) { return qRound(twips / kTwipsPerPixel); };
    const auto place =
        MoveOntoScreen({ pixels(left), pixels(top), width(), height() }, ScreenAreas(&QScreen::availableGeometry));
    setGeometry(ToQt(place));
    m_placed = true;
}

void frmMain::SetTopmost(bool topmost)
{
    m_topmost = topmost;
    if (isVisible())
        platform::SetTopmost(winId(), topmost);
}

QRect frmMain::FullScreenArea() const
{
    const auto screens = ScreenAreas(&QScreen::geometry);
    return ToQt(ScreenOf(FromQt(geometry()), screens));
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
        KeepNormalGeometrySoon();
        PlaceChildren();
        m_video->setFocus();
        m_bar->Begin();
    } else {
        m_fullScreen = false;
        m_wasMaximized ? showMaximized() : showNormal();
        if (!m_wasMaximized)
            setGeometry(m_normal);
        FullScreenLeft();
    }
}

void frmMain::FullScreenLeft()
{
    m_player->Host().FullScreenLeft();
    m_bar->End();
    PlaceChildren();
    OrderFocus();
}

void frmMain::ShowCaption(const std::string& text)
{
    m_caption = ToQString(text);
    // Qt takes a lone "[*]" for its mark of changed documents.
    setWindowTitle(QString(m_caption).replace("[*]", "[*][*]"));
    update();
}

void frmMain::FlashCaption()
{
    platform::FlashWindowOnce(winId());
}

void frmMain::ShowNotice(const Notice& notice)
{
    // Above a dialog that is open: below it nobody could answer the box.
    auto* const dialog = QApplication::activeModalWidget();
    MessageDialog(notice, m_skin, dialog != nullptr ? dialog : this).exec();
}

std::vector<std::string> frmMain::AskForFiles(const std::string& title, const std::string& filter)
{
    // "name|patterns" pairs; Qt wants "name (patterns)", with blanks between the patterns.
    QStringList filters;
    const auto parts = ToQString(filter).split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    std::vector<std::string> paths;
    for (const auto& name : QFileDialog::getOpenFileNames(this, ToQString(title), {}, filters.join(";;")))
        paths.push_back(ToPath(name));
    return OpenFileResults(paths, platform::PathSeparator());
}

std::string frmMain::AskForSubtitles()
{
    const QString filter = "Subtitles (*.srt *.sub *.ass *.ssa *.vtt *.idx *.smi *.txt *.mpl);;All files (*)";
    return ToPath(QFileDialog::getOpenFileName(this, "Open Subtitles", {}, filter));
}

void frmMain::PumpMessages(int times)
{
    for (int i = 0; i < times; ++i)
        QCoreApplication::processEvents();
}

void frmMain::PumpFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

void frmMain::PumpUntil(const std::function<bool()>& done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void frmMain::KeepNormalGeometry()
{
    m_geometrySettled.stop();
    // The window manager has ways of its own out of full screen. On the way in it can tell of other states first.
    if (m_fullScreen && !isFullScreen() && !isMinimized() && size() != FullScreenArea().size()) {
        m_fullScreen = false;
        FullScreenLeft();
    }
    // Without a window manager nobody else gives the window its size; one that is asked for a size ends full screen.
    if (m_fullScreen && isFullScreen() && size() != FullScreenArea().size())
        windowHandle()->setGeometry(FullScreenArea());
    if (isMaximized() || m_fullScreen || isMinimized())
        return;
    m_normal = geometry();
    if (m_player != nullptr)
        m_player->WindowResized(width(), height());
}

void frmMain::resizeEvent(QResizeEvent*)
{
    PlaceChildren();
    KeepNormalGeometrySoon();
}

void frmMain::moveEvent(QMoveEvent*)
{
    KeepNormalGeometrySoon();
}

SkinButtons frmMain::ButtonStates() const
{
    SkinButtons buttons;
    buttons.states.fill(ButtonState::Disabled);
    for (const auto& [button, widget] : m_buttons) {
        buttons.StateOf(button) = widget->State();
        buttons.FadeOf(button) = widget->StateFade();
    }
    buttons.FadeOf(Button::SoundOff) = buttons.FadeOf(Button::SoundOn);
    buttons.StateOf(Button::SoundOff) = buttons.StateOf(Button::SoundOn);
    buttons.isMuted = m_player->Host().IsMuted();
    return buttons;
}

void frmMain::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_skin.Paint(painter, width(), height(), ButtonStates());
    const auto caption = ToQt(Layout().Caption());
    const auto line = QString(m_caption).replace('\n', ' ');
    if (!isMaximized()) {
        // A hair of light keeps the window's edge on a dark desktop.
        painter.setPen(style::kHairline);
        painter.drawRect(0, 0, width() - 1, height() - 1);
    }
    painter.setPen(style::kText);
    painter.setFont(font());
    painter.drawText(caption, Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(line, Qt::ElideRight, caption.width()));
}

void frmMain::ToggleMaximized()
{
    isMaximized() ? showNormal() : showMaximized();
}

void frmMain::UseCursorFor(const QPoint& at)
{
    const bool isResizable = !isMaximized() && !m_fullScreen;
    setCursor(isResizable ? CursorFor(Layout().EdgesAt(at.x(), at.y())) : Qt::ArrowCursor);
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
    // A drag begins with the first movement: a mere click would leave the window hanging at the pointer where the
    // window manager sees the release too late.
    if (event->button() == Qt::LeftButton)
        m_dragFrom = event->position().toPoint();
}

void frmMain::mouseReleaseEvent(QMouseEvent*)
{
    m_dragFrom.reset();
}

void frmMain::mouseMoveEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    const bool isDrag = m_dragFrom && event->buttons().testFlag(Qt::LeftButton);
    if (!isDrag)
        UseCursorFor(at);
    else if ((at - *m_dragFrom).manhattanLength() > kDragDistance)
        StartDrag();
}

void frmMain::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto at = event->position().toPoint();
    if (event->button() == Qt::LeftButton && Layout().TitleBar().Contains(at.x(), at.y()))
        ToggleMaximized();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        AcceptAsCopy(*event);
}

void frmMain::dropEvent(QDropEvent* event)
{
    AcceptAsCopy(*event);
    QTimer::singleShot(0, this, [this, paths = DroppedPaths(*event->mimeData())] { m_player->DropOnVideo(paths); });
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange && m_player != nullptr) {
        PlaceChildren();
        m_buttons[Button::Maximize]->SetName(isMaximized() ? "Restore" : "Maximize", {});
        KeepNormalGeometrySoon();
    }
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && m_player != nullptr)
        m_player->ReleaseHeldButtons();
    QWidget::changeEvent(event);
}

bool frmMain::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && FocusUsesKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        const bool isOnCaption = Layout().Caption().Contains(help->pos().x(), help->pos().y());
        QToolTip::showText(
            help->globalPos(), isOnCaption ? "<p>" + m_caption.toHtmlEscaped() + "</p>" : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_video)
        return event->type() == QEvent::KeyPress && MoveSelection(*static_cast<QKeyEvent*>(event));
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            m_player->Host().SetFullScreen(!m_fullScreen);
        return true;
    case QEvent::ContextMenu:
        ShowVideoMenu(*this, *m_player, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    case QEvent::Enter:
        unsetCursor();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (m_note != nullptr && m_note->isVisible())
            m_note->Place(NoteArea());
        break;
    case QEvent::MouseMove:
        m_bar->PointerSeen(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
        break;
    case QEvent::Wheel:
        TurnVolume(static_cast<QWheelEvent*>(event)->angleDelta().y());
        return true;
    case QEvent::DragEnter:
        dragEnterEvent(static_cast<QDragEnterEvent*>(event));
        return true;
    case QEvent::Drop:
        dropEvent(static_cast<QDropEvent*>(event));
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void frmMain::wheelEvent(QWheelEvent* event)
{
    // What the controls of full screen leave over belongs to the video around them.
    if (m_fullScreen)
        TurnVolume(event->angleDelta().y());
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (m_geometrySettled.isActive())
        KeepNormalGeometry();
    m_tmrMovie.stop();
    m_player->Unload();
}

} // namespace zentaro
