#pragma once

#include "app/Music.h"
#include "playback/SmoothClock.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace zentaro {

class MusicView;
class Player;
class VideoFrame;

/// Shows the song that plays over the picture that stands for sound, and lets its bars move.
class MusicStage : public QObject {
    Q_OBJECT

public:
    /// `artPath`: as MusicView.
    MusicStage(Player& player, Music& music, VideoFrame& video, const QString& artPath);

    /// The player's state has changed.
    void Follow();

private:
    std::optional<PlaylistEntry> PlayingSong() const;
    bool MayMove() const;
    void Tick();

    Player& m_player;
    Music& m_music;
    MusicView* m_view;
    std::uint64_t m_shown = 0; // the song's id; 0 for none
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    SmoothClock m_clock;
};

} // namespace zentaro
