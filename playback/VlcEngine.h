#pragma once

#include "playback/Engine.h"
#include "playback/VlcItems.h"

#include <string>
#include <vector>

struct libvlc_track_description_t;

namespace zentaro {

/// Plays one item. Each start of it has a player of the library of its own, and no stop is waited for. UI thread only.
class VlcEngine final : public Engine {
public:
    explicit VlcEngine(VlcItems& items);
    ~VlcEngine() override;

    void SetVolume(int percent) override;
    void SetMute(bool muted) override;
    std::vector<EngineTrack> AudioTracks() override;
    int AudioTrack() override;
    void SetAudioTrack(int id) override;
    int AudioDelay() override;
    void SetAudioDelay(int milliseconds) override;
    int SubtitleDelay() override;
    void SetSubtitleDelay(int milliseconds) override;
    void NextFrame() override;
    std::vector<EngineTrack> SubtitleTracks() override;
    int SubtitleTrack() override;
    void SetSubtitleTrack(int id) override;
    bool AddSubtitleFile(const std::string& path) override;
    std::string AspectRatio() override;
    void SetAspectRatio(const std::string& ratio) override;
    std::string Deinterlacing() override;
    void SetDeinterlacing(const std::string& filter) override;
    double Length() override;
    double Time() override;
    double Position() override;
    void SetPosition(double position) override;
    int State() override;
    double Rate() override;
    void SetRate(double rate) override;
    bool HasVideoOutput() override;
    void SetSeen(bool seen) override;
    bool TakeSnapshot(const std::string& file) override;
    void Add(const MediaLocation& location, const EngineOptions& options) override;
    void Play() override;
    void SetPause(bool paused) override;
    void TogglePause() override;
    void Stop() override;
    void Navigate(DiscKey key) override;
    std::vector<DiscPart> Titles() override;
    int Title() override;
    void SetTitle(int index) override;
    std::vector<DiscPart> Chapters() override;
    int Chapter() override;
    void SetChapter(int index) override;
    int ItemCount() override;

private:
    std::vector<EngineTrack> Tracks(libvlc_track_description_t* (*describe)(libvlc_media_player_t*)) const;
    bool Open();
    void Close();

    VlcItems& m_items;
    MediaLocation m_location;
    EngineOptions m_options;
    VlcItems::Open m_open;
    libvlc_media_player_t* m_player = nullptr; // the item's; null while it is stopped
    int m_unseenTrack = -1;                    // of the video, while it is not decoded
    bool m_isAdded = false;
    bool m_pauseWaits = false;     // until it plays
    bool m_isLeavingPause = false; // it was made ready, and does not play yet, but was told to
    std::string m_deinterlacing = kDeinterlaceAuto;
    int m_volume = 100;
    bool m_muted = false;
};

} // namespace zentaro
