#include "app/frmMain.h"

#include "app/CommandMenu.h"
#include "app/Commands.h"
#include "app/ContentPane.h"
#include "app/ControlPanel.h"
#include "app/FocusAreas.h"
#include "app/ListHand.h"
#include "app/ListMenu.h"
#include "app/Player.h"
#include "app/TrackPreview.h"
#include "app/VideoHand.h"
#include "app/VideoMenu.h"
#include "app/WindowKeys.h"
#include "app/WindowMenus.h"
#include "app/WindowNotes.h"
#include "app/WindowSight.h"
#include "base/Words.h"
#include "platform/Process.h"
#include "platform/Window.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/Caption.h"
#include "shell/FullScreenBar.h"
#include "shell/MenuStrip.h"
#include "shell/NoteBox.h"
#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/SkinButton.h"
#include "shell/Style.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace zentaro {

frmMain::frmMain(Player& player, Previews& previews, VideoFrame* video, const QString& programFolder)
    : m_player(player)
    , m_timers(player, this)
    , m_programFolder(programFolder)
    , m_video(video)
    , m_list(new FancyList(player.Entries().List()))
    , m_content(new ContentPane(*video, *m_list, player.Own(), this))
    , m_controls(new ControlPanel(player, this))
    , m_bar(new FullScreenBar(
          m_skin, [this] { return m_controls->ButtonStates(); }, this))
    , m_menus(new WindowMenus(player, *this))
    , m_listHand(std::make_unique<ListHand>(player, *m_list, *m_menus))
    , m_notes(new WindowNotes(player, *video, *m_content))
    , m_caption(kProgramName)
{
    if (player.IsExpected())
        m_skin.Begin(m_programFolder + "images/");
    setObjectName("frmMain");
    setWindowTitle(kProgramName);
    setWindowIcon(QIcon(programFolder + "icons/zentaro.png"));
    LetPointerLook(player, previews, m_controls->Seek(), *m_list);
    new VideoHand(player, *m_video, *m_bar, *m_notes, *this);
    m_video->setFocusPolicy(Qt::StrongFocus);
    LetCoverVideo(*m_bar);
    connect(&m_bar->LeaveButton(), &QAbstractButton::clicked, this, [this] { FillScreen(false); });
    connect(m_bar, &FullScreenBar::PointerWanted, m_video, &VideoFrame::ShowPointer);
    connect(this, &WindowFrame::Resized, this, &frmMain::PlaceParts);
    connect(this, &WindowFrame::PointerRestsOnCaption, this, [this] { ShowTip(true, QCursor::pos()); });
    connect(this, &WindowFrame::FillsScreenChanged, this, &frmMain::FillsScreenNow);
    connect(this, &WindowFrame::NormalSizeChanged, this,
        [this](int width, int height) { m_player.WindowResized(width, height); });
    MakeMenus();
    m_areas = new FocusAreas({ *this, *m_video, *m_list, *m_content, *m_controls, *m_bar });
    PlaceParts();
    m_controls->Show();
    m_areas->Order();
}

frmMain::~frmMain() = default;

void frmMain::MakeMenus()
{
    const auto* const commands = new CommandMenu(m_player, this);
    m_strip = new MenuStrip(this);
    for (auto* const menu : commands->TopMenus())
        m_strip->addMenu(menu);
    m_strip->insertMenu(m_strip->actions().last(), MakeVideoMenu(*this, m_player));
    auto* const listMenu = commands->Menu("PlayList");
    listMenu->addSeparator();
    listMenu->addMenu(new ListMenu(m_player, this));
    new WindowKeys(m_player, *this, { *m_list, *m_strip, *m_controls, *m_video });
}

ScreenExtent frmMain::Extent() const
{
    const auto size = screen()->size();
    return { size.width() * kTwipsPerPixel, size.height() * kTwipsPerPixel };
}

void frmMain::FitFilm(int width, int height)
{
    FitTo(*m_video, width, height);
}

