#include "platform/Power_linux.h"
#include "tests/platform/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gmock/gmock.h>

#include <functional>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr auto kLong = 1h;

/// A login manager that only notes what it is asked.
class LoginManager : public QDBusVirtualObject {
public:
    enum class Mood { Obeys, Refuses, KeepsSilent };

    explicit LoginManager(const std::string& address)
        : m_bus(QDBusConnection::connectToBus(QString::fromStdString(address), "login1"))
    {
        EXPECT_TRUE(m_bus.registerVirtualObject("/org/freedesktop/login1", this));
        EXPECT_TRUE(m_bus.registerService("org.freedesktop.login1"));
    }
    ~LoginManager() override { QDBusConnection::disconnectFromBus("login1"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        const auto& arguments = message.arguments();
        const bool mayAsk = arguments.size() == 1 && arguments[0] == QVariant(true);
        asked.push_back((message.interface() + "." + message.member() + (mayAsk ? " true" : "")).toStdString());
        if (mood != Mood::KeepsSilent)
            bus.send(mood == Mood::Obeys ? message.createReply()
                                         : message.createErrorReply(QDBusError::AccessDenied, "not you"));
        return true;
    }

    std::vector<std::string> asked;
    Mood mood = Mood::Obeys;

private:
    QDBusConnection m_bus;
};

class PowerLinuxTest : public testing::Test {
protected:
    /// Handles messages until `done`, for ten seconds at most.
    static bool Reached(const std::function<bool()>& done)
    {
        const auto end = std::chrono::steady_clock::now() + 10s;
        bool isDone = done();
        for (; !isDone && std::chrono::steady_clock::now() < end; isDone = done())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return isDone;
    }
    /// Requests are taken again once the one before is over.
    static bool IsTakenAgain(const std::function<Result<void>()>& request)
    {
        return Reached([&] { return static_cast<bool>(request()); });
    }
    bool IsAsked(std::size_t times)
    {
        return Reached([&] { return login.asked.size() == times; });
    }
    /// The only way to a power service in this file, and never to one that could obey in earnest.
    static LoginManagerPower PowerAt(
        const PrivateBus& bus, const std::string& address, std::chrono::milliseconds patience = kLong)
    {
        if (bus.Folder().empty() || address.find(bus.Folder()) == std::string::npos
            || address.find(';') != std::string::npos)
            std::abort();
        return LoginManagerPower(address, patience);
    }
    LoginManagerPower Power(std::chrono::milliseconds patience = kLong)
    {
        return PowerAt(bus, bus.Address(), patience);
    }

    int count = 0;
    QCoreApplication application{ count, nullptr };
    PrivateBus bus;
    LoginManager login{ bus.Address() };
};

TEST_F(PowerLinuxTest, RestartAndPowerOffAskTheLoginManagerWhichMayAskForAPassword)
{
    auto power = Power();
    power.EnableShutdownPrivilege();
    EXPECT_TRUE(power.Restart());
    ASSERT_TRUE(IsAsked(1));
    EXPECT_TRUE(IsTakenAgain([&] { return power.PowerOff(); }));
    ASSERT_TRUE(IsAsked(2));
    EXPECT_THAT(login.asked,
        ElementsAre("org.freedesktop.login1.Manager.Reboot true", "org.freedesktop.login1.Manager.PowerOff true"));
}

TEST_F(PowerLinuxTest, AServiceThatNeverAnswersIsAskedOnceUntilPatienceEndsAndARefusalEndsARequest)
{
    login.mood = LoginManager::Mood::KeepsSilent;
    auto power = Power(1s);
    EXPECT_TRUE(power.PowerOff());
    EXPECT_FALSE(power.PowerOff());
    ASSERT_TRUE(IsAsked(1));
    login.mood = LoginManager::Mood::Refuses;
    EXPECT_TRUE(IsTakenAgain([&] { return power.PowerOff(); }));
    ASSERT_TRUE(IsAsked(2));
    EXPECT_TRUE(IsTakenAgain([&] { return power.PowerOff(); }));
    EXPECT_TRUE(IsAsked(3));
}

TEST_F(PowerLinuxTest, ABusThatIsMissingOrHangsHoldsUpNeitherTheNextRequestNorTheEnd)
{
    auto nowhere = PowerAt(bus, "unix:path=" + bus.Folder() + "/nobody");
    EXPECT_TRUE(nowhere.Restart());
    EXPECT_TRUE(IsTakenAgain([&] { return nowhere.Restart(); }));
    const DeafBus deaf(bus.Folder() + "/deaf");
    EXPECT_TRUE(PowerAt(bus, deaf.Address()).Restart());
    auto impatient = PowerAt(bus, deaf.Address(), 100ms);
    EXPECT_TRUE(impatient.Restart());
    EXPECT_TRUE(IsTakenAgain([&] { return impatient.Restart(); }));
}

} // namespace
} // namespace zentaro::platform
