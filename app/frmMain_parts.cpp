#include "app/frmMain.h"

#include "app/Player.h"
#include "app/frmMenu.h"
#include "playback/TimeText.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/FullScreenBar.h"
#include "shell/MenuStrip.h"
#include "shell/NoteBox.h"
#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/VolumeKnob.h"

#include <QFile>
#include <QImageReader>
#include <QLabel>
#include <QMimeData>
#include <QSplitter>

#include <algorithm>
#include <chrono>
#include <utility>

// The window's parts: what they are connected to, where they lie, what they show.
namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr double kListShare = 0.45; // of the content, until the splitter is moved
constexpr int kListRoom = 280;      // px, at the most until then
constexpr auto kProgressDelay = 700ms;
constexpr int kPaneMinimum = 96; // px
constexpr auto kNoteTime = 5s;
constexpr auto kChangeTime = 1500ms;

} // namespace

void frmMain::Serve(Player& player)
{
    m_player = &player;
    MakeTimers();
    MakeList();
    MakeSliders();
    MakeCovers();
    MakeTitleButton(Button::Minimize, "Minimize", {}, &frmMain::showMinimized);
    MakeTitleButton(Button::Maximize, "Maximize", {}, &frmMain::ToggleMaximized);
    MakeTitleButton(Button::Close, "Close", "Ctrl+X", &frmMain::CloseWindow);
    MakeButton(Button::Play, "Play", "Space", &Player::CMDPlayClick);
    MakeButton(Button::Pause, "Pause", "Ctrl+P", &Player::CMDPauseClick);
    MakeButton(Button::Stop, "Stop", "Ctrl+S", &Player::cmdStopClick);
    MakeButton(Button::Previous, "Previous", "PgUp", &Player::cmdPreviousClick);
    MakeButton(Button::Next, "Next", "PgDown", &Player::cmdNextClick);
    MakeHeldButton(Button::Rewind, "Rewind", &Player::RewindPressed, &Player::RewindReleased);
    MakeHeldButton(Button::FastForward, "Fast forward", &Player::cmdffMouseDown, &Player::cmdffMouseUp);
    MakeButton(Button::FullScreen, "Full Screen", "Ctrl+F", &Player::cmdFulScreenClick);
    MakeButton(Button::Snapshot, "Snapshot", "S", &Player::TakeSnapshot);
    MakeButton(Button::PlayList, "Playlist", "", &Player::cmdPlayListClick);
    MakeButton(Button::Dvd, "DVD", "", &Player::cmdDVDClick);
    MakeButton(Button::SoundOn, "Mute", "M", &Player::cmdMuteClick);
    auto* const open = m_buttons[Button::Open] = new SkinButton("Open Media File", "Ctrl+O", this);
    connect(open, &SkinButton::clicked, this, [this] { m_player->OpenFiles(false); });
    MakeMenus();
    StateChanged();
    PlaceChildren();
    OrderFocus();
}

