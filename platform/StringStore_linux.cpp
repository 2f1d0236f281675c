#include "platform/FileDescriptor_linux.h"
#include "platform/RuntimeFolder_linux.h"
#include "platform/StoreNames.h"
#include "platform/StringStore.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <fcntl.h>
#include <filesystem>
#include <system_error>

namespace zentaro::platform {
namespace {

QVariant ToVariant(const std::string& text)
{
    const auto bytes = QByteArray::fromStdString(text);
    const auto readable = QString::fromUtf8(bytes);
    // As readable text where that is the same, otherwise byte by byte.
    if (readable.toUtf8() == bytes && !bytes.contains('\0'))
        return readable;
    return bytes;
}

std::string FromVariant(const QVariant& value)
{
    // A person who edits the file may leave out the quotes around a text with commas.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", ")).toStdString();
    return value.toByteArray().toStdString();
}

/// One file per root in the user's data folder.
class FileStore : public StringStore {
public:
    FileStore()
        : m_folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/zentaro"))
    {
    }

    std::string Read(Root root, const std::string& key, const std::string& name, const std::string& fallback) override
    {
        const QSettings file(PathOf(root), QSettings::IniFormat);
        const auto value = file.value(QString::fromStdString(StoreFileName(key, name)));
        return value.isValid() ? FromVariant(value) : fallback;
    }

    Result<void> Write(Root root, const std::string& key, const std::string& name, const std::string& text) override
    {
        const auto place = QString::fromStdString(StoreFileName(key, name));
        // A write waits for the disk, and every start writes again what its associations consist of.
        const auto stored = QSettings(PathOf(root), QSettings::IniFormat).value(place);
        if (stored.isValid() && FromVariant(stored) == text)
            return {};
        return Change(root, [&](QSettings& file) { file.setValue(place, ToVariant(text)); });
    }

    Result<void> Delete(Root root, const std::string& key, const std::string& name) override
    {
        const auto place = QString::fromStdString(StoreFileName(key, name));
        if (!QSettings(PathOf(root), QSettings::IniFormat).contains(place))
            return {};
        // Not remove(): that would take the keys below along.
        return Change(root, [&](QSettings& file) { RemoveOnly(file, place); });
    }

private:
    QString PathOf(Root root) const
    {
        return m_folder + (root == Root::CurrentUser ? "/CurrentUser.ini" : "/ClassesRoot.ini");
    }

    static void RemoveOnly(QSettings& file, const QString& place)
    {
        QMap<QString, QVariant> below;
        file.beginGroup(place);
        for (const auto& key : file.allKeys())
            below.insert(key, file.value(key));
        file.endGroup();
        file.remove(place);
        for (auto it = below.cbegin(); it != below.cend(); ++it)
            file.setValue(place + u'/' + it.key(), it.value());
    }

    template <class Edit> Result<void> Change(Root root, const Edit& edit)
    {
        const auto folder = OpenFolder();
        LockWithin(folder.Number(), std::chrono::seconds(2));
        const auto path = PathOf(root);
        // Asked first: QSettings would keep a change that it could not write, and show it to later reads.
        if (faccessat(folder.Number(), ".", W_OK, AT_EACCESS) != 0
            || !QSettings(path, QSettings::IniFormat).isWritable())
            return Unwritable(path, QSettings::AccessError);
        const auto before = QFileInfo(path).lastModified();
        auto status = TryChange(path, edit);
        // A damaged file has been written anew from what was readable; a second time tells whether that worked.
        if (status == QSettings::FormatError)
            status = TryChange(path, edit);
        AdvanceTime(path, before);
        if (status == QSettings::NoError)
            return {};
        return Unwritable(path, status);
    }

    static Error Unwritable(const QString& path, QSettings::Status status)
    {
        return { status, "The store cannot be written: " + path.toStdString() };
    }

    template <class Edit> static QSettings::Status TryChange(const QString& path, const Edit& edit)
    {
        QSettings file(path, QSettings::IniFormat);
        edit(file);
        file.sync();
        return file.status();
    }

    FileDescriptor OpenFolder() const
    {
        const auto path = m_folder.toStdString();
        std::error_code ignored;
        if (std::filesystem::create_directories(path, ignored))
            std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
        return FileDescriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    /// Readers notice a new content by the file's size and time (in ms). Two writes of the same size can fall
    /// within one tick of the system's clock, so the time is made to differ.
    static void AdvanceTime(const QString& path, const QDateTime& before)
    {
        QFile file(path);
        if (before.isValid() && QFileInfo(path).lastModified() <= before && file.open(QIODevice::ReadWrite))
            file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
    }

    QString m_folder;
};

} // namespace

std::unique_ptr<StringStore> StringStore::Open()
{
    return std::make_unique<FileStore>();
}

} // namespace zentaro::platform
