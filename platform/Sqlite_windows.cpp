#include "platform/Sqlite.h"

#include <windows.h>

namespace zentaro::platform {

namespace {

template <typename Function> bool Find(HMODULE library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    return function != nullptr;
}

/// The system's own: Windows has one since its tenth version.
bool Load(SqliteCalls& calls)
{
    auto* const library = LoadLibraryExA("winsqlite3.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library != nullptr && Find(library, "sqlite3_open_v2", calls.open_v2)
        && Find(library, "sqlite3_close", calls.close) && Find(library, "sqlite3_busy_timeout", calls.busy_timeout)
        && Find(library, "sqlite3_exec", calls.exec) && Find(library, "sqlite3_prepare_v2", calls.prepare_v2)
        && Find(library, "sqlite3_bind_blob", calls.bind_blob) && Find(library, "sqlite3_step", calls.step)
        && Find(library, "sqlite3_reset", calls.reset) && Find(library, "sqlite3_finalize", calls.finalize)
        && Find(library, "sqlite3_column_blob", calls.column_blob)
        && Find(library, "sqlite3_column_bytes", calls.column_bytes)
        && Find(library, "sqlite3_column_int64", calls.column_int64);
}

} // namespace

const SqliteCalls* Sqlite()
{
    static SqliteCalls calls;
    static const bool isLoaded = Load(calls);
    return isLoaded ? &calls : nullptr;
}

} // namespace zentaro::platform
