#pragma once

#include "tests/platform/BusService.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QRegularExpression>

namespace zentaro::platform {

/// Properties by interface, and those by object.
using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

inline QByteArray FileName(const std::string& path)
{
    return QByteArray::fromStdString(path) + '\0';
}

/// A disk service that says what it is told to.
class DiskService : public BusService {
public:
    explicit DiskService(const PrivateBus& bus)
        : BusService(bus, { "org.freedesktop.UDisks2" }, [this](const QDBusMessage& call) {
            asked.push_back((call.interface() + "." + call.member()).toStdString());
            m_question = call;
            return answersAtOnce ? std::optional(Reply()) : std::nullopt;
        })
    {
        qDBusRegisterMetaType<QByteArrayList>();
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
    }
    /// The question that waits.
    void Answer() { Connection().send(Reply()); }

    void AddDrive(const std::string& device, const QStringList& media = { "optical_cd", "optical_dvd" })
    {
        Of(device, "block_devices")[kService + "Block"] = { { "Device", FileName(device) },
            { "Drive", QVariant::fromValue(Path(device, "drives")) }, { "IdUsage", "" }, { "IdLabel", "" },
            { "Size", qulonglong(0) } };
        Of(device, "drives")[kService + "Drive"] = { { "MediaCompatibility", media }, { "Optical", true } };
        for (const auto* const kind : { "drives", "block_devices" })
            Tell("Added", Path(device, kind), QVariant::fromValue(Of(device, kind)));
    }
    /// No label: it is taken out.
    void SetDisc(const std::string& device, const std::optional<std::string>& label, QByteArrayList mountPoints = {})
    {
        auto& block = Of(device, "block_devices");
        block[kService + "Block"]["IdUsage"] = label ? "filesystem" : "";
        block[kService + "Block"]["IdLabel"] = QString::fromStdString(label.value_or(""));
        block[kService + "Filesystem"]["MountPoints"] = QVariant::fromValue(mountPoints);
        Of(device, "drives")[kService + "Drive"]["TimeMediaDetected"] = ++m_time;
        TellOfProperties(device, "block_devices", "Block");
    }
    void RemoveDrive(const std::string& device)
    {
        m_objects.remove(Path(device, "drives"));
        m_objects.remove(Path(device, "block_devices"));
        Tell("Removed", Path(device, "drives"), QStringList(kService + "Drive"));
    }

    /// An object has come or gone ("Added", "Removed").
    void Tell(const QString& what, const QDBusObjectPath& path, const QVariant& interfaces)
    {
        auto signal = QDBusMessage::createSignal(
            "/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager", "Interfaces" + what);
        Connection().send(signal << QVariant::fromValue(path) << interfaces);
    }
    void TellOfProperties(const std::string& device, const char* kind, const QString& interface)
    {
        auto signal = QDBusMessage::createSignal(
            Path(device, kind).path(), "org.freedesktop.DBus.Properties", "PropertiesChanged");
        Connection().send(signal << kService + interface << QVariantMap() << QStringList());
    }

    bool answersAtOnce = true;
    std::vector<std::string> asked;

private:
    static QDBusObjectPath Path(const std::string& device, const char* kind)
    {
        auto name = QString::fromStdString(device).replace(QRegularExpression("[^a-z0-9]"), "_");
        return QDBusObjectPath(QString("/org/freedesktop/UDisks2/%1/%2").arg(kind, name));
    }
    Interfaces& Of(const std::string& device, const char* kind) { return m_objects[Path(device, kind)]; }
    QDBusMessage Reply() const { return m_question.createReply(QVariant::fromValue(m_objects)); }

    inline static const QString kService = "org.freedesktop.UDisks2.";
    Objects m_objects;
    QDBusMessage m_question;
    qulonglong m_time = 0;
};

} // namespace zentaro::platform
