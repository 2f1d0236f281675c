#pragma once

#include <cstdint>

struct sqlite3;
struct sqlite3_stmt;

namespace zentaro::platform {

/// The calls of SQLite that are used, by their own names: Linux links them, Windows has them in a library of its own.
struct SqliteCalls {
    int (*open_v2)(const char* file, sqlite3** database, int flags, const char* system) = nullptr;
    int (*close)(sqlite3* database) = nullptr;
    int (*busy_timeout)(sqlite3* database, int milliseconds) = nullptr;
    int (*exec)(
        sqlite3* database, const char* text, int (*row)(void*, int, char**, char**), void*, char** error) = nullptr;
    int (*prepare_v2)(
        sqlite3* database, const char* text, int length, sqlite3_stmt** statement, const char** rest) = nullptr;
    int (*bind_blob)(
        sqlite3_stmt* statement, int index, const void* bytes, int length, void (*release)(void*)) = nullptr;
    int (*step)(sqlite3_stmt* statement) = nullptr;
    int (*reset)(sqlite3_stmt* statement) = nullptr;
    int (*finalize)(sqlite3_stmt* statement) = nullptr;
    const void* (*column_blob)(sqlite3_stmt* statement, int column) = nullptr;
    int (*column_bytes)(sqlite3_stmt* statement, int column) = nullptr;
    std::int64_t (*column_int64)(sqlite3_stmt* statement, int column) = nullptr;
};

/// Null where the system has no such library.
const SqliteCalls* Sqlite();

} // namespace zentaro::platform
