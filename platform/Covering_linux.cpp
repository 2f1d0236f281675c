#include "platform/Covering.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstdlib>
#include <utility>
#include <xcb/xcb.h>

namespace zentaro::platform {

namespace {

/// A connection of its own: each may ask for other events of a window, and Qt's is Qt's.
class XCovering final : public Covering {
public:
    XCovering(NativeWindow window, std::function<void(bool)> changed)
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_changed(std::move(changed))
    {
        if (!IsOpen())
            return;
        const std::uint32_t mask = XCB_EVENT_MASK_VISIBILITY_CHANGE;
        xcb_change_window_attributes(m_connection, static_cast<xcb_window_t>(window), XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
        m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { Read(); });
    }
    ~XCovering() override
    {
        m_notifier.reset();
        xcb_disconnect(m_connection);
    }

    bool IsOpen() const { return xcb_connection_has_error(m_connection) == 0; }

private:
    void Read()
    {
        while (auto* const event = xcb_poll_for_event(m_connection)) {
            if ((event->response_type & 0x7F) == XCB_VISIBILITY_NOTIFY) {
                const auto state = reinterpret_cast<xcb_visibility_notify_event_t*>(event)->state;
                m_changed(state == XCB_VISIBILITY_FULLY_OBSCURED);
            }
            std::free(event);
        }
        // A connection that is gone stays readable.
        if (!IsOpen())
            m_notifier->setEnabled(false);
    }

    xcb_connection_t* m_connection;
    std::function<void(bool)> m_changed;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace

std::unique_ptr<Covering> Covering::Watch(NativeWindow window, std::function<void(bool)> changed)
{
    if (QGuiApplication::platformName() != "xcb")
        return nullptr;
    auto covering = std::make_unique<XCovering>(window, std::move(changed));
    return covering->IsOpen() ? std::move(covering) : nullptr;
}

} // namespace zentaro::platform
