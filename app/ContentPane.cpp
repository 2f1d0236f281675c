#include "app/ContentPane.h"

#include "app/SplitHandle.h"

#include <utility>

namespace zentaro {

ContentPane::ContentPane(QWidget& video, QWidget& list, QWidget* parent)
    : QSplitter(parent)
    , m_video(video)
    , m_list(list)
{
    setChildrenCollapsible(false);
    setHandleWidth(PaneShare::kSplitter);
    for (auto* const pane : { &m_video, &m_list })
        addWidget(pane);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
}

QSplitterHandle* ContentPane::createHandle()
{
    return new SplitHandle(orientation(), this);
}

QWidget* ContentPane::OrderFocus()
{
    for (int i = 0; i + 1 < count(); ++i) {
        setTabOrder(widget(i), handle(i + 1));
        setTabOrder(handle(i + 1), widget(i + 1));
    }
    return widget(count() - 1);
}

void ContentPane::Arrange(PlaylistDock dock, bool isFilled, const QRect& place)
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
    const bool isShared = !isFilled && dock < PlaylistDock::Whole;
    const bool isStacked = orientation() == Qt::Vertical;
    const auto room = isStacked ? place.height() : place.width();
    const auto share = isShared ? SharePanes(room) : PaneShare();
    // Panes that need more than there is would stick out over the controls.
    for (auto* const pane : { &m_video, &m_list })
        isStacked ? pane->setMinimumSize(0, share.minimum) : pane->setMinimumSize(share.minimum, 0);
    m_list.setVisible(!isFilled && dock != PlaylistDock::Hidden && (!isShared || share.list > 0));
    m_video.setVisible(isFilled || dock != PlaylistDock::Whole);
    setGeometry(place);
    // The list has its usual share until the splitter is moved.
    if (!isShared || m_isSplitByHand)
        return;
    const bool isListFirst = indexOf(&m_list) == 0;
    setSizes(isListFirst ? QList{ share.list, room - share.list } : QList{ room - share.list, share.list });
}

} // namespace zentaro
