#pragma once

#include "playlist/AddQueue.h"
#include "playlist/FancyListLayout.h"
#include "playlist/FancyListPainter.h"
#include "playlist/ListCard.h"
#include "playlist/ListFoot.h"
#include "playlist/RowDrag.h"
#include "playlist/RowMarks.h"
#include "playlist/ScrollGrip.h"
#include "playlist/ThumbCache.h"
#include "playlist/WheelScroll.h"

#include <QMimeData>
#include <QWidget>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

class AddProgressLine;

/// The local paths of dropped or pasted files, in order; bytes that are no UTF-8 survive.
std::vector<std::string> DroppedPaths(const QMimeData& data);

/// Accepts a drag or drop of files whatever the source proposes: after a move it would delete them.
void AcceptAsCopy(QDropEvent& event);

/// The thumbnail list on the screen: shows a FancyListItems and raises events; it decides nothing. A left press has
/// set the selection when MouseDown, and after it Click or DblClick, are raised. Lengths and positions are logical
/// pixels of the list. The row being played, when it gets its mark, and a row that the keys come to scroll into sight.
class FancyList : public QWidget, private FancyListObserver {
    Q_OBJECT
public:
    /// The items must outlive the list, and have no other one.
    explicit FancyList(FancyListItems& items, QWidget* parent = nullptr);
    ~FancyList() override;

    const FancyListItems& Items() const { return m_items; }
    const FancyListLayout& Layout() const { return m_layout; }

    // The rules of these are told by FancyListItems...
    int Count() const { return m_items.Count(); }
    int SelectedItem() const { return m_items.SelectedItem(); }
    void SetSelectedItem(int index) { m_items.SetSelectedItem(index); }
    std::string SelectedText() const { return m_items.SelectedText(); }
    bool Refresh() const { return m_items.Refresh(); }
    void SetRefresh(bool on) { m_items.SetRefresh(on); }
    void AddItem(std::string text, Picture picture) { m_items.AddItem(std::move(text), std::move(picture)); }
    void Clear() { m_items.Clear(); }
    void RemoveItem(int index) { m_items.RemoveItem(index); }
    // ... and of these by FancyListLayout.
    int ItemHeight() const { return m_layout.ItemHeight(); }
    void SetItemHeight(int height) { m_layout.SetItemHeight(height); }
    int ImageHeight() const { return m_layout.ImageHeight(); }
    void SetImageHeight(int height) { m_layout.SetImageHeight(height); }
    int ImageWidth() const { return m_layout.ImageWidth(); }
    void SetImageWidth(int width) { m_layout.SetImageWidth(width); }
    int Padding() const { return m_layout.Padding(); }
    void SetPadding(int padding) { m_layout.SetPadding(padding); }
    bool NoThumbBlack() const { return m_layout.NoThumbBlack(); }
    void SetNoThumbBlack(bool on) { m_layout.SetNoThumbBlack(on); }
    bool Thumbnails() const { return m_layout.Thumbnails(); }
    void SetThumbnails(bool on) { m_layout.SetThumbnails(on); }
    void Scroll(int delta) { m_layout.Scroll(delta); }

    /// The font of the titles.
    QFont Font() const { return m_look.font; }
    /// Draws a picture fitted into a box on any surface.
    void RenderThumb(QPainter& painter, const Picture& picture, int x, int y, int width, int height);
    /// Shows how far a batch is in a line at the bottom, which the rows make room for; nothing hides it.
    void ShowAddProgress(const AddProgress& progress);

    /// The line below the rows; empty for none.
    void SetFoot(const QString& text);
    /// Shows only these rows and marks in them what was looked for, which the line below the rows tells; empty words
    /// end it.
    void SetFind(const std::string& words, std::vector<int> rows);
    /// Says that typing finds.
    void InviteFind();
    bool IsFinding() const { return !m_look.find.empty(); }
    /// A key has moved the selection; with Shift the rows on its way are marked.
    void SelectionMovedByKey(bool shift) { m_marks.SelectionMoved(shift); }

    /// Whether the row being played waits.
    void SetPaused(bool isPaused);
    /// What is told of a row where the pointer rests, below its title; lines.
    std::function<QString(int row)> describe;
    /// A picture from the film of a row stands in the place of its thumbnail; a row that is none ends it. `share`:
    /// where in the film, 0 to 1.
    void SetScrub(int row, const Picture& picture, double share);

    /// What the list offers in place of its entries while it has none; empty for nothing.
    void SetCard(const QString& text);
    /// Enter takes the offer.
    bool HasCard() const { return m_card->isVisibleTo(this); }

    /// A line that stands in the list while it has no entries; empty for none.
    void SetHint(const QString& hint);

    QSize sizeHint() const override;

signals:
    /// The chosen rows were dragged to stand before the row `to`.
    void RowsDragged(int to);
    void CardTaken();
    /// The pointer is on a row's thumbnail, this share of it from its left edge.
    void ThumbPointed(int row, double share);
    /// It is on none any more, or rows have moved.
    void ThumbLeft();
    /// The menu key was pressed; `at` is a place on the screen.
    void MenuAsked(const QPoint& at);
    /// Rows were added, taken out or arranged anew while only some are shown.
    void FindOutdated();
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
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void RepaintRequested() override { update(); }
    void ListChanged() override;
    void PlaceSurface();
    QString TipAt(const QPoint& at) const;
    void PointAtThumb(const QPoint& at);
    bool HoldScrollBar(const QPoint& at);
    void Press(const QMouseEvent& event);
    void SetHover(int row);
    void ShowFoot();
    int LineHeight() const;
    void SetScrollBarLook(ScrollBarLook look);

    FancyListItems& m_items;
    FancyListLayout m_layout;
    FancyListLook m_look;
    ThumbCache m_thumbs;
    RowMarks m_marks;
    RowDrag m_drag;
    WheelScroll m_wheel;
    ScrollGrip m_grip;
    AddProgressLine* m_progressLine;
    ListFoot* m_foot;
    ListCard* m_card;
    QString m_cardText;
    QString m_footText;
    int m_toldSelection = FancyListItems::kNone;
    int m_toldCount = 0;
    bool m_clickPending = false;
};

} // namespace zentaro
