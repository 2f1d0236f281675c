#pragma once

#include <string>

namespace zentaro::live {

/// A source that does not answer: from now on every read of that file in this process, by whichever library, waits
/// until the object goes, or for 20 s. One at a time.
class SlowReads {
public:
    explicit SlowReads(const std::string& path);
    ~SlowReads();
    SlowReads(const SlowReads&) = delete;
    SlowReads& operator=(const SlowReads&) = delete;

    /// Whether somebody waits.
    static bool IsHeld();
};

} // namespace zentaro::live
