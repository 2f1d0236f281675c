#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zentaro::platform {

/// Properties by interface, and those by object.
using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

} // namespace zentaro::platform

Q_DECLARE_METATYPE(zentaro::platform::Interfaces)
Q_DECLARE_METATYPE(zentaro::platform::Objects)

namespace zentaro::platform {
inline QByteArray FileName(const std::string& path)
{
    return QByteArray::fromStdString(path) + '\0';
}

/// A disk service that says what it is told to.
class DiskService : public QDBusVirtualObject {
public:
    explicit DiskService(const std::string& address)
        : m_bus(QDBusConnection::connectToBus(QString::fromStdString(address), "udisks"))
    {
        qDBusRegisterMetaType<QByteArrayList>();
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        EXPECT_TRUE(m_bus.registerVirtualObject("/org/freedesktop/UDisks2", this));
        EXPECT_TRUE(m_bus.registerService("org.freedesktop.UDisks2"));
    }
    ~DiskService() override { QDBusConnection::disconnectFromBus("udisks"); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        asked.push_back((message.interface() + "." + message.member()).toStdString());
        m_question = message;
        if (answersAtOnce)
            Answer(bus);
        return true;
    }
    void Answer() { Answer(m_bus); }

    void AddDrive(const std::string& device, const QStringList& media = { "optical_cd", "optical_dvd" })
    {
        Of(device, "block_devices")["org.freedesktop.UDisks2.Block"] = { { "Device", FileName(device) },
            { "Drive", QVariant::fromValue(Path(device, "drives")) }, { "IdUsage", "" }, { "IdLabel", "" },
            { "Size", qulonglong(0) } };
        Of(device, "drives")["org.freedesktop.UDisks2.Drive"] = { { "MediaCompatibility", media }, { "Optical", true },
            { "Seat", "seat0" } };
        for (const auto* const kind : { "drives", "block_devices" })
            Tell("Added", Path(device, kind), QVariant::fromValue(Of(device, kind)));
    }
    void InsertDisc(const std::string& device, const std::string& label, const QByteArrayList& mountPoints = {})
    {
        auto& block = Of(device, "block_devices");
        block["org.freedesktop.UDisks2.Block"]["IdUsage"] = "filesystem";
        block["org.freedesktop.UDisks2.Block"]["IdLabel"] = QString::fromStdString(label);
        block["org.freedesktop.UDisks2.Filesystem"]["MountPoints"] = QVariant::fromValue(mountPoints);
        Of(device, "drives")["org.freedesktop.UDisks2.Drive"]["TimeMediaDetected"] = ++m_time;
        TellOfProperties(device, "block_devices", "Block");
    }
    void RemoveDisc(const std::string& device)
    {
        auto& block = Of(device, "block_devices")["org.freedesktop.UDisks2.Block"];
        block["IdUsage"] = block["IdLabel"] = "";
        TellOfProperties(device, "block_devices", "Block");
    }
    void RemoveDrive(const std::string& device)
    {
        objects.remove(Path(device, "drives"));
        objects.remove(Path(device, "block_devices"));
        Tell("Removed", Path(device, "drives"), QStringList("org.freedesktop.UDisks2.Drive"));
    }

    /// An object has come or gone ("Added", "Removed").
    void Tell(const QString& what, const QDBusObjectPath& path, const QVariant& interfaces)
    {
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager", "Interfaces" + what);
        m_bus.send(signal << QVariant::fromValue(path) << interfaces);
    }
    void TellOfProperties(const std::string& device, const char* kind, const QString& interface)
    {
        auto signal = QDBusMessage::createSignal(
            Path(device, kind).path(), "org.freedesktop.DBus.Properties", "PropertiesChanged");
        m_bus.send(signal << "org.freedesktop.UDisks2." + interface << QVariantMap() << QStringList());
    }

    Objects objects;
    bool answersAtOnce = true;
    std::vector<std::string> asked;

private:
    static QDBusObjectPath Path(const std::string& device, const char* kind)
    {
        auto name = QString::fromStdString(device).replace(QRegularExpression("[^a-z0-9]"), "_");
        return QDBusObjectPath(QString("/org/freedesktop/UDisks2/%1/%2").arg(kind, name));
    }
    Interfaces& Of(const std::string& device, const char* kind) { return objects[Path(device, kind)]; }
    void Answer(const QDBusConnection& bus) { bus.send(m_question.createReply(QVariant::fromValue(objects))); }

    QDBusConnection m_bus;
    QDBusMessage m_question;
    qulonglong m_time = 0;
};

} // namespace zentaro::platform
