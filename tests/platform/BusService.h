#pragma once

#include "tests/platform/EventLoop.h"
#include "tests/platform/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <functional>
#include <optional>

namespace zentaro::platform {

/// Services of these names on a test's bus, which answer every call with a function, or later.
class BusService : public QDBusVirtualObject {
public:
    /// Nothing while it is to wait.
    using Answer = std::function<std::optional<QDBusMessage>(const QDBusMessage& call)>;

    BusService(const PrivateBus& bus, const QStringList& names, Answer answer)
        : m_bus(NewConnection(bus.Address()))
        , m_answer(std::move(answer))
    {
        EXPECT_TRUE(m_bus.registerVirtualObject("/", this, QDBusConnection::SubPath));
        for (const auto& name : names)
            EXPECT_TRUE(m_bus.registerService(name));
    }
    ~BusService() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection&) override
    {
        if (const auto answer = m_answer(call))
            m_bus.send(*answer);
        return true;
    }
    const QDBusConnection& Connection() const { return m_bus; }

private:
    static QDBusConnection NewConnection(const std::string& address)
    {
        static int count = 0;
        return QDBusConnection::connectToBus(QString::fromStdString(address), QString::number(++count));
    }

    QDBusConnection m_bus;
    Answer m_answer;
};

class OnPrivateBus : public testing::Test {
protected:
    PrivateBus bus;
};

} // namespace zentaro::platform
