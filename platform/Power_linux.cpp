#include "platform/Power_linux.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace zentaro::platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2min;
constexpr auto kLookForAnswer = 20ms;
constexpr bool kMayAskForPassword = true;

/// A connection of its own that is gone with the value: the login manager drops a question whose asker has left.
class BusConnection {
public:
    BusConnection(const std::string& address, QString name)
        : m_name(std::move(name))
        , m_connection(QDBusConnection::connectToBus(QString::fromStdString(address), m_name))
    {
    }
    BusConnection(const BusConnection&) = delete;
    ~BusConnection() { QDBusConnection::disconnectFromBus(m_name); }

    QDBusConnection* operator->() { return &m_connection; }

private:
    QString m_name;
    QDBusConnection m_connection;
};

void WaitForAnswer(const QDBusPendingCall& call, const std::stop_token& stop)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any stopped;
    while (!call.isFinished() && !stop.stop_requested())
        stopped.wait_for(lock, stop, kLookForAnswer, [] { return false; });
}

} // namespace

std::string SystemBusAddress()
{
    const char* const address = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address != nullptr && *address != '\0' ? address : "unix:path=/run/dbus/system_bus_socket";
}

LoginManagerPower::LoginManagerPower(std::string busAddress, std::chrono::milliseconds patience)
    : m_busAddress(std::move(busAddress))
    , m_patience(patience)
{
}

LoginManagerPower::~LoginManagerPower() = default;

Result<void> LoginManagerPower::Ask(const char* method)
{
    if (m_isAsking.exchange(true))
        return Error{ 0, "The system has not answered the last request yet" };
    m_thread = std::jthread([this, method](const std::stop_token& stop) {
        Call(method, stop);
        m_isAsking = false;
    });
    return {};
}

void LoginManagerPower::Call(const char* method, const std::stop_token& stop) const
{
    const auto name = QStringLiteral("zentaro-power-%1").arg(reinterpret_cast<quintptr>(this), 0, 16);
    BusConnection bus(m_busAddress, name);
    if (!bus->isConnected())
        return;
    auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.login1"),
        QStringLiteral("/org/freedesktop/login1"), QStringLiteral("org.freedesktop.login1.Manager"),
        QString::fromLatin1(method));
    message << kMayAskForPassword;
    WaitForAnswer(bus->asyncCall(message, static_cast<int>(m_patience.count())), stop);
}

std::unique_ptr<Power> Power::Open()
{
    return std::make_unique<LoginManagerPower>(SystemBusAddress(), kPatience);
}

} // namespace zentaro::platform
