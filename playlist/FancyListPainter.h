#pragma once

#include "playlist/FancyListLayout.h"
#include "playlist/ThumbCache.h"

#include <QFont>
#include <QPalette>

#include <string>

class QPainter;

namespace zentaro {

/// The one warm light: progress, focus, the mark of the entry being played.
inline QRgb kWarmLight = 0xFFFFB020;

enum class ScrollBarLook { Normal, Over, Press };

/// How a paint looks besides items and layout. Colours are the palette's Window, ButtonText, Button (separators),
/// Highlight and HighlightedText.
struct FancyListLook {
    QPalette palette;
    QFont font;
    QFont detailFont;
    ScrollBarLook scrollBar = ScrollBarLook::Normal;
    bool focusFrame = false;
    int hoverRow = FancyListItems::kNone;
    int dropLine = -1;                    ///< where dragged rows would go, in pixels; below 0 for nowhere
    std::string find;                     ///< the words whose parts of a title are marked
    QString hint;                         ///< stands in a list without entries
    bool isPaused = false;                ///< the row being played waits
    int scrubRow = FancyListItems::kNone; ///< the pointer goes through its film...
    Picture scrubPicture;                 ///< ... of which this is seen now; empty while nothing is known
    double scrubShare = 0;                ///< ... at this place, 0 to 1
};

/// Width of the scroll bar in pixels.
inline constexpr int kScrollBarWidth = 8;

/// The list's two fonts: weight 400, of the given height in pixels from the highest to the lowest point of a line.
QFont FancyListFont(int height);

/// Draws the rows where the layout has them.
class FancyListPainter {
public:
    FancyListPainter(QPainter& painter, const FancyListLayout& layout, const FancyListLook& look, ThumbCache& thumbs);

    /// The whole surface.
    void Paint();
    /// A picture fitted into a box; the box is filled black first unless `NoThumbBlack` is set.
    void RenderThumb(const Picture& picture, const ListRect& box);

private:
    void PaintHint();
    void PaintRow(int row);
    void PaintText(const FancyListItem& item, const ListRect& rect, const QColor& color, const QColor& dimmed);
    void PaintFound(const QString& line, const ListRect& rect, int top);
    void PaintScrub(const ListRect& box);
    void PaintSeen(double share, const ListRect& box);
    void PaintPlayingMark(int row);
    void PaintScrollBar();
    void PaintFocusFrame();

    QPainter& m_painter;
    const FancyListLayout& m_layout;
    const FancyListLook& m_look;
    ThumbCache& m_thumbs;
};

} // namespace zentaro
