#pragma once

#include "base/Result.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

/// The nine option texts that go to the engine with every item, by their fixed index.
using EngineOptions = std::array<std::string, 9>;

/// What an engine is to play: a file's plain path, or a location such as "dvd:///media/disc".
struct MediaLocation {
    std::string text;
    bool isLocation = false;
    bool operator==(const MediaLocation&) const = default;
};

/// What a user presses in the menu of a disc.
enum class DiscKey { Activate, Up, Down, Left, Right };

/// A title of a disc or a chapter of a title.
struct DiscPart {
    std::string name;  ///< empty for most
    double length = 0; ///< ms; 0 or below while unknown
    double start = 0;  ///< ms from the beginning of the title, of a chapter; 0 for all while unknown

    bool operator==(const DiscPart&) const = default;
};

/// A track of sound or subtitles; below 0 it stands for none.
struct EngineTrack {
    int id = -1;
    std::string name;
};

/// The media engine of one item. Reads answer at once with the engine's present view; a call that the engine cannot
/// follow changes nothing.
class Engine {
public:
    /// State values that the program compares with; below kPlaying the item is still being opened or buffered.
    static constexpr int kOpening = 1;
    static constexpr int kPlaying = 3;
    static constexpr int kPaused = 4;
    static constexpr int kStopped = 5;
    static constexpr int kEnded = 6;
    static constexpr int kFailed = 7; ///< over, and nothing of it was ever seen or heard

    /// The engine decides by the video.
    static constexpr const char* kDeinterlaceAuto = "auto";

    virtual ~Engine() = default;

    // audio
    virtual void SetVolume(int percent) = 0; ///< 0 to 100; above, the sound is made louder than it is
    virtual void SetMute(bool muted) = 0;

    /// ms, later for more than 0; 0 for a fresh engine.
    virtual int AudioDelay() { return 0; }
    virtual void SetAudioDelay(int /*milliseconds*/) { }

    virtual std::vector<EngineTrack> AudioTracks() { return {}; }
    virtual int AudioTrack() { return -1; }
    virtual void SetAudioTrack(int /*id*/) { }

    // video
    virtual std::vector<EngineTrack> SubtitleTracks() { return {}; }
    virtual int SubtitleTrack() { return -1; }
    virtual void SetSubtitleTrack(int /*id*/) { }
    /// Shows the subtitles of a file from now on; false when it cannot be opened.
    virtual bool AddSubtitleFile(const std::string& /*path*/) { return false; }
    virtual int SubtitleDelay() { return 0; } ///< as AudioDelay
    virtual void SetSubtitleDelay(int /*milliseconds*/) { }
    /// Holds the video and shows its next picture.
    virtual void NextFrame() { }
    /// Such as "16:9"; empty for the video's own.
    virtual std::string AspectRatio() { return {}; }
    virtual void SetAspectRatio(const std::string& /*ratio*/) { }
    /// kDeinterlaceAuto until something else was chosen, empty while off, else the name of a filter.
    virtual std::string Deinterlacing() { return kDeinterlaceAuto; }
    /// Empty or the name of a filter; there is no way back to kDeinterlaceAuto.
    virtual void SetDeinterlacing(const std::string& /*filter*/) { }

    // input
    virtual double Length() = 0;                   ///< ms; 0 or below while unknown
    virtual double Time() = 0;                     ///< ms
    virtual double Position() = 0;                 ///< 0.0 to 1.0
    virtual void SetPosition(double position) = 0; ///< 0.0 to 1.0
    virtual int State() = 0;
    virtual double Rate() = 0; ///< 1.0 is normal speed
    virtual void SetRate(double rate) = 0;
    virtual bool HasVideoOutput() = 0;
    /// While nobody sees its pictures it need not make any; what it is asked for stays as if it did.
    virtual void SetSeen(bool /*seen*/) { }

    // video
    /// Writes the present picture, in the video's own size, to a new PNG file of that full path. False when there is no
    /// picture; a file that cannot be written is only missing afterwards.
    virtual bool TakeSnapshot(const std::string& file) = 0;

    // discs; chapters also of files
    virtual void Navigate(DiscKey key) = 0;
    virtual std::vector<DiscPart> Titles() = 0;
    virtual int Title() = 0; ///< index of the present one, below 0 when there is none
    virtual void SetTitle(int index) = 0;
    virtual std::vector<DiscPart> Chapters() = 0; ///< of the present title
    virtual int Chapter() = 0;
    virtual void SetChapter(int index) = 0;

    // playlist
    virtual void Add(const MediaLocation& location, const EngineOptions& options) = 0;
    virtual void Play() = 0;
    virtual void TogglePause() = 0;
    /// Holds the item, or lets it go on. Holding takes effect once it plays, if that is still to come.
    virtual void SetPause(bool paused) = 0;
    /// Never waits for the source; played again, the item starts afresh.
    virtual void Stop() = 0;
    virtual int ItemCount() = 0;
};

/// Makes the engine of the next item, together with the surface that it draws on.
class EngineFactory {
public:
    virtual ~EngineFactory() = default;
    /// The first item will come soon; only the first call counts. Fails, with what the user can do, where the engine
    /// library is missing.
    virtual Result<void> Prepare() { return {}; }
    /// In percent of the usual size, for the engines to come.
    virtual void SetSubtitleScale(int /*percent*/) { }
    /// That item may be played next: it is opened at once, unseen and unheard, for the engine that is given the same.
    virtual void MakeReady(const MediaLocation& /*location*/, const EngineOptions& /*options*/) { }
    /// The item that was made ready will not be played; nothing of it is left.
    virtual void Forget() { }
    /// Null when the engine library cannot be started.
    virtual std::unique_ptr<Engine> Create() = 0;
};

} // namespace zentaro
