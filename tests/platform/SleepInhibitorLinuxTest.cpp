#include "platform/SleepInhibitor_linux.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

#include <gmock/gmock.h>

#include <memory>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// A session with the services of these names, which note what they are asked.
class Session : public QDBusVirtualObject {
public:
    Session(const std::string& address, const std::vector<const char*>& services)
        : m_bus(QDBusConnection::connectToBus(QString::fromStdString(address), "session"))
    {
        EXPECT_TRUE(m_bus.registerVirtualObject("/", this, QDBusConnection::SubPath));
        for (const auto* const service : services)
            EXPECT_TRUE(m_bus.registerService(service));
    }
    ~Session() override { QDBusConnection::disconnectFromBus("session"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        const bool isPortal = message.interface().contains("portal");
        auto text = message.interface() + "." + message.member();
        if (message.member() == "UnInhibit")
            text += " " + message.arguments().at(0).toString();
        else if (message.member() == "Close")
            text += " " + message.path();
        else if (isPortal)
            text += " " + message.arguments().at(1).toString();
        asked.push_back(text.mid(QString("org.freedesktop.").size()).toStdString());
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
}

} // namespace
} // namespace zentaro::platform