void frmMain::MakeTimers()
{
    const auto letWatch = [this] {
        if (m_player->IsWatchingDiscs() != m_tmrCheckDVD.isActive())
            m_player->IsWatchingDiscs() ? m_tmrCheckDVD.start() : m_tmrCheckDVD.stop();
    };
    connect(&m_tmrMovie, &QTimer::timeout, this, [this, letWatch] {
        m_player->OnPositionTick();
        letWatch();
    });
    connect(&m_tmrRewind, &QTimer::timeout, this, [this] { m_player->OnRewindTick(); });
    connect(&m_tmrCheckDVD, &QTimer::timeout, this, [this, letWatch] {
        letWatch();
        m_player->OnDVDTick();
    });
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

void frmMain::MakeCovers()
{
    m_bar = new FullScreenBar(
        m_skin, [this] { return ButtonStates(); }, this);
    m_note = new NoteBox(this);
    for (auto* const cover : std::initializer_list<QWidget*>{ m_bar, m_note })
        LetCoverVideo(*cover);
    connect(&m_bar->LeaveButton(), &SkinButton::clicked, this, [this] { m_player->LeaveFullScreen(); });
    connect(m_bar, &FullScreenBar::PointerWanted, m_video, &VideoFrame::ShowPointer);
}

void frmMain::OrderFocus()
{
    QWidget* last = m_list;
    const auto follow = [&](QWidget* next) { setTabOrder(std::exchange(last, next), next); };
    const auto followButtons = [&](std::initializer_list<Button> buttons) {
        for (const auto button : buttons) {
            if (const auto at = m_buttons.find(button); at != m_buttons.end())
                follow(at->second);
        }
    };
    followButtons({ Button::Snapshot });
    follow(m_seek);
    followButtons({ Button::FullScreen, Button::Previous, Button::Rewind, Button::Stop, Button::Play, Button::Pause,
        Button::FastForward, Button::Next, Button::PlayList, Button::Dvd, Button::Open, Button::SoundOn });
    follow(m_volume);
    followButtons({ Button::Minimize, Button::Maximize, Button::Close });
}

void frmMain::MakeTitleButton(Button button, const QString& name, const QString& shortcut, void (frmMain::*command)())
{
    auto* const made = m_buttons[button] = new SkinButton(name, shortcut, this);
    connect(made, &SkinButton::clicked, this, command);
}

void frmMain::MakeList()
{
    m_list = new FancyList(m_player->Entries().List(), m_content);
    m_list->SetImageWidth(64);
    m_list->SetImageHeight(64);
    m_list->SetItemHeight(80);
    m_list->setObjectName("FancyList1");
    m_list->installEventFilter(this);
    m_list->setMinimumSize(kPaneMinimum, kPaneMinimum);
    connect(m_content, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
    m_video->setMinimumSize(kPaneMinimum, kPaneMinimum);
    connect(m_list, &FancyList::Click, this, [this] { m_player->ListClicked(); });
    connect(m_list, &FancyList::DblClick, this, [this] { m_player->ListDoubleClicked(); });
    connect(m_list, &FancyList::MouseDown, this, [this](Qt::MouseButton button, Qt::KeyboardModifiers, int x, int y) {
        if (button == Qt::RightButton)
            ClassicMenus().Popup("mnuPlayListmenu", m_list->mapToGlobal(QPoint(x, y)));
    });
    connect(m_list, &FancyList::CancelAdding, this, [this] { m_player->CancelAdding(); });
    connect(m_list, &FancyList::OLEDragDrop, this, [this](const QMimeData* dropped) {
        // The drop is answered first: what it starts can take long, and its source waits.
        QTimer::singleShot(0, this, [this, paths = DroppedPaths(*dropped)] { m_player->DropOnList(paths); });
    });
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
        m_isSplitByHand = false;
    }
    // What is hidden must not keep the keys, nor hand them to the next part.
    if (position == PlaylistDock::Hidden && m_list->hasFocus())
        setFocus();
    PlaceChildren();
}

void frmMain::ShareContent()
{
    const auto content = Layout().Content();
    const auto room = m_content->orientation() == Qt::Vertical ? content.height : content.width;
    const auto listRoom = std::min(static_cast<int>(room * kListShare), kListRoom);
    const bool isListFirst = m_content->indexOf(m_list) == 0;
    m_content->setSizes(isListFirst ? QList{ listRoom, room - listRoom } : QList{ room - listRoom, listRoom });
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
    onPositionShown();
}

void frmMain::ShowTimeText(const std::string& text)
{
    m_time->setText(ToQString(text));
}

void frmMain::FocusVideo()
{
    m_video->setFocus();
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
    m_buttons[Button::Snapshot]->setEnabled(m_player->CanTakeSnapshot());
    m_buttons[Button::SoundOn]->SetName(m_player->Host().IsMuted() ? "Unmute" : "Mute", "M");
    m_seek->SetItem(isLoaded, 0);
    m_volumeNumber->setText(QString::number(m_player->Host().Volume()));
    m_volume->update();
    m_bar->update();
    update();
    NoteChanges();
}

QRect frmMain::NoteArea() const
{
    const auto* const covered = m_video->isVisible() ? static_cast<QWidget*>(m_video) : m_content;
    return { covered->mapTo(this, QPoint()), covered->size() };
}

void frmMain::ShowNote(const std::string& text)
{
    m_note->Show(NoteArea(), ToQString(text), {}, kNoteTime);
}

void frmMain::ShowPictureNote(const std::string& text, const std::string& file)
{
    QImageReader reader(QFile::decodeName(file.c_str()));
    const auto room = (QSizeF(NoteBox::kPictureRoom) * devicePixelRatio()).toSize();
    reader.setScaledSize(reader.size().scaled(room, Qt::KeepAspectRatio));
    m_note->Show(NoteArea(), ToQString(text), file.empty() ? QImage() : reader.read(), kNoteTime);
}

void frmMain::TurnVolume(int eighths)
{
    m_volume->Turn(eighths);
    m_note->Show(NoteArea(), VolumeText(), {}, kChangeTime);
}

QString frmMain::VolumeText() const
{
    const auto& host = m_player->Host();
    return QString("Volume %1 %").arg(host.Volume()) + (host.IsMuted() ? " (muted)" : "");
}

void frmMain::NoteChanges()
{
    const auto volume = VolumeText();
    const auto rate = ToQString(RateLabelText(m_player->Rate().Value()));
    const bool isVolumeNew = std::exchange(m_shownVolume, volume) != volume;
    const bool isRateNew = std::exchange(m_shownRate, rate) != rate;
    if (m_fullScreen && !m_bar->isVisible() && (isVolumeNew || isRateNew))
        m_note->Show(NoteArea(), isVolumeNew ? volume : rate, {}, kChangeTime);
}

void frmMain::PlaceChildren()
{
    if (m_player == nullptr)
        return;
    m_list->setVisible(!m_fullScreen && m_dock != PlaylistDock::Hidden);
    m_video->setVisible(m_fullScreen || m_dock != PlaylistDock::Whole);
    m_content->setGeometry(m_fullScreen ? rect() : ToQt(Layout().Content()));
    if (!m_fullScreen && !m_isSplitByHand && m_dock < PlaylistDock::Whole)
        ShareContent();
    if (m_fullScreen) {
        for (auto* const part : std::initializer_list<QWidget*>{ m_content, m_bar, m_note })
            part->raise();
    }
    PlaceControls();
}

void frmMain::PlaceControls()
{
    auto* const home = m_fullScreen ? static_cast<QWidget*>(m_bar) : this;
    const auto place = [&](QWidget* control, const Rect& rect) {
        if (control->parentWidget() != home) {
            control->setParent(home);
            control->show();
        }
        control->setGeometry(ToQt(rect));
    };
    const auto placeAll = [&](const auto& layout) {
        place(m_time, layout.TimeLabel());
        place(m_seek, layout.SeekTrack());
        place(m_volume, layout.VolumeSlider());
        place(m_volumeNumber, layout.VolumeNumber());
    };
    const auto layout = Layout();
    if (m_fullScreen) {
        const BarLayout bar(width());
        m_bar->Place({ 0, height() - BarLayout::kHeight, width(), BarLayout::kHeight });
        m_bar->LeaveButton().setGeometry(ToQt(bar.ButtonRect(Button::FullScreen)));
        placeAll(bar);
        // The rest lies under the video, where no key may go either.
        for (const auto& [button, widget] : m_buttons) {
            const auto rect = button == Button::FullScreen ? Rect() : bar.ButtonRect(button);
            widget->setVisible(rect.width > 0);
            if (rect.width > 0)
                place(widget, rect);
        }
        return;
    }
    placeAll(layout);
    m_strip->setGeometry(ToQt(layout.MenuStrip()));
    m_rate->setGeometry(ToQt(layout.RateLabel()));
    for (const auto& [button, widget] : m_buttons) {
        place(widget, layout.ButtonRect(button));
        widget->setVisible(true);
    }
}

} // namespace zentaro
