#include "app/frmMain.h"

#include "app/Player.h"
#include "app/PlayerMenus.h"
#include "platform/Folders.h"
#include "platform/QuitRequest.h"
#include "platform/Window.h"
#include "playback/TimeText.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "playlist/OpenFiles.h"
#include "shell/Caption.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/Style.h"
#include "shell/VolumeKnob.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QMessageBox>
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
constexpr int kDragDistance = 2;            // px
constexpr double kListShare = 0.45;         // of the content, until the splitter is moved
constexpr qsizetype kLongestNotice = 10000; // characters
constexpr auto kProgressDelay = 700ms;
constexpr int kSplitterWidth = 6; // px
constexpr int kPaneMinimum = 96;  // px

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

} // namespace

frmMain::frmMain(const QString& programFolder)
    : QWidget(nullptr, Qt::FramelessWindowHint | Qt::Window)
    , m_programFolder(programFolder)
    , m_content(new QSplitter(this))
    , m_video(new VideoFrame(programFolder + "Audio.JPG", m_content))
    , m_time(new QLabel(this))
    , m_rate(new QLabel(this))
    , m_note(new QLabel(this))
    , m_volumeNumber(new QLabel(this))
    , m_caption(kProgramName)
{
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
    m_video->setMinimumSize(kPaneMinimum, kPaneMinimum);
    for (auto* const label : { m_time, m_rate, m_note, m_volumeNumber })
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_rate->setObjectName("lblRate");
    m_rate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_volumeNumber->setObjectName("lblVolume");
    m_volumeNumber->setFont(style::TimeFont());
    m_time->setObjectName("lblTime");
    m_time->setFont(style::TimeFont());
    m_note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_note->setTextFormat(Qt::PlainText);
    m_noteEnd.setSingleShot(true);
    connect(&m_noteEnd, &QTimer::timeout, this, [this] { ShowNote({}); });
    m_progressDelay.setSingleShot(true);
    m_geometrySettled.setSingleShot(true);
    m_geometrySettled.setInterval(200ms);
    connect(&m_geometrySettled, &QTimer::timeout, this, &frmMain::KeepNormalGeometry);
    connect(&m_progressDelay, &QTimer::timeout, this, [this] { m_list->ShowAddProgress(m_progress); });
    m_tmrMovie.setInterval(500ms);
    m_tmrRewind.setInterval(10ms);
    m_tmrRewind.setTimerType(Qt::PreciseTimer);
    ShowIdle();
}

void frmMain::Serve(Player& player)
{
    m_player = &player;
    connect(&m_tmrMovie, &QTimer::timeout, this, [this] { m_player->OnPositionTick(); });
    connect(&m_tmrRewind, &QTimer::timeout, this, [this] { m_player->OnRewindTick(); });
    MakeList();
    MakeSliders();
    MakeTitleButton(Button::Minimize, "Minimize", &frmMain::showMinimized);
    MakeTitleButton(Button::Maximize, "Maximize", &frmMain::ToggleMaximized);
    MakeTitleButton(Button::Close, "Close", &frmMain::CloseWindow);
    MakeButton(Button::Play, "Play", "", &Player::CMDPlayClick);
    MakeButton(Button::Pause, "Pause", "Ctrl+P", &Player::CMDPauseClick);
    MakeButton(Button::Stop, "Stop", "Ctrl+S", &Player::cmdStopClick);
    MakeButton(Button::Previous, "Previous", "PgUp", &Player::cmdPreviousClick);
    MakeButton(Button::Next, "Next", "PgDown", &Player::cmdNextClick);
    MakeHeldButton(Button::Rewind, "Rewind", &Player::RewindPressed, &Player::RewindReleased);
    MakeHeldButton(Button::FastForward, "Fast forward", &Player::cmdffMouseDown, &Player::cmdffMouseUp);
    MakeButton(Button::FullScreen, "Full Screen", "Ctrl+F", &Player::cmdFulScreenClick);
    MakeButton(Button::PlayList, "Playlist", "", &Player::cmdPlayListClick);
    MakeButton(Button::SoundOn, "Mute", "", &Player::cmdMuteClick);
    auto* const open = m_buttons[Button::Open] = new SkinButton("Open Media File", "Ctrl+O", this);
    connect(open, &SkinButton::clicked, this, [this] { m_player->OpenFiles(false); });
    AddShortcuts(*this, *m_player);
    StateChanged();
    PlaceChildren();
}

void frmMain::MakeButton(Button button, const QString& name, const QString& shortcut, void (Player::*command)())
{
    auto* const made = m_buttons[button] = new SkinButton(name, shortcut, this);
    connect(made, &SkinButton::clicked, this, [this, command] { (m_player->*command)(); });
}

