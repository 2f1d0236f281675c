#pragma once

#include "app/PlayerScreen.h"
#include "shell/Skin.h"
#include "shell/WindowLayout.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>

class QLabel;
class QMimeData;
class QSplitter;
class QSystemTrayIcon;

namespace zentaro {

class FancyList;
class FullScreenBar;
class NoteBox;
class Player;
class SeekTrack;
class MenuStrip;
class SkinButton;
class VideoFrame;
class VolumeKnob;
class frmMenu;

/// The main window: frameless, moved and resized by the system on the user's behalf. It shows the player's state and
/// forwards what the user does; it decides nothing.
class frmMain : public QWidget, public PlayerScreen {
    Q_OBJECT

public:
    /// `programFolder`: with a trailing separator.
    explicit frmMain(const QString& programFolder);

    /// Called at every tick of a shown window.
    std::function<void()> onPositionShown = [] {};

    VideoFrame& Video() { return *m_video; }
    Skin& Pictures() { return m_skin; }
    /// The dialogs are made by whoever made the window.
    std::function<void()> onShowOptions;
    std::function<void()> onShowAbout;
    std::function<void()> onShowHelp;
    /// From now on the window works for this player.
    void Serve(Player& player);

    ScreenExtent Extent() const override;
    bool IsMaximized() const override { return m_fullScreen ? m_wasMaximized : isMaximized(); }
    double WindowLeft() const override;
    double WindowTop() const override;
    void ShowWindow() override;
    void CloseWindow() override { close(); }
    void SetWindowSize(int width, int height) override;
    void SetWindowPosition(int left, int top) override;
    void SetTopmost(bool topmost) override;
    void SetFullScreen(bool fullScreen) override;
    bool IsFullScreen() const override { return m_fullScreen; }
    void ShowCaption(const std::string& text) override;
    void FlashCaption() override;
    void SetPlaylistPosition(PlaylistDock position) override;
    bool IsPlaylistVisible() const override;
    void ShowAddProgress(const AddProgress& progress) override;
    void ShowPosition(const PositionTick& tick, double length) override;
    void ShowTimeText(const std::string& text) override;
    void ShowRate(const std::string& text) override;
    void ShowIdle() override;
    void StateChanged() override;
    void FocusVideo() override;
    void ShowNotice(const Notice& notice) override;
    void ShowNote(const std::string& text) override;
    void ShowPictureNote(const std::string& text, const std::string& file) override;
    std::vector<std::string> AskForFiles(const std::string& title, const std::string& filter) override;
    void ShowOptions() override;
    void ShowAbout() override;
    void ShowHelp() override;
    void SetTrayShown(bool shown) override;
    void PopupMenu(const std::string& menu) override;
    std::string AskForSubtitles() override;
    void PumpMessages(int times) override;
    void PumpFor(std::chrono::milliseconds time) override;
    void PumpUntil(const std::function<bool()>& done) override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    WindowLayout Layout() const;
    /// Buttons that have nothing to do yet show as disabled.
    SkinButtons ButtonStates() const;
    void MakeButton(Button button, const QString& name, const QString& shortcut, void (Player::*command)());
    void MakeTitleButton(Button button, const QString& name, const QString& shortcut, void (frmMain::*command)());
    void MakeHeldButton(Button button, const QString& name, void (Player::*press)(), void (Player::*release)());
    void MakeSliders();
    void MakeTimers();
    void MakeList();
    /// The bar of full screen and the note, which lie over the video.
    void MakeCovers();
    /// In the order of their places.
    void OrderFocus();
    /// The menu strip and the keys of the commands and of PlayerKeys.
    void MakeMenus();
    /// Whether what has the focus uses the key itself.
    bool FocusUsesKey(const QKeyEvent& event) const;
    /// The list has no keys of its own: the window moves its selection. False for other keys.
    bool MoveSelection(const QKeyEvent& event);
    /// Made on first use.
    frmMenu& ClassicMenus();
    void ToggleMaximized();
    void PlaceChildren();
    void ShareContent();
    void PlaceControls();
    void TurnVolume(int eighths);
    QString VolumeText() const;
    /// Keys change volume and rate in full screen, too, where nothing else shows them.
    void NoteChanges();
    /// The video, else the list in its place.
    QRect NoteArea() const;
    /// All of the screen that shows most of the window.
    QRect FullScreenArea() const;
    /// What is to be done however full screen was left.
    void FullScreenLeft();
    /// Notes the geometry unless the window is maximised, minimised or full screen.
    void KeepNormalGeometry();
    /// Later: the window system tells a new size before it tells the state that it belongs to.
    void KeepNormalGeometrySoon() { m_geometrySettled.start(); }
    void UseCursorFor(const QPoint& at);
    /// Hands a drag to the system: a resize at an edge, a move of the title bar.
    void StartDrag();

    QString m_programFolder;
    Skin m_skin;
    Player* m_player = nullptr;
    QSplitter* m_content;
    VideoFrame* m_video;
    FancyList* m_list = nullptr; // FancyList1
    QLabel* m_time;
    QLabel* m_rate;
    QLabel* m_volumeNumber;
    SeekTrack* m_seek = nullptr;
    VolumeKnob* m_volume = nullptr;
    FullScreenBar* m_bar = nullptr;
    NoteBox* m_note = nullptr;
    MenuStrip* m_strip = nullptr;
    frmMenu* m_menus = nullptr;
    QPointer<QSystemTrayIcon> m_tray;
    QTimer m_tmrMovie;
    QTimer m_tmrRewind;
    QTimer m_tmrCheckDVD;
    QTimer m_progressDelay;
    QTimer m_geometrySettled;
    AddProgress m_progress;
    std::map<Button, SkinButton*> m_buttons;
    QString m_caption;
    QString m_shownVolume;
    QString m_shownRate;
    QRect m_normal;                   // geometry while neither maximised nor full screen, in logical pixels
    std::optional<QPoint> m_dragFrom; // where the left button went down on something that can be dragged
    PlaylistDock m_dock = PlaylistDock::Left;
    PlaylistDock m_splitFor = PlaylistDock::Hidden; // the docking that the splitter stands for
    bool m_isSplitByHand = false;                   // until then the list has its usual share
    bool m_fullScreen = false;
    bool m_wasMaximized = false; // before full screen
    bool m_topmost = false;
    bool m_hasTrayIcon = false; // as the settings want it
    bool m_placed = false;
};

} // namespace zentaro
