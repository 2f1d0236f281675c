#pragma once

#include "playback/Engine.h"

#include <functional>
#include <memory>
#include <optional>

namespace zentaro {

struct ExpectedItem {
    MediaLocation location;
    EngineOptions options;
    bool operator==(const ExpectedItem&) const = default;
};

/// Owns the engine of the current item. At most one exists; every item gets a fresh one, so that nothing but the
/// window's own volume and mute carries over.
class EngineHost {
public:
    explicit EngineHost(EngineFactory& factory);

    /// Full screen is the window's business; it is asked through this.
    std::function<void(bool)> onFullScreen;

    void AddVLCPLayer();
    void RemoveVLCPlayer();
    /// Null before the first item.
    Engine* VLCPlayer() const { return m_engine.get(); }

    /// The item that will most likely be next, or none: its engine will have less to do.
    void Expect(std::optional<ExpectedItem> item);

    int Volume() const { return m_volume; } ///< 0 to 100
    void SetVolume(int percent);
    /// Percent of the full volume, 100 to kMostBoost: for what is too soft at 100.
    int Boost() const { return m_boost; }
    void SetBoost(int percent);
    static constexpr int kMostBoost = 150;
    bool IsMuted() const { return m_muted; }
    void ToggleMute();

    void SetFullScreen(bool fullScreen);
    /// A fresh engine counts as not full screen, whatever the window shows.
    void ToggleFullScreen();
    /// The window has left full screen by itself.
    void FullScreenLeft() { m_fullScreen = false; }

private:
    EngineFactory& m_factory;
    std::unique_ptr<Engine> m_engine;
    std::optional<ExpectedItem> m_expected;
    int m_volume = 100;
    int m_boost = 100;
    bool m_muted = false;
    bool m_fullScreen = false;
};

} // namespace zentaro