void frmMain::MakeHeldButton(Button button, const QString& name, void (Player::*press)(), void (Player::*release)())
{
    auto* const made = m_buttons[button] = new SkinButton(name, "hold", this);
    connect(made, &SkinButton::pressed, this, [this, press] {
        (m_player->*press)();
        m_tmrRewind.start();
    });
    connect(made, &SkinButton::released, this, [this, release] {
        (m_player->*release)();
        m_tmrRewind.stop();
    });
}

void frmMain::MakeSliders()
{
    m_seek = new SeekTrack(m_player->Seeking(), this);
    connect(m_seek, &SeekTrack::PositionChosen, this, [this](double position) { m_player->Seek(position); });
    connect(m_seek, &SeekTrack::StepChosen, this, [this](int milliseconds) { m_player->SeekBy(milliseconds); });
    m_volume = new VolumeKnob(m_player->Loudness(), this);
    connect(m_volume, &VolumeKnob::VolumeChosen, this, [this](int percent) { m_player->SetVolume(percent); });
}

void frmMain::MakeTitleButton(Button button, const QString& name, void (frmMain::*command)())
{
    auto* const made = m_buttons[button] = new SkinButton(name, {}, this);
    connect(made, &SkinButton::clicked, this, command);
}

void frmMain::MakeList()
{
    auto& state = m_player->Entries().List();
    state.SetImageWidth(64);
    state.SetImageHeight(64);
    state.SetItemHeight(80);
    m_list = new FancyList(state, m_content);
    m_list->setObjectName("FancyList1");
    m_list->setMinimumSize(kPaneMinimum, kPaneMinimum);
    connect(m_list, &FancyList::Click, this, [this] { m_player->ListClicked(); });
    connect(m_list, &FancyList::DblClick, this, [this] { m_player->ListDoubleClicked(); });
    connect(m_list, &FancyList::MouseDown, this, [this](Qt::MouseButton button, Qt::KeyboardModifiers, int x, int y) {
        if (button == Qt::RightButton)
            ShowListMenu(*this, *m_player, m_list->mapToGlobal(QPoint(x, y)));
    });
    connect(m_list, &FancyList::CancelAdding, this, [this] { m_player->CancelAdding(); });
    connect(m_list, &FancyList::OLEDragDrop, this, [this](const QMimeData* dropped) {
        // The drop is answered first: what it starts can take long, and its source waits.
        QTimer::singleShot(0, this, [this, paths = DroppedPaths(*dropped)] { m_player->DropOnList(paths); });
    });
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
    if (!m_placed) {
        auto place = geometry();
        place.moveCenter(screen()->availableGeometry().center());
        setGeometry(place);
    }
    KeepNormalGeometry();
    // Not earlier: a messenger that waits for its player ends at once. Not later: the first file can take long.
    platform::OnQuitRequest([this] { close(); });
    show();
    m_tmrMovie.start();
    // Window managers read the state of a shown window only.
    if (m_topmost)
        platform::SetTopmost(winId(), true);
}

void frmMain::SetWindowSize(int width, int height)
{
    resize(QSize(width, height).boundedTo(screen()->availableSize()).expandedTo(minimumSize()));
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
    // Qt takes a lone "[*]" for its mark of changed documents.
    setWindowTitle(QString(m_caption).replace("[*]", "[*][*]"));
    update();
}

void frmMain::FlashCaption()
{
    platform::FlashWindowOnce(winId());
}

bool frmMain::IsPlaylistVisible() const
{
    return m_dock != PlaylistDock::Hidden;
}

void frmMain::SetPlaylistPosition(PlaylistDock position)
{
    const bool isStacked = position == PlaylistDock::Top || position == PlaylistDock::Bottom;
    const bool isListFirst = position == PlaylistDock::Left || position == PlaylistDock::Top;
    m_dock = position;
    // Hiding keeps the place, so that the splitter is where it was when the list comes back.
    if (position < PlaylistDock::Whole && std::exchange(m_splitFor, position) != position) {
        m_content->setOrientation(isStacked ? Qt::Vertical : Qt::Horizontal);
        m_content->insertWidget(isListFirst ? 0 : 1, m_list);
        m_content->setStretchFactor(m_content->indexOf(m_video), 1);
        m_content->setStretchFactor(m_content->indexOf(m_list), 0);
        const auto room = isStacked ? m_content->height() : m_content->width();
        const auto listRoom = static_cast<int>(room * kListShare);
        m_content->setSizes(isListFirst ? QList{ listRoom, room - listRoom } : QList{ room - listRoom, listRoom });
    }
    PlaceChildren();
}

