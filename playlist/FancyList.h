#pragma once

#include "playlist/AddQueue.h"
#include "playlist/FancyListPainter.h"
#include "playlist/FancyListState.h"
#include "playlist/ThumbCache.h"

#include <QMimeData>
#include <QWidget>

#include <string>
#include <vector>

namespace zentaro {

class AddProgressLine;

/// The local paths of dropped or pasted files, in order; bytes that are no UTF-8 survive.
std::vector<std::string> DroppedPaths(const QMimeData& data);

/// Accepts a drag or drop of files whatever the source proposes: after a move it would delete them.
void AcceptAsCopy(QDropEvent& event);

/// The thumbnail list on the screen: paints a FancyListState and raises events; it decides nothing. A left press has
/// set the selection when MouseDown, and after it Click or DblClick, are raised. Positions are pixels of the list.
class FancyList : public QWidget, private FancyListObserver {
    Q_OBJECT
public:
    /// The state must outlive the list.
    explicit FancyList(FancyListState& state, QWidget* parent = nullptr);
    ~FancyList() override;

    FancyListState& State() { return m_state; }
    const FancyListState& State() const { return m_state; }
    /// The font of the titles.
    QFont Font() const { return m_look.font; }
    /// Draws a picture fitted into a box on any surface.
    void RenderThumb(QPainter& painter, const Picture& picture, int x, int y, int width, int height);
    /// Shows how far a batch is in a line at the bottom, which the rows make room for; nothing hides it.
    void ShowAddProgress(const AddProgress& progress);

    QSize sizeHint() const override;

signals:
    void Click();
    void DblClick();
    void OLEDragDrop(const QMimeData* data, Qt::DropAction effect, Qt::MouseButtons button, Qt::KeyboardModifiers shift,
        int x, int y);
    void KeyUp(int keyCode, Qt::KeyboardModifiers shift);
    void MouseMove(Qt::MouseButtons button, Qt::KeyboardModifiers shift, int x, int y);
    void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
    /// The user wants no more files added.
    void CancelAdding();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void RepaintRequested() override { update(); }
    void ListChanged() override;
    void PlaceSurface();
    QString CutTitleAt(const QPoint& at) const;
    bool IsOnScrollBar(const QPoint& at) const;
    bool GrabScrollBar(const QPoint& at);
    void Press(const QMouseEvent& event);
    void SetScrollBarLook(ScrollBarLook look);

    FancyListState& m_state;
    FancyListLook m_look;
    ThumbCache m_thumbs;
    AddProgressLine* m_progressLine;
    int m_thumbGrip = -1; // where the scroll bar's thumb is held, in pixels below its top
    int m_wheelRest = 0;  // fine wheel deltas that do not move a pixel yet
    int m_toldSelection = FancyListState::kNone;
    int m_toldCount = 0;
    bool m_clickPending = false;
};

} // namespace zentaro
