#include "app/VideoHand.h"

#include "app/Commands.h"
#include "app/Player.h"
#include "app/VideoMenu.h"
#include "app/WindowNotes.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/FullScreenBar.h"

#include <QContextMenuEvent>
#include <QMimeData>

namespace zentaro {

VideoHand::VideoHand(Player& player, VideoFrame& video, FullScreenBar& bar, WindowNotes& notes, QWidget& window)
    : QObject(&window)
    , m_player(player)
    , m_video(video)
    , m_bar(bar)
    , m_notes(notes)
    , m_window(window)
{
    for (auto* const taker : std::initializer_list<QWidget*>{ &video, &window }) {
        taker->setAcceptDrops(true);
        taker->installEventFilter(this);
    }
    connect(&m_video, &VideoFrame::IdleMarkClicked, this, [this] { RunCommand(m_player, "OpenFile"); });
}

bool VideoHand::eventFilter(QObject* watched, QEvent* event)
{
    return (watched == &m_video && Pointer(*event)) || Drop(*event);
}

bool VideoHand::Pointer(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent&>(event).button() == Qt::LeftButton)
            RunCommand(m_player, "ToggleFullScreen");
        return true;
    case QEvent::ContextMenu:
        // A key asks for the menu of what has the focus, which the window knows.
        if (static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard)
            return false;
        ShowVideoMenu(m_window, m_player, static_cast<QContextMenuEvent&>(event).globalPos(), false);
        return true;
    case QEvent::Enter:
        m_window.unsetCursor();
        return false;
    case QEvent::Move:
    case QEvent::Resize:
        m_notes.Place();
        return false;
    case QEvent::MouseMove:
        m_bar.PointerSeen(static_cast<QMouseEvent&>(event).globalPosition().toPoint());
        return false;
    case QEvent::Wheel:
        m_notes.TurnVolume(static_cast<QWheelEvent&>(event).angleDelta().y());
        return true;
    default:
        return false;
    }
}

bool VideoHand::Drop(QEvent& event)
{
    switch (event.type()) {
    case QEvent::DragEnter: {
        auto& drag = static_cast<QDragEnterEvent&>(event);
        if (drag.mimeData()->hasUrls()) {
            AcceptAsCopy(drag);
            m_notes.ShowDropTarget(true);
        }
        return true;
    }
    case QEvent::DragLeave:
        m_notes.ShowDropTarget(false);
        return true;
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(event);
        m_notes.ShowDropTarget(false);
        AcceptAsCopy(drop);
        m_player.Files().DropOnVideo(DroppedPaths(*drop.mimeData()));
        return true;
    }
    default:
        return false;
    }
}

} // namespace zentaro
