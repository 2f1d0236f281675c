#pragma once

#include "desktop/FrameRules.h"
#include "shell/WindowLayout.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace zentaro {

/// A window without a frame of the system: moved by its title bar and resized at its edges by the system on the user's
/// behalf, maximised, filled over the screen and brought back.
class WindowFrame : public QWidget {
    Q_OBJECT

public:
    WindowFrame();

    WindowLayout Layout() const { return { width(), height() }; }
    bool FillsScreen() const { return m_fullScreen; }
    /// Also while it fills the screen and was maximised before.
    bool CountsAsMaximized() const { return m_fullScreen ? m_wasMaximized : isMaximized(); }
    /// Its place while neither maximised nor full screen, in logical pixels.
    const QRect& NormalGeometry() const { return m_normal; }

    /// Logical pixels; nothing while it is maximised or fills the screen. The screen limits a shown window; before that
    /// PlaceFirst() does, which knows the screen of the place.
    void TakeSize(int width, int height);
    /// Takes the size in which that part of the window has so many pixels of the screen.
    void FitTo(const QWidget& part, int width, int height);
    void TakePlace(int left, int top);
    /// Before it is first shown: where it was put, else in the middle of the screen, and all of it on one screen.
    void PlaceFirst();
    void FillScreen(bool fill);
    void ToggleMaximized();

protected:
    /// Before it is first shown: leaves edges and caption to a system that takes hold of them itself.
    void LeaveFrameToSystem();

signals:
    /// It fills the screen from now on, or no longer, by whoever's hand.
    void FillsScreenChanged(bool fills);
    /// Its usual size, in logical pixels, was changed while it was neither maximised, minimised nor full screen. What
    /// it takes on by itself at the start is no change.
    void NormalSizeChanged(int width, int height);
    /// Its parts are to be placed anew.
    void Resized();
    /// The pointer rests on the caption while that belongs to the system.
    void PointerRestsOnCaption();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// All of the screen that shows most of the window.
    QRect FullScreenArea() const;
    void KeepNormalGeometry();
    /// On a screen of another scale a window system may leave a window its pixels, and so another size for its user.
    /// False when it has.
    bool HasUsualSizeForScale();
    /// By a point in physical pixels.
    desktop::FramePart PartAt(int x, int y) const;
    void UseCursorFor(const QPoint& at);
    /// Hands a drag to the system: a resize at an edge, a move of the title bar.
    void StartDrag();

    QTimer m_geometrySettled;
    QRect m_normal;
    double m_scale = 0;               // of the screen where that was
    QSize m_wanted;                   // where a screen had no room for it, and
    QSize m_given;                    // what it got there
    std::optional<QPoint> m_dragFrom; // where the left button went down on something that can be dragged
    bool m_fullScreen = false;
    bool m_wasMaximized = false; // before full screen
    bool m_isPlaced = false;
    bool m_isStarting = true; // until its first size on the screen has settled
};

} // namespace zentaro