void frmMain::ShowAddProgress(const AddProgress& progress)
{
    // One file is opened in a moment; the line comes only when that moment grows long.
    m_progress = progress;
    if (progress.total == 1)
        m_progressDelay.start(kProgressDelay);
    else
        m_list->ShowAddProgress(progress);
}

void frmMain::ShowPosition(const PositionTick& tick, double length)
{
    m_time->setText(ToQString(tick.timeText));
    m_seek->SetItem(m_player->MediaControlsEnabled(), length);
    m_seek->ShowProgress();
    if (tick.showAudioLogo)
        m_video->ShowAudioLogo(*tick.showAudioLogo);
}

void frmMain::ShowRate(const std::string& text)
{
    m_rate->setText(ToQString(text));
}

void frmMain::ShowIdle()
{
    m_time->setText(ToQString(TimeLabelText(0, 0)));
    m_video->ShowAudioLogo(false);
    if (m_seek != nullptr)
        m_seek->ShowProgress();
}

void frmMain::StateChanged()
{
    const bool isLoaded = m_player->MediaControlsEnabled();
    for (const auto button : { Button::Pause, Button::Stop, Button::Previous, Button::Next, Button::Rewind,
             Button::FastForward, Button::FullScreen })
        m_buttons[button]->setEnabled(isLoaded);
    m_seek->SetItem(isLoaded, 0);
    m_volumeNumber->setText(QString::number(m_player->Host().Volume()));
    m_volume->update();
    update();
}

void frmMain::ShowNotice(const Notice& notice)
{
    const auto icon = notice.icon == NoticeIcon::Information ? QMessageBox::Information : QMessageBox::Warning;
    auto text = ToQString(notice.text);
    // Breaking an endless name into lines takes minutes, and nobody reads it.
    if (text.size() > kLongestNotice)
        text = text.left(kLongestNotice / 2) + " ... " + text.right(kLongestNotice / 2);
    QMessageBox box(icon, ToQString(notice.title), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void frmMain::ShowNote(const std::string& text)
{
    m_note->setText(ToQString(text));
    m_rate->setVisible(text.empty());
    m_noteEnd.start(5s);
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

void frmMain::PumpMessages(int times)
{
    for (int i = 0; i < times; ++i)
        QCoreApplication::processEvents();
}

void frmMain::PumpUntil(const std::function<bool()>& done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void frmMain::PlaceChildren()
{
    if (m_list != nullptr)
        m_list->setVisible(!m_fullScreen && m_dock != PlaylistDock::Hidden);
    if (m_fullScreen) {
        m_video->setVisible(true);
        m_content->setGeometry(rect());
        m_content->raise();
        return;
    }
    m_video->setVisible(m_dock != PlaylistDock::Whole);
    const auto layout = Layout();
    m_content->setGeometry(ToQt(layout.Content()));
    m_time->setGeometry(ToQt(layout.TimeLabel()));
    m_rate->setGeometry(ToQt(layout.RateLabel()));
    m_note->setGeometry(ToQt(layout.NoteLabel()));
    m_volumeNumber->setGeometry(ToQt(layout.VolumeNumber()));
    if (m_seek != nullptr) {
        m_seek->setGeometry(ToQt(layout.SeekTrack()));
        m_volume->setGeometry(ToQt(layout.VolumeSlider()));
    }
    for (const auto& [button, widget] : m_buttons)
        widget->setGeometry(ToQt(layout.ButtonRect(button)));
}

void frmMain::KeepNormalGeometry()
{
    m_geometrySettled.stop();
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
    for (const auto& [button, widget] : m_buttons)
        buttons.StateOf(button) = widget->State();
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
    if (event->type() == QEvent::WindowStateChange) {
        // The window manager has its own ways out of full screen.
        if (m_fullScreen && !isFullScreen() && !isMinimized()) {
            m_fullScreen = false;
            m_player->Host().FullScreenLeft();
        }
        PlaceChildren();
    }
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && m_player != nullptr)
        m_player->ReleaseHeldButtons();
    QWidget::changeEvent(event);
}

bool frmMain::event(QEvent* event)
{
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
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            m_player->Host().SetFullScreen(!m_fullScreen);
        return true;
    case QEvent::ContextMenu:
        ShowPlayMenu(*this, *m_player, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    case QEvent::Enter:
        unsetCursor();
        break;
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
    if (m_geometrySettled.isActive())
        KeepNormalGeometry();
    m_tmrMovie.stop();
    m_player->Unload();
}

} // namespace zentaro
