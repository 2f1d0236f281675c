#include "platform/Sqlite.h"

#include <sqlite3.h>

namespace zentaro::platform {

const SqliteCalls* Sqlite()
{
    static const SqliteCalls calls{ &sqlite3_open_v2, &sqlite3_close, &sqlite3_busy_timeout, &sqlite3_exec,
        &sqlite3_prepare_v2, &sqlite3_bind_blob, &sqlite3_step, &sqlite3_reset, &sqlite3_finalize, &sqlite3_column_blob,
        &sqlite3_column_bytes,
        // Its own 64-bit type is another one than the standard's of the same size.
        [](sqlite3_stmt* statement, int column) -> std::int64_t { return sqlite3_column_int64(statement, column); } };
    return &calls;
}

} // namespace zentaro::platform
