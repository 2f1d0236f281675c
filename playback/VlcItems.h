#pragma once

#include "base/Result.h"
#include "playback/Engine.h"
#include "playback/VlcItem.h"
#include "playback/VlcLog.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>

namespace zentaro {

class VideoFrame;

/// The items that are open in the library, and what they share: the library itself, the surfaces, the sound device.
/// UI thread only.
class VlcItems {
public:
    /// An item and what it plays with; all empty where the library makes none.
    struct Open {
        std::shared_ptr<libvlc_instance_t> instance = {};
        std::unique_ptr<VlcItem> item = {};
        /// Called on the UI thread whenever the item begins to play or goes on, until this is gone.
        std::shared_ptr<std::function<void()>> onPlaying = {};
        std::shared_ptr<void> taken = {}; ///< while an engine has it
        bool isReady = false;             ///< it is paused at its beginning
        bool isBeside = false;            ///< it was made ready while another one played

        /// Null while there is no item.
        libvlc_media_player_t* Player() const { return item ? item->Player() : nullptr; }
    };

    /// `logPath`: the file for the library's messages.
    VlcItems(VideoFrame& frame, const std::string& logPath);
    /// A moment is left to the items that are ending, no more.
    ~VlcItems();

    /// Brings the library up beside the window; only the first call counts.
    Result<void> Prepare();
    /// Waits for that. False where the library cannot be started.
    bool IsPrepared();
    /// Opens the item for a Take() that may come, paused and unseen.
    void MakeReady(const MediaLocation& location, const EngineOptions& options);
    /// What was made ready, if it is that item. It is shown from now on; any other is forgotten, and a new one made.
    Open Take(const MediaLocation& location, const EngineOptions& options);
    void Forget();
    /// From now on nothing of it is seen or heard.
    void End(Open open);
    /// Called whenever an item that has not been ended has come to its end, or has failed.
    void OnOver(std::function<void()> hear) { *m_onOver = std::move(hear); }
    /// In percent of the usual size, for the items to come.
    void SetSubtitleScale(int percent) { m_subtitleScale = percent; }

private:
    /// One that is made ready for an engine to come.
    struct Ready {
        MediaLocation location;
        EngineOptions options;
        Open open;
    };

    Open New(const MediaLocation& location, const EngineOptions& options, bool isReady);
    VlcLibrary NewLibrary();
    /// False for a while after the device could not be opened: each try costs time and fills the log.
    bool MayTrySound();

    VideoFrame& m_frame;
    std::shared_ptr<VlcLog> m_log;
    std::shared_ptr<VlcEndings> m_endings;
    /// Holds the library's plug-in list in memory for the whole run; an instance beside it costs about a millisecond.
    std::shared_future<std::shared_ptr<libvlc_instance_t>> m_base;
    std::shared_ptr<std::function<void()>> m_onOver = std::make_shared<std::function<void()>>();
    int m_subtitleScale = 100; // percent
    bool m_plainOutput = false;
    std::shared_ptr<void> m_taken = std::make_shared<int>(); // every item that is taken has it, too
    std::chrono::steady_clock::time_point m_silentUntil;
    std::optional<Ready> m_ready;
};

} // namespace zentaro
