#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zentaro::live {

/// What a reading of the engine says about the end of the item.
struct Reading {
    int state = 0;
    double position = 0;
    double time = 0;   ///< ms
    double length = 0; ///< ms
    bool IsEnd() const;
    bool IsFailure() const;
};

/// A player's state and what each command does to it, said a second time and without a player.
struct Replay {
    std::vector<std::string> chosen; ///< what the open dialog answers
    std::vector<std::string> entries;
    std::vector<int> order;
    int position = -1;
    int selected = -1;
    bool enabled = false;
    std::int32_t playMode = 1;
    std::int32_t repeatMode = 2;
    double rate = 1;
    double engineRate = 1;
    bool fastForwards = false;
    bool rewinds = false;
    bool muted = false;
    int volume = 100;
    int afterPlay = 0;
    std::vector<std::string> played;
    int restarts = 0;
    int powerOffs = 0;
    int closes = 0;
    int notes = 0;
    /// Whether the menus' items are enabled, by key.
    std::map<std::string, bool> items;

    Replay();
    int Count() const { return static_cast<int>(entries.size()); }
    void PlayItem(int index);
    void Play();
    void Stop();
    void ReleaseHeld();
    void Step(int by);
    void Faster();
    void Slower();
    void NormalSpeed();
    /// What the menu's items do beside the same operations; nothing while they are disabled.
    void StopItem();
    void PlayPauseItem();
    void RemoveItem();
    void RemoveAllItem();
    void Load(const std::string& path, bool playNow);
    void Remove();
    void RemoveAll();
    void Select(int index);
    void DoubleClick();
    void SetPlayMode(std::int32_t mode);
    void Tick(const Reading& reading);

    /// The order was built anew. A shuffle is random: its table is to be taken from the player.
    bool isShuffled = false;

private:
    void SetRate(double value);
    void Enable(std::initializer_list<const char*> keys, bool enable);
    void EnableMediaControls(bool enable);
    void BuildOrder();
    void SetPosition(int at) { position = at >= 0 && at < Count() ? at : -1; }
    void StopAndAct();

    int m_failures = 0;
};

} // namespace zentaro::live
