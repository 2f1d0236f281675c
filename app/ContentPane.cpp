#include "app/ContentPane.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr int kSplitterWidth = 6;   // px
constexpr int kPaneMinimum = 96;    // px
constexpr double kListShare = 0.45; // of the content
constexpr int kListRoom = 280;      // px, at the most

} // namespace

ContentPane::ContentPane(QWidget& video, QWidget& list, QWidget* parent)
    : QSplitter(parent)
    , m_video(video)
    , m_list(list)
{
    setChildrenCollapsible(false);
    setHandleWidth(kSplitterWidth);
    for (auto* const pane : { &m_video, &m_list }) {
        pane->setMinimumSize(kPaneMinimum, kPaneMinimum);
        addWidget(pane);
    }
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
}

void ContentPane::Arrange(PlaylistDock dock, bool isFilled)
{
    // Hiding keeps the place, so that the splitter is where it was when the list comes back.
    if (dock < PlaylistDock::Whole && std::exchange(m_splitFor, dock) != dock) {
        const bool isStacked = dock == PlaylistDock::Top || dock == PlaylistDock::Bottom;
        const bool isListFirst = dock == PlaylistDock::Left || dock == PlaylistDock::Top;
        setOrientation(isStacked ? Qt::Vertical : Qt::Horizontal);
        insertWidget(isListFirst ? 0 : 1, &m_list);
        setStretchFactor(indexOf(&m_video), 1);
        setStretchFactor(indexOf(&m_list), 0);
        m_isSplitByHand = false;
    }
    m_list.setVisible(!isFilled && dock != PlaylistDock::Hidden);
    m_video.setVisible(isFilled || dock != PlaylistDock::Whole);
    m_isShared = !isFilled && dock < PlaylistDock::Whole;
    Share();
}

void ContentPane::SetPlace(const QRect& place)
{
    setGeometry(place);
    Share();
}

void ContentPane::Share()
{
    if (!m_isShared || m_isSplitByHand)
        return;
    const auto room = orientation() == Qt::Vertical ? height() : width();
    const auto listRoom = std::min(static_cast<int>(room * kListShare), kListRoom);
    const bool isListFirst = indexOf(&m_list) == 0;
    setSizes(isListFirst ? QList{ listRoom, room - listRoom } : QList{ room - listRoom, listRoom });
}

} // namespace zentaro