void frmMain::SetWindowPosition(int left, int top)
{
    TakePlace(qRound(left / kTwipsPerPixel), qRound(top / kTwipsPerPixel));
}

void frmMain::ShowWindow()
{
    // The window can be used without its pictures; whoever looks for them finds the name.
    if (const auto loaded = m_skin.Load(m_programFolder + "images/"); !loaded)
        qWarning("%s", loaded.error().text.c_str());
    if (QGuiApplication::platformName() == "offscreen")
        qWarning("There is no display: the window is not seen, but files play. Ctrl+C ends the player.");
    LeaveFrameToSystem();
    // Else the first part that takes keys would have them.
    m_video->setFocus();
    // Not earlier: a messenger that waits for its player ends at once. Not later: the first file can take long.
    platform::OnQuitRequest([this] { close(); });
    show();
    StateChanged();
    WatchSight(*this, [this](bool isSeen) { m_player.Transporting().SetSeen(isSeen); });
}

void frmMain::FlashCaption()
{
    platform::FlashWindowOnce(winId());
}

void frmMain::Do(WindowAction action)
{
    switch (action) {
    case WindowAction::Minimize:
        return showMinimized();
    case WindowAction::ToggleMaximized:
        return ToggleMaximized();
    case WindowAction::ContextMenu:
        return ShowMenuOfFocus();
    case WindowAction::OpenMenuStrip:
        return m_strip->OpenFirst();
    case WindowAction::NextArea:
        return m_areas->Step(1);
    case WindowAction::PreviousArea:
        return m_areas->Step(-1);
    case WindowAction::Move:
    case WindowAction::Resize:
        if (!FillsScreen() && !isMaximized())
            platform::GrabByKeys(winId(), action == WindowAction::Resize);
    }
}

void frmMain::ShowMenuOfFocus()
{
    if (!m_list->hasFocus()) {
        const auto& over = m_video->isVisible() ? static_cast<QWidget&>(*m_video) : *this;
        return ShowVideoMenu(*this, m_player, over.mapToGlobal(over.rect().center()), true);
    }
    const auto row = m_list->Layout().RowRect(std::max(m_list->SelectedItem(), 0));
    const auto at = QPoint(row.left + 40, std::clamp(row.bottom, 0, m_list->height()));
    m_menus->Popup("mnuPlayListmenu", m_list->mapToGlobal(at), true);
}

void frmMain::FocusVideo()
{
    m_video->setFocus();
}

void frmMain::PopupMenu(const std::string& menu)
{
    if (menu == "mnuOpenDVD")
        m_menus->PopupAbove(menu, m_controls->At(Button::Dvd).mapToGlobal(QPoint()));
    else
        m_menus->Popup(menu, QCursor::pos());
}

void frmMain::ShowNote(const std::string& text, const std::string& file)
{
    m_notes->Show(text, file);
}

void frmMain::FindInList()
{
    if (!m_list->isVisible())
        m_player.Window().cmdPlayListClick();
    m_list->setFocus(Qt::ShortcutFocusReason);
    m_list->InviteFind();
}

void frmMain::ShowOffer(const std::string& text, std::string_view command)
{
    m_notes->Offer(text, command);
}

void frmMain::StateChanged()
{
    m_controls->Show();
    m_video->ShowAudioLogo(m_player.State().showAudioLogo);
    if (std::exchange(m_dock, m_player.Window().Dock()) != m_player.Window().Dock())
        PlaceParts();
    // Window managers read the state of a shown window only.
    if (isVisible() && std::exchange(m_isTopmost, m_player.Window().IsTopmost()) != m_player.Window().IsTopmost())
        platform::SetTopmost(winId(), m_isTopmost);
    ShowCaption();
    // A messenger reads the settings, too, and is to stay unseen.
    if (isVisible())
        m_menus->ShowTray(m_player.Window().HasTrayIcon());
    m_listHand->Show();
    m_notes->ShowState(FillsScreen() && !m_bar->isVisible());
    m_timers.Follow();
    m_bar->update();
    update();
}

