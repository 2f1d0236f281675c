#include "app/ContentPane.h"

#include "app/OwnSettings.h"
#include "app/SplitHandle.h"
#include "playback/VideoFrame.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr int kWhole = 1000; // shares are kept in parts of it

std::string KeyOfShare(PlaylistDock dock)
{
    return "list.share." + std::to_string(static_cast<int>(dock));
}

} // namespace

ContentPane::ContentPane(VideoFrame& video, QWidget& list, OwnSettings& settings, QWidget* parent)
    : QSplitter(parent)
    , m_video(video)
    , m_list(list)
    , m_settings(settings)
{
    setChildrenCollapsible(false);
    setHandleWidth(PaneShare::kSplitter);
    for (auto* const pane : std::initializer_list<QWidget*>{ &m_video, &m_list })
        addWidget(pane);
    m_video.installEventFilter(this);
    connect(this, &QSplitter::splitterMoved, this, &ContentPane::SplitterMoved);
    m_saveDelay.setSingleShot(true);
    m_saveDelay.setInterval(500ms);
    connect(&m_saveDelay, &QTimer::timeout, this, [this] { IgnoreFailure(m_settings.Save()); });
}

void ContentPane::SplitterMoved()
{
    m_isSplitByHand = true;
    const int size = orientation() == Qt::Vertical ? m_list.height() : m_list.width();
    m_settings.Set(KeyOfShare(m_splitFor), std::to_string(size * kWhole / std::max(Room(), 1)));
    m_saveDelay.start();
}

int ContentPane::Room() const
{
    return orientation() == Qt::Vertical ? height() : width();
}

int ContentPane::ListShare(const PaneShare& share) const
{
    const int kept = m_settings.Number(KeyOfShare(m_splitFor), 0, 1, kWhole - 1);
    const int most = Room() - PaneShare::kSplitter - share.minimum;
    return kept > 0 && most >= share.minimum ? std::clamp(Room() * kept / kWhole, share.minimum, most) : share.list;
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
    const auto type = event->type();
    const bool isMouse =
        type == QEvent::MouseButtonPress || type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (watched == &m_video && isMouse)
        return MouseOverVideo(static_cast<QMouseEvent&>(*event));
    return QSplitter::eventFilter(watched, event);
}

bool ContentPane::MouseOverVideo(const QMouseEvent& mouse)
{
    switch (mouse.type()) {
    case QEvent::MouseButtonPress:
        m_isGripped = mouse.button() == Qt::LeftButton && IsInReach(mouse);
        return m_isGripped && Grip(mouse);
    case QEvent::MouseMove:
        if (m_isGripped)
            return Grip(mouse);
        m_video.ShowPointerAs(IsInReach(mouse)                ? handle(1)->cursor().shape()
                : m_video.cursor().shape() == Qt::BlankCursor ? Qt::BlankCursor
                                                              : Qt::ArrowCursor);
        return false;
    default:
        return std::exchange(m_isGripped, false) && Grip(mouse);
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
    const int room = isStacked ? place.height() : place.width();
    const auto share = isShared ? SharePanes(room) : PaneShare();
    // Panes that need more than there is would stick out over the controls.
    for (auto* const pane : std::initializer_list<QWidget*>{ &m_video, &m_list })
        isStacked ? pane->setMinimumSize(0, share.minimum) : pane->setMinimumSize(share.minimum, 0);
    m_list.setVisible(!isFilled && dock != PlaylistDock::Hidden && (!isShared || share.list > 0));
    m_video.setVisible(isFilled || dock != PlaylistDock::Whole);
    setGeometry(place);
    // The list has its usual share, or the one that was chosen before, until the splitter is moved.
    if (!isShared || m_isSplitByHand)
        return;
    const bool isListFirst = indexOf(&m_list) == 0;
    const int list = ListShare(share);
    setSizes(isListFirst ? QList{ list, room - list } : QList{ room - list, list });
}

} // namespace zentaro
