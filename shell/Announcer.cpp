#include "shell/Announcer.h"

#include <QAccessibleWidget>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kShown = 500ms;
constexpr auto kKept = 10s; // who listens may ask about it later

/// What the accessibility buses have for a short message is a notification that comes into sight. This one never does,
/// but says so. Each text has one of its own: who listens may remember what the last one said.
class Announcement : public QWidget {
    Q_OBJECT

public:
    Announcement(QWidget* window, const QString& text)
        : QWidget(window)
    {
        setObjectName("Announcement");
        setAttribute(Qt::WA_DontShowOnScreen);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(0, 0);
        setAccessibleName(text);
        Show(true);
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
        QTimer::singleShot(kShown, this, [this] { Show(false); });
        QTimer::singleShot(kKept, this, &QObject::deleteLater);
    }
    bool IsSaid() const { return m_isSaid; }

private:
    void Show(bool shown)
    {
        m_isSaid = shown;
        QAccessibleEvent sight(this, shown ? QAccessible::ObjectShow : QAccessible::ObjectHide);
        QAccessible::updateAccessibility(&sight);
    }

    bool m_isSaid = false;
};

class AnnouncementAccessible : public QAccessibleWidget {
public:
    explicit AnnouncementAccessible(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Notification)
    {
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !static_cast<const Announcement*>(widget())->IsSaid();
        return state;
    }
};

QAccessibleInterface* Make(const QString&, QObject* object)
{
    auto* const announcement = qobject_cast<Announcement*>(object);
    return announcement != nullptr ? new AnnouncementAccessible(announcement) : nullptr;
}

} // namespace

void Announce(QWidget& window, const QString& text)
{
    if (!QAccessible::isActive() || text.isEmpty())
        return;
    QAccessible::installFactory(&Make);
    new Announcement(&window, text);
}

} // namespace zentaro

#include "Announcer.moc"
