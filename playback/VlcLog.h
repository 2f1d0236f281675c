#pragma once

#include <atomic>
#include <cstdio>
#include <mutex>
#include <string>

struct libvlc_instance_t;

namespace zentaro {

/// Where the engine library's own messages go: a file of limited size, never the terminal.
class VlcLog {
public:
    /// Without a path nothing is written.
    explicit VlcLog(const std::string& path);
    ~VlcLog();
    VlcLog(const VlcLog&) = delete;
    VlcLog& operator=(const VlcLog&) = delete;

    /// The log outlives the instance.
    void Attach(libvlc_instance_t* instance);
    /// Engine threads.
    void Write(int level, const char* text);
    /// Once true after a sound device could not be opened since the last call.
    bool TakeSoundFailure() { return m_soundFailed.exchange(false); }

private:
    std::mutex m_mutex;
    std::FILE* m_file;
    long m_room;
    std::atomic<bool> m_soundFailed = false;
};

} // namespace zentaro
