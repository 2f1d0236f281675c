#include "app/ContentPane.h"

#include "app/SplitHandle.h"
#include "playback/VideoFrame.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <utility>

namespace zentaro {

ContentPane::ContentPane(VideoFrame& video, QWidget& list, QWidget* parent)
    : QSplitter(parent)
    , m_video(video)
    , m_list(list)
{
    setChildrenCollapsible(false);
    setHandleWidth(PaneShare::kSplitter);
    for (auto* const pane : std::initializer_list<QWidget*>{ &m_video, &m_list })
        addWidget(pane);
    m_video.installEventFilter(this);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
}

QSplitterHandle* ContentPane::createHandle()
{
    return new SplitHandle(orientation(), this);
}

bool ContentPane::IsInReach(const QMouseEvent& event) const
{
    const auto* const splitter = handle(1);
    if (splitter == nullptr || !splitter->isVisible())
        return false;
    const bool isStacked = orientation() == Qt::Vertical;
    const int before = indexOf(&m_video) == 0 ? PaneShare::kReach : 0;
    const int behind = PaneShare::kReach - before;
    const auto reach =
        isStacked ? splitter->rect().adjusted(0, -before, 0, behind) : splitter->rect().adjusted(-before, 0, behind, 0);
    return reach.contains(splitter->mapFromGlobal(event.globalPosition().toPoint()));
}

bool ContentPane::Grip(const QMouseEvent& event)
{
    auto* const splitter = handle(1);
    const auto at = splitter->mapFromGlobal(event.globalPosition());
    QMouseEvent passed(event.type(), at, event.globalPosition(), event.button(), event.buttons(), event.modifiers());
    return QCoreApplication::sendEvent(splitter, &passed);
}

bool ContentPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_video)
        return QSplitter::eventFilter(watched, event);
    auto* const mouse = static_cast<QMouseEvent*>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_isGripped = mouse->button() == Qt::LeftButton && IsInReach(*mouse);
        return m_isGripped && Grip(*mouse);
    case QEvent::MouseMove:
        if (m_isGripped)
            return Grip(*mouse);
        m_video.ShowPointerAs(IsInReach(*mouse)               ? handle(1)->cursor().shape()
                : m_video.cursor().shape() == Qt::BlankCursor ? Qt::BlankCursor
                                                              : Qt::ArrowCursor);
        return false;
    case QEvent::MouseButtonRelease:
        return std::exchange(m_isGripped, false) && Grip(*mouse);
    default:
        return false;
    }
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
    for (auto* const pane : std::initializer_list<QWidget*>{ &m_video, &m_list })
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
