#pragma once

#include <QPointer>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

struct libvlc_event_t;
struct libvlc_instance_t;
struct libvlc_media_player_t;
struct libvlc_media_t;

namespace zentaro {

class PictureSink;
class VideoSurface;
class VlcLog;

/// Counts the items that are still ending.
class VlcEndings {
public:
    void Begin();
    void End();
    bool AreAny() const;
    /// At most `time`, until there are none.
    void Wait(std::chrono::milliseconds time);

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
};

/// The library as one item uses it. What stands first is needed longest.
struct VlcLibrary {
    std::shared_ptr<VlcLog> log;
    std::shared_ptr<libvlc_instance_t> instance;
};

/// One item in a player of the library, on a surface of its own, and all that the two need until the player has ended.
/// UI thread, but for its destructor.
class VlcItem {
public:
    /// Called on the engine's threads.
    struct Events {
        std::function<void()> onPlaying; ///< whenever it begins to play or goes on after a pause
        std::function<void()> onOver;    ///< it has come to its end, or has failed
    };

    /// Takes over the media and the surface. Player() is null when the library cannot make one.
    VlcItem(VlcLibrary library, libvlc_media_t* media, VideoSurface* surface, Events events);
    /// Stops the player, which takes as long as a read that is under way.
    ~VlcItem();
    VlcItem(const VlcItem&) = delete;
    VlcItem& operator=(const VlcItem&) = delete;

    libvlc_media_player_t* Player() const { return m_player; }
    /// Opens it and holds it at its beginning, with the first picture drawn as soon as there is one. Its surface was
    /// made hidden.
    void GetReady();
    /// Lets it go on from there.
    void GoOn();
    /// For an item whose surface was made hidden.
    void ShowSurface();
    /// One of Engine's numbers.
    int State() const;

    /// Lets it end elsewhere: from now on nothing of it is seen or heard. Nobody waits for it, not even the end of the
    /// process.
    static void End(std::unique_ptr<VlcItem> item, std::shared_ptr<VlcEndings> endings);

private:
    /// How far it is made ready.
    enum class Stage {
        Free,     ///< it is not, or no longer
        Opening,  ///< paused, it reads what it needs
        Starting, ///< it plays, unheard, until it has an output
        Standing, ///< paused again, with its first picture
    };
    struct Held;

    void Step(Stage from, Stage to);
    static void OnEvent(const libvlc_event_t* event, void* item);
    void ListenToEvents(bool listens);
    void AttachSurface();
    bool HasDecoded() const;
    void Vanish();

    VlcLibrary m_library;
    libvlc_media_t* m_media;
    QPointer<VideoSurface> m_surface;
    std::shared_ptr<PictureSink> m_sink;
    Events m_events;
    std::shared_ptr<Held> m_held;
    libvlc_media_player_t* m_player;
    std::atomic<bool> m_hasFailed = false;
    std::atomic<bool> m_isOver = false;
};

} // namespace zentaro
