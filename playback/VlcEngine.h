#pragma once

#include "playback/Engine.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <memory>
#include <mutex>
#include <string>

struct libvlc_instance_t;

namespace zentaro {

class VideoFrame;

/// Where the engine library's own messages go: a file of limited size, never the terminal.
class VlcLog {
public:
    explicit VlcLog(const std::string& path);
    ~VlcLog();

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

/// Makes engines that play through libVLC 3. UI thread only.
class VlcEngines final : public EngineFactory {
public:
    /// `logPath`: the file for the library's messages.
    VlcEngines(VideoFrame& frame, const std::string& logPath);
    ~VlcEngines() override;

    void Prepare() override;
    std::unique_ptr<Engine> Create() override;

private:
    friend class VlcEngine;
    using Instance = std::shared_ptr<libvlc_instance_t>;

    Instance NewInstance();
    /// False for a while after the device could not be opened: each try costs time and fills the log.
    bool MayTrySound();

    VideoFrame& m_frame;
    VlcLog m_log;
    /// Holds the library's plug-in list in memory for the whole run; an instance beside it costs about a millisecond.
    std::shared_future<Instance> m_base;
    bool m_plainOutput = false;
    std::chrono::steady_clock::time_point m_silentUntil;
};

} // namespace zentaro
