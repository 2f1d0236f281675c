#include "desktop/StoreNames.h"
#include "platform/Files.h"
#include "platform/Files_linux.h"
#include "platform/StringStore.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSettings>
#include <QStandardPaths>

#include <fcntl.h>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

namespace zentaro::platform {

using namespace desktop;

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
        const auto place = QString::fromStdString(StoreFileName(key, name));
        const auto value = m_batch ? InBatch(root, place) : QSettings(PathOf(root), QSettings::IniFormat).value(place);
        return value.isValid() ? FromVariant(value) : fallback;
    }

    Result<void> Write(Root root, const std::string& key, const std::string& name, const std::string& text) override
    {
        const auto place = QString::fromStdString(StoreFileName(key, name));
        if (m_batch)
            return Collect(root, place, ToVariant(text));
        // A write waits for the disk, and every start writes again what its associations consist of.
        const auto stored = QSettings(PathOf(root), QSettings::IniFormat).value(place);
        if (stored.isValid() && FromVariant(stored) == text)
            return {};
        return Change(root, [&](QSettings& file) { file.setValue(place, ToVariant(text)); });
    }

    Result<void> Delete(Root root, const std::string& key, const std::string& name) override
    {
        const auto place = QString::fromStdString(StoreFileName(key, name));
        if (m_batch)
            return InBatch(root, place).isValid() ? Collect(root, place, QVariant()) : Result<void>();
        if (!QSettings(PathOf(root), QSettings::IniFormat).contains(place))
            return {};
        return Change(root, [&](QSettings& file) { RemoveOnly(file, place); });
    }

    void BeginBatch() override
    {
        m_batch.emplace();
        for (const auto root : { Root::ClassesRoot, Root::CurrentUser }) {
            auto& collected = (*m_batch)[root];
            if (!IsReadable(PathOf(root)))
                collected.writable = Unwritable(PathOf(root), QSettings::AccessError);
            const QSettings file(PathOf(root), QSettings::IniFormat);
            for (const auto& place : file.allKeys())
                collected.stored.insert(place, file.value(place));
        }
    }

    Result<void> CommitBatch() override
    {
        const auto batch = std::exchange(m_batch, std::nullopt);
        // Types before what the user has chosen for them: a batch cut off between the two can be done again.
        for (const auto root : { Root::ClassesRoot, Root::CurrentUser }) {
            if (!batch || batch->at(root).changes.isEmpty())
                continue;
            const auto& changes = batch->at(root).changes;
            auto done = Change(root, [&](QSettings& file) {
                for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
                    if (it.value().isValid())
                        file.setValue(it.key(), it.value());
                    else
                        RemoveOnly(file, it.key());
                }
            });
            if (!done)
                return done;
        }
        return {};
    }

    void DropBatch() override { m_batch.reset(); }

private:
    struct Collected {
        QMap<QString, QVariant> stored;
        QMap<QString, QVariant> changes; // an invalid value: removed
        std::optional<Result<void>> writable;
    };

    QVariant InBatch(Root root, const QString& place) const
    {
        const auto& collected = m_batch->at(root);
        return collected.changes.value(place, collected.stored.value(place));
    }

    Result<void> Collect(Root root, const QString& place, const QVariant& value)
    {
        auto& collected = m_batch->at(root);
        if (!collected.writable)
            collected.writable = Writable(root, OpenFolder());
        if (*collected.writable)
            collected.changes.insert(place, value);
        return *collected.writable;
    }

    QString PathOf(Root root) const
    {
        return m_folder + (root == Root::CurrentUser ? "/CurrentUser.ini" : "/ClassesRoot.ini");
    }

    /// Not remove(): that would take the keys below along.
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
        if (auto writable = Writable(root, folder); !writable)
            return writable;
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

    /// What cannot be read for the moment would look like an empty file, and be replaced by one.
    static bool IsReadable(const QString& path)
    {
        return ReadFileText(QFile::encodeName(path).toStdString(), 1).state != FileState::Unreadable;
    }

    /// Asked first: QSettings would keep a change that it could not write, and show it to later reads.
    Result<void> Writable(Root root, const FileDescriptor& folder) const
    {
        const auto path = PathOf(root);
        if (faccessat(folder.Number(), ".", W_OK, AT_EACCESS) == 0 && IsReadable(path)
            && QSettings(path, QSettings::IniFormat).isWritable())
            return {};
        return Unwritable(path, QSettings::AccessError);
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
    std::optional<std::map<Root, Collected>> m_batch;
};

} // namespace

std::unique_ptr<StringStore> StringStore::Open()
{
    return std::make_unique<FileStore>();
}

} // namespace zentaro::platform