void frmMain::ShowCaption()
{
    const auto caption = ToQString(m_player.Window().Caption());
    // Qt takes a lone "[*]" for its mark of changed documents.
    if (std::exchange(m_caption, caption) != caption)
        setWindowTitle(QString(caption).replace("[*]", "[*][*]"));
}

void frmMain::PlaceParts()
{
    const bool fills = FillsScreen();
    // What is hidden must not keep the keys, nor hand them to the next part.
    if (m_dock == PlaylistDock::Hidden && m_list->hasFocus())
        setFocus();
    // Beside the list the video says it.
    m_list->SetHint(m_dock == PlaylistDock::Whole ? ToQString(Words("Drop files here, or press Ctrl+O")) : QString());
    m_content->Arrange(m_dock, fills, fills ? rect() : ToQt(Layout().Content()));
    if (fills) {
        for (auto* const part : std::initializer_list<QWidget*>{ m_content, m_bar, &m_notes->Box() })
            part->raise();
        m_bar->Place({ 0, height() - BarLayout::kHeight, width(), BarLayout::kHeight });
        m_controls->PlaceOnBar(*m_bar, width());
    } else {
        m_strip->setGeometry(ToQt(Layout().MenuStrip()));
        m_controls->PlaceOnWindow(Layout());
        m_areas->Order();
    }
}

void frmMain::FillsScreenNow(bool fills)
{
    PlaceParts();
    if (fills) {
        m_video->setFocus();
        m_bar->Begin();
    } else {
        m_player.Transporting().Host().FullScreenLeft();
        m_bar->End();
        m_areas->Order();
    }
}

void frmMain::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_skin.Paint(painter, width(), height(), m_controls->ButtonStates());
    if (!isMaximized()) {
        // A hair of light keeps the window's edge on a dark desktop.
        painter.setPen(style::kHairline);
        painter.drawRect(0, 0, width() - 1, height() - 1);
    }
    if (m_areas->IsVideoMarked() && !FillsScreen()) {
        const QRect video(m_video->mapTo(this, QPoint()), m_video->size());
        painter.setPen(QPen(style::kLight, 2));
        painter.drawRect(video.adjusted(-2, -2, 2, 2));
    }
    const auto caption = ToQt(Layout().Caption());
    const auto line = QString(m_caption).replace('\n', ' ');
    painter.setPen(style::kText);
    painter.setFont(font());
    painter.drawText(caption, Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(line, Qt::ElideRight, caption.width()));
}

void frmMain::ShowTip(bool isOnCaption, const QPoint& at)
{
    QToolTip::showText(at, isOnCaption ? "<p>" + m_caption.toHtmlEscaped() + "</p>" : QString(), this);
}

bool frmMain::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* const help = static_cast<QHelpEvent*>(event);
        ShowTip(Layout().Caption().Contains(help->pos().x(), help->pos().y()), help->globalPos());
        return true;
    }
    return WindowFrame::event(event);
}

void frmMain::wheelEvent(QWheelEvent* event)
{
    // What the controls of full screen leave over belongs to the video around them.
    if (FillsScreen())
        m_notes->TurnVolume(event->angleDelta().y());
}

void frmMain::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        ShowMenuOfFocus();
}

bool frmMain::focusNextPrevChild(bool next)
{
    // In full screen the controls are out of sight until they are asked for.
    if (FillsScreen() && !m_bar->isVisible()) {
        m_areas->Step(next ? 1 : -1);
        return true;
    }
    return WindowFrame::focusNextPrevChild(next);
}

void frmMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange)
        m_controls->Show();
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_player.Transporting().ReleaseHeldButtons();
    WindowFrame::changeEvent(event);
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->accept();
    WindowFrame::closeEvent(event);
    m_player.Unload();
}

} // namespace zentaro
