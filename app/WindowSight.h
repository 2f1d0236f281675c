#pragma once

#include "platform/Covering.h"

#include <QObject>

#include <functional>
#include <memory>

class QWidget;

namespace zentaro {

/// Tells whether anything of a window can be seen: it is shown, not minimised, on this desktop and not covered, as far
/// as the system says so.
class WindowSight : public QObject {
public:
    /// For a shown window. `changed` is called with each change; at first the window counts as seen.
    WindowSight(QWidget& window, std::function<void(bool isSeen)> changed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Look();

    QWidget& m_window;
    std::function<void(bool)> m_changed;
    std::unique_ptr<platform::Covering> m_covering;
    bool m_isCovered = false;
    bool m_isSeen = true;
};

/// Begins with that once the start of the (shown) window is over.
void WatchSight(QWidget& window, std::function<void(bool isSeen)> changed);

} // namespace zentaro
