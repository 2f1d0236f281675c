#include "platform/CacheStore.h"

#include "platform/Files.h"
#include "platform/Sqlite.h"

#include <cstring>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>

namespace zentaro::platform {

namespace {

// Numbers of SQLite's interface, which never change.
constexpr int kOk = 0;
constexpr int kCorrupt = 11;
constexpr int kNoDatabase = 26;
constexpr int kRow = 100;
constexpr int kDone = 101;
constexpr int kOpenFlags = 0x2 | 0x4 | 0x8000; // to read and write, made when missing, no mutex of its own

constexpr int kPatience = 500;     // ms, for other players that write
constexpr int kWritesPerLook = 64; // after so many the size is looked at

// A write-ahead log lets all read while one writes, and a player may be killed at any moment. Whoever pulls the plug
// can lose what was written last.
constexpr const char* kSetUp = "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA cache_size = -2000;"
                               "CREATE TABLE IF NOT EXISTS cached (key BLOB PRIMARY KEY, value BLOB NOT NULL)";
constexpr const char* kRead = "SELECT value FROM cached WHERE key = ?1";
// A row that is replaced gets a new number, so that the numbers tell the age.
constexpr const char* kWrite = "INSERT OR REPLACE INTO cached (key, value) VALUES (?1, ?2)";
constexpr const char* kSize = "SELECT (page_count - freelist_count) * page_size"
                              " FROM pragma_page_count(), pragma_freelist_count(), pragma_page_size()";
constexpr const char* kDropOldest =
    "DELETE FROM cached WHERE rowid IN"
    " (SELECT rowid FROM cached ORDER BY rowid LIMIT (SELECT 1 + COUNT(*) / 8 FROM cached))";

/// FNV-1a over both: a value counts only under its own key.
std::uint64_t SumOf(const std::string& key, const char* value, std::size_t length)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    const auto add = [&sum](const char* bytes, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            sum = (sum ^ static_cast<unsigned char>(bytes[i])) * 0x100000001B3;
    };
    add(key.data(), key.size());
    add(value, length);
    return sum;
}

class SqliteStore final : public CacheStore {
public:
    SqliteStore(const SqliteCalls& calls, std::string file, std::int64_t limit)
        : m_calls(calls)
        , m_file(std::move(file))
        , m_limit(limit)
    {
        if (OpenFile() == kOk)
            return;
        // A file of another making is as good as a damaged one; any other trouble stays.
        if (m_isDamaged)
            StartAnew();
        else
            CloseFile();
    }
    ~SqliteStore() override { CloseFile(); }

    std::optional<std::string> Read(const std::string& key) override
    {
        const std::lock_guard lock(m_mutex);
        if (m_database == nullptr)
            return std::nullopt;
        Bind(m_read, 1, key);
        std::optional<std::string> value;
        if (Noted(m_calls.step(m_read)) == kRow)
            value = ValueIn(m_read, key);
        m_calls.reset(m_read);
        if (m_isDamaged)
            StartAnew();
        return value;
    }

    bool Write(const std::string& key, const std::string& value) override
    {
        const std::lock_guard lock(m_mutex);
        if (m_database == nullptr)
            return false;
        const auto sum = SumOf(key, value.data(), value.size());
        std::string bytes(reinterpret_cast<const char*>(&sum), sizeof sum);
        bytes += value;
        Bind(m_write, 1, key);
        Bind(m_write, 2, bytes);
        const bool isWritten = Noted(m_calls.step(m_write)) == kDone;
        m_calls.reset(m_write);
        if (isWritten && ++m_writes % kWritesPerLook == 0)
            MakeRoom();
        if (m_isDamaged)
            StartAnew();
        return isWritten;
    }

private:
    int Noted(int result)
    {
        const int kind = result & 0xFF;
        m_isDamaged = m_isDamaged || kind == kCorrupt || kind == kNoDatabase;
        return result;
    }

    int OpenFile()
    {
        m_isDamaged = false;
        if (const int opened = Noted(m_calls.open_v2(m_file.c_str(), &m_database, kOpenFlags, nullptr)); opened != kOk)
            return opened;
        m_calls.busy_timeout(m_database, kPatience);
        if (const int set = Noted(m_calls.exec(m_database, kSetUp, nullptr, nullptr, nullptr)); set != kOk)
            return set;
        for (const auto& [text, statement] : { std::pair(kRead, &m_read), std::pair(kWrite, &m_write) }) {
            if (const int made = Noted(m_calls.prepare_v2(m_database, text, -1, statement, nullptr)); made != kOk) {
                // A table of the name that has other columns.
                m_isDamaged = true;
                return made;
            }
        }
        return kOk;
    }

    void CloseFile()
    {
        m_calls.finalize(std::exchange(m_read, nullptr));
        m_calls.finalize(std::exchange(m_write, nullptr));
        m_calls.close(std::exchange(m_database, nullptr));
    }

    void StartAnew()
    {
        CloseFile();
        std::error_code ignored;
        for (const char* const end : { "", "-wal", "-shm" }) {
            const auto name = m_file + end;
            std::filesystem::remove(std::u8string(name.begin(), name.end()), ignored);
        }
        if (OpenFile() != kOk)
            CloseFile();
    }

    void Bind(sqlite3_stmt* statement, int index, const std::string& bytes)
    {
        m_calls.bind_blob(statement, index, bytes.data(), static_cast<int>(bytes.size()), nullptr);
    }

    std::optional<std::string> ValueIn(sqlite3_stmt* row, const std::string& key) const
    {
        const auto* const bytes = static_cast<const char*>(m_calls.column_blob(row, 0));
        const auto length = static_cast<std::size_t>(m_calls.column_bytes(row, 0));
        std::uint64_t sum = 0;
        if (bytes == nullptr || length < sizeof sum)
            return std::nullopt;
        std::memcpy(&sum, bytes, sizeof sum);
        if (sum != SumOf(key, bytes + sizeof sum, length - sizeof sum))
            return std::nullopt;
        return std::string(bytes + sizeof sum, length - sizeof sum);
    }

    void MakeRoom()
    {
        sqlite3_stmt* size = nullptr;
        if (Noted(m_calls.prepare_v2(m_database, kSize, -1, &size, nullptr)) == kOk && Noted(m_calls.step(size)) == kRow
            && m_calls.column_int64(size, 0) > m_limit) {
            m_calls.reset(size);
            Noted(m_calls.exec(m_database, kDropOldest, nullptr, nullptr, nullptr));
        }
        m_calls.finalize(size);
    }

    const SqliteCalls& m_calls;
    std::string m_file;
    std::int64_t m_limit;
    std::mutex m_mutex;
    sqlite3* m_database = nullptr; // null: nothing can be kept
    sqlite3_stmt* m_read = nullptr;
    sqlite3_stmt* m_write = nullptr;
    bool m_isDamaged = false;
    int m_writes = 0;
};

} // namespace

std::unique_ptr<CacheStore> CacheStore::Open(const std::string& file, std::int64_t limit)
{
    const auto* const calls = Sqlite();
    if (calls == nullptr || file.empty())
        return nullptr;
    MakeFolder(file.substr(0, file.find_last_of(PathSeparator())));
    return std::make_unique<SqliteStore>(*calls, file, limit);
}

} // namespace zentaro::platform
