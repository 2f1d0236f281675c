#include "platform/Power_linux.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>

#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

/// A session with the services of these names, which note what they are asked.
class Session : public QDBusVirtualObject {
public:
    Session(const std::string& address, const std::vector<const char*>& services)
        : m_bus(QDBusConnection::connectToBus(QString::fromStdString(address), "session"))
        , m_watcher(QString(), m_bus, QDBusServiceWatcher::WatchForUnregistration)
    {
        EXPECT_TRUE(m_bus.registerVirtualObject("/", this, QDBusConnection::SubPath));
        for (const auto* const service : services)
            EXPECT_TRUE(m_bus.registerService(service));
        QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, [this] { asked.push_back("gone"); });
    }
    ~Session() override { QDBusConnection::disconnectFromBus("session"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        if (!message.member().endsWith("nhibit") && message.member() != "Close")
            return false;
        const bool isPortal = message.interface().contains("portal");
        auto text = message.interface() + "." + message.member();
        if (message.member() == "UnInhibit")
            text += " " + message.arguments().at(0).toString();
        else if (message.member() == "Close")
            text += " " + message.path();
        else if (isPortal)
            text += " " + message.arguments().at(1).toString();
        asked.push_back(text.mid(QString("org.freedesktop.").size()).toStdString());
        m_watcher.addWatchedService(message.service());
        m_last = isPortal ? message.createReply(QVariant::fromValue(QDBusObjectPath("/request/7")))
                          : message.createReply(QVariant::fromValue(message.member() == "Inhibit" ? ++m_cookie : 0));
        if (answersAtOnce)
            bus.send(m_last);
        return true;
    }
    void AnswerNow() { m_bus.send(m_last); }

    std::vector<std::string> asked;
    bool answersAtOnce = true;

private:
    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    QDBusMessage m_last;
    quint32 m_cookie = 40;
};

class SleepInhibitorLinuxTest : public testing::Test {
protected:
    /// Handles messages until so many were asked, for ten seconds at most.
    static std::vector<std::string> Asked(Session& session, std::size_t count)
    {
        const auto end = std::chrono::steady_clock::now() + 10s;
        while (session.asked.size() < count && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return std::exchange(session.asked, {});
    }

    int count = 0;
    QCoreApplication application{ count, nullptr };
    PrivateBus bus;
};

TEST_F(SleepInhibitorLinuxTest, ScreenSaverAndSleepAreHeldOffOnceAndReleasedOnce)
{
    Session session(bus.Address(), { "org.freedesktop.ScreenSaver", "org.freedesktop.PowerManagement" });
    {
        SessionSleepInhibitor inhibitor(bus.Address());
        inhibitor.Hold(false);
        inhibitor.Hold(true);
        inhibitor.Hold(true);
        EXPECT_THAT(Asked(session, 2), UnorderedElementsAre("ScreenSaver.Inhibit", "PowerManagement.Inhibit.Inhibit"));
        inhibitor.Hold(false);
        EXPECT_THAT(Asked(session, 2),
            UnorderedElementsAre("ScreenSaver.UnInhibit 41", "PowerManagement.Inhibit.UnInhibit 42"));
        inhibitor.Hold(true);
        EXPECT_EQ(Asked(session, 2).size(), 2U);
        std::this_thread::sleep_for(100ms); // the answers are on their way
    }
    // What is held at the end is given back, and the bus left.
    EXPECT_THAT(
        Asked(session, 3), ElementsAre("ScreenSaver.UnInhibit 43", "PowerManagement.Inhibit.UnInhibit 44", "gone"));
}

TEST_F(SleepInhibitorLinuxTest, WithoutAScreenSaverServiceThePortalIsAsked)
{
    Session session(bus.Address(), { "org.freedesktop.portal.Desktop" });
    SessionSleepInhibitor inhibitor(bus.Address());
    inhibitor.Hold(true);
    EXPECT_THAT(Asked(session, 1), ElementsAre("portal.Inhibit.Inhibit 12"));
    inhibitor.Hold(false);
    EXPECT_THAT(Asked(session, 1), ElementsAre("portal.Request.Close /request/7"));
}

TEST_F(SleepInhibitorLinuxTest, AnAnswerThatComesAfterThePauseIsGivenBackAtOnce)
{
    Session session(bus.Address(), { "org.freedesktop.ScreenSaver" });
    session.answersAtOnce = false;
    SessionSleepInhibitor inhibitor(bus.Address());
    inhibitor.Hold(true);
    EXPECT_EQ(Asked(session, 1).size(), 1U);
    inhibitor.Hold(false);
    session.AnswerNow();
    EXPECT_THAT(Asked(session, 1), ElementsAre("ScreenSaver.UnInhibit 41"));
}

TEST_F(SleepInhibitorLinuxTest, ABusAndAServiceThatComeLaterAreAskedWhileItIsStillHeld)
{
    const auto folder = bus.Folder();
    SessionSleepInhibitor inhibitor("unix:path=" + folder + "/nobody;" + bus.Address(), 50ms);
    inhibitor.Hold(true);
    auto session = std::make_unique<Session>(bus.Address(), std::vector{ "org.freedesktop.ScreenSaver" });
    EXPECT_THAT(Asked(*session, 1), ElementsAre("ScreenSaver.Inhibit"));
    session.reset();
    // The service has been started anew and knows nothing any more.
    session = std::make_unique<Session>(bus.Address(), std::vector{ "org.freedesktop.ScreenSaver" });
    EXPECT_THAT(Asked(*session, 1), ElementsAre("ScreenSaver.Inhibit"));
    session.reset();
    bus.Restart();
    session = std::make_unique<Session>(bus.Address(), std::vector{ "org.freedesktop.ScreenSaver" });
    EXPECT_THAT(Asked(*session, 1), ElementsAre("ScreenSaver.Inhibit"));
}

} // namespace
} // namespace zentaro::platform
