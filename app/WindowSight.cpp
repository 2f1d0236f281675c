#include "app/WindowSight.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace zentaro {

WindowSight::WindowSight(QWidget& window, std::function<void(bool)> changed)
    : QObject(&window)
    , m_window(window)
    , m_changed(std::move(changed))
    , m_covering(platform::Covering::Watch(window.winId(), [this](bool isCovered) {
        m_isCovered = isCovered;
        Look();
    }))
{
    window.installEventFilter(this);
    window.windowHandle()->installEventFilter(this);
}

bool WindowSight::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::Expose || type == QEvent::WindowStateChange || type == QEvent::Show || type == QEvent::Hide)
        QMetaObject::invokeMethod(this, &WindowSight::Look, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void WindowSight::Look()
{
    const auto* const handle = m_window.windowHandle();
    const bool isSeen =
        m_window.isVisible() && !m_window.isMinimized() && !m_isCovered && handle != nullptr && handle->isExposed();
    if (std::exchange(m_isSeen, isSeen) != isSeen)
        m_changed(isSeen);
}

} // namespace zentaro
