#pragma once

#include "app/PlayerScreen.h"
#include "shell/WindowLayout.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QLabel;

namespace zentaro {

class Player;
class VideoFrame;

/// The main window: frameless, moved and resized by the system on the user's behalf. It shows the player's state and
/// forwards what the user does; it decides nothing.
class frmMain : public QWidget, public PlayerScreen {
    Q_OBJECT

public:
    /// `programFolder`: with a trailing separator.
    explicit frmMain(const QString& programFolder);

    VideoFrame& Video() { return *m_video; }
    /// From now on the window works for this player.
    void Serve(Player& player);

    ScreenExtent Extent() const override;
    bool IsMaximized() const override { return m_fullScreen ? m_wasMaximized : isMaximized(); }
    double WindowLeft() const override;
    double WindowTop() const override;
    void ShowWindow() override;
    void SetWindowSize(int width, int height) override;
    void SetWindowPosition(int left, int top) override;
    void SetTopmost(bool topmost) override;
    void SetFullScreen(bool fullScreen) override;
    void ShowCaption(const std::string& text) override;
    void FlashCaption() override;
    void ShowIdle() override;
    void ShowMessage(const UserMessage& message) override;
    void PumpMessages(int times) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    enum class TitleButton { None, Minimize, Maximize, Close };

    WindowLayout Layout() const;
    void PlaceChildren();
    void KeepNormalGeometry();
    void OnMovieTimer();
    TitleButton TitleButtonAt(const QPoint& at) const;
    void Press(TitleButton button);
    void UseCursorFor(const QPoint& at);
    /// Hands a drag to the system: a resize at an edge, a move of the title bar.
    void StartDrag();

    Player* m_player = nullptr;
    VideoFrame* m_video;
    QLabel* m_time;
    QTimer m_tmrMovie;
    QString m_caption;
    QRect m_normal; // geometry while neither maximised nor full screen, in logical pixels
    TitleButton m_hovered = TitleButton::None;
    TitleButton m_pressed = TitleButton::None;
    std::optional<QPoint> m_dragFrom; // where the left button went down on something that can be dragged
    bool m_fullScreen = false;
    bool m_wasMaximized = false; // before full screen
    bool m_topmost = false;
    bool m_placed = false;
};

} // namespace zentaro
