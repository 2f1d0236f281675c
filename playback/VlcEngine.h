#pragma once

#include "playback/Engine.h"
#include "playback/VlcItem.h"
#include "playback/VlcLog.h"

#include <chrono>
#include <future>
#include <memory>
#include <optional>
#include <string>

namespace zentaro {

class VideoFrame;
class VlcEngine;

/// Makes engines that play through libVLC 3. UI thread only.
class VlcEngines final : public EngineFactory {
public:
    /// `logPath`: the file for the library's messages.
    VlcEngines(VideoFrame& frame, const std::string& logPath);
    /// A moment is left to the items that are ending, no more.
    ~VlcEngines() override;

    Result<void> Prepare() override;
    void MakeReady(const MediaLocation& location, const EngineOptions& options) override;
    void Forget() override;
    std::unique_ptr<Engine> Create() override;
    void SetSubtitleScale(int percent) override { m_subtitleScale = percent; }

private:
    friend class VlcEngine;
    using Instance = std::shared_ptr<libvlc_instance_t>;

    /// An engine's own place, which late calls look at: null while no engine has the item, or no longer.
    using Owner = std::shared_ptr<VlcEngine*>;
    struct OpenItem {
        std::shared_ptr<libvlc_instance_t> instance = {};
        std::unique_ptr<VlcItem> item = {};
        Owner owner = {};
    };
    /// One that is made ready for an engine to come.
    struct ReadyItem {
        MediaLocation location;
        EngineOptions options;
        OpenItem open;
    };

    /// `isReady`: the item stays paused and unseen. Without an item where the library makes none.
    OpenItem OpenNew(const MediaLocation& location, const EngineOptions& options, Owner owner, bool isReady);
    /// The item that was made ready, if it is that one. Any other is forgotten.
    OpenItem TakeReady(const MediaLocation& location, const EngineOptions& options);
    VlcLibrary NewLibrary();
    void End(std::unique_ptr<VlcItem> item);
    void WaitForEndings();
    /// False for a while after the device could not be opened: each try costs time and fills the log.
    bool MayTrySound();

    VideoFrame& m_frame;
    std::shared_ptr<VlcLog> m_log;
    std::shared_ptr<VlcEndings> m_endings;
    /// Holds the library's plug-in list in memory for the whole run; an instance beside it costs about a millisecond.
    std::shared_future<Instance> m_base;
    int m_subtitleScale = 100; // percent
    bool m_plainOutput = false;
    std::chrono::steady_clock::time_point m_silentUntil;
    std::optional<ReadyItem> m_ready;
};

} // namespace zentaro
