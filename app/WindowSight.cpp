#include "app/WindowSight.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <chrono>
#include <utility>

namespace zentaro {

namespace {

constexpr auto kStart = std::chrono::seconds(2); // which has other things to do

}

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

void WatchSight(QWidget& window, std::function<void(bool)> changed)
{
    QTimer::singleShot(kStart, &window, [&window, changed = std::move(changed)] { new WindowSight(window, changed); });
}

} // namespace zentaro
