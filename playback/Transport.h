#pragma once

#include "playback/EngineHost.h"
#include "playback/HeldButtons.h"
#include "playback/PlaybackRate.h"
#include "playback/PositionTick.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// What the transport was given to play.
struct TransportItem {
    enum class Kind {
        File,
        Disc,      ///< a disc's location, as it stands in the list
        DriveDisc, ///< a disc chosen by its drive: play goes on in the same engine
    };
    Kind kind = Kind::File;
    std::string path;     ///< the current item path
    std::string name;     ///< names the folder of its snapshots
    bool hasVideo = true; ///< as far as is known before it plays

    bool IsDisc() const { return kind != Kind::File; }
};

/// Everything that is shown about the loaded item, the sound and the speed.
struct TransportState {
    bool mediaControlsEnabled = false; ///< an item is loaded
    bool hasVideoOutput = false;
    bool isWatched = false; ///< a video is playing: somebody may be watching
    bool showAudioLogo = false;
    bool isPaused = false;    ///< or will be as soon as it plays
    bool isRewinding = false; ///< Transport::OnRewindTick is due every 10 ms
    bool isMuted = false;
    int volume = 100;      ///< 0 to 100
    int boost = 100;       ///< percent of the full volume, 100 or more
    double progress = 0;   ///< the share of the item that the seek bar shows as played, 0 to 1
    double elapsed = 0;    ///< ms
    double length = 0;     ///< ms; 0 or below while unknown
    std::string timeText;  ///< elapsed and total, or a word in their place
    std::string rateText;  ///< the rate label
    double chosenRate = 1; ///< as PlaybackRate::Value
    int seeks = 0;         ///< how often a place was chosen in this item
    std::vector<DiscPart> chapters;

    bool operator==(const TransportState&) const = default;
};

/// Where the loaded item is, to be read out: "0:42 of 1:30:05", "0:42" of an unknown length; with none what the label
/// says.
std::string PlaceText(const TransportState& state);

/// Hears what a transport does.
class TransportObserver {
public:
    virtual ~TransportObserver() = default;
    /// Said for every item that is loaded, and for every end and stop: what can be done follows.
    virtual void MediaControlsSet(bool enabled) = 0;
    /// The rate commands that can be used have changed.
    virtual void RateChanged(const RateChange& change) = 0;
    /// What is shown has changed.
    virtual void TransportChanged() = 0;
};

/// How an item has ended.
struct ItemEnd {
    bool isDisc = false;
    bool hasFailed = false; ///< it never played at all
};

/// The buttons of a player over the engine of the present item: it starts, pauses, seeks, stops and says where it is.
class Transport {
public:
    /// `showFullScreen` lets the window fill the screen or leave it.
    Transport(EngineFactory& engines, std::function<void(bool)> showFullScreen, TransportObserver& observer);

    const TransportState& State() const { return m_state; }
    const TransportItem& Item() const { return m_item; }
    /// Another number after every opening and every stop: what was begun before is out of date.
    std::uint64_t Generation() const { return m_generation; }
    /// Null while nothing is loaded.
    Engine* LoadedEngine() const;
    EngineHost& Host() { return m_host; }

    /// Gives the item to a fresh engine; false when there is none that takes it.
    bool Open(TransportItem item, const MediaLocation& location, const EngineOptions& options);
    /// The engine plays what it was given.
    void Play();
    /// What counts for an item that was started: controls on, normal speed, "Loading..." until it plays.
    /// `speedStays`: the chosen speed goes on.
    void ItemStarted(bool speedStays = false);

    void CMDPauseClick();
    void cmdStopClick();
    void cmdffMouseDown();
    void cmdffMouseUp();
    void RewindPressed();
    void RewindReleased();
    void OnRewindTick();
    /// What is held counts as released: the window has lost the focus, an item begins or ends.
    void ReleaseHeldButtons();
    /// 0.0 to 1.0; nothing while nothing is loaded.
    void Seek(double position);
    /// ms, back when below 0; never past the end.
    void SeekBy(int milliseconds);

    /// Clamped to 0 to 100.
    void SetVolume(int percent);
    /// As EngineHost::SetBoost: the full volume and more.
    void SetBoost(int percent);
    /// The wheel, wherever it stands for the volume: in eighths of a degree, 120 to a notch, as fine as it comes.
    void TurnVolume(int eighths);
    void cmdMuteClick();
    void IncreaseRate();
    void DecreaseRate();
    /// Steps of 0.05, down for less than 0; nothing while nothing is loaded.
    void StepRate(int steps);
    /// Nothing while nothing is loaded.
    void ResetRate();

    /// The position timer, every 500 ms: reads the engine. Says so when the item has ended, once.
    std::optional<ItemEnd> OnPositionTick();
    /// The engine alone says when an item ends, not its clock.
    void LetEngineEndItems(bool on) { m_engineEndsItems = on; }
    /// Whether the window can be seen. A film that nobody sees plays on by its sound alone, after a while.
    void SetSeen(bool seen);
    /// A word in place of the time, until the next tick.
    void ShowWord(const std::string& word);
    void ShowIdle();

private:
    void EnableMediaControls(bool enabled);
    void ApplyRate(const RateChange& change);
    void SetEngineRate(std::optional<double> rate);
    void ShowRate(bool isLoading);
    EngineReading Read() const;
    void SpareUnseen();

    EngineHost m_host;
    TransportObserver& m_observer;
    TransportState m_state;
    TransportItem m_item;
    PlaybackRate m_rate;
    HeldButtons m_held;
    std::uint64_t m_generation = 0;
    bool m_engineEndsItems = false;
    bool m_isSeen = true;
    int m_unseenTicks = 0; // of the position timer
    int m_wheel = 0;       // eighths of a degree that have not made a notch yet
};

} // namespace zentaro
