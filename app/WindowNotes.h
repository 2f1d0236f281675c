#pragma once

#include <QString>

#include <chrono>
#include <string>
#include <string_view>

class QImage;
class QRect;
class QWidget;

namespace zentaro {

class NoteBox;
class Player;
struct Command;

/// The short lines over the video: what has happened, and the volume and speed where nothing else shows them.
class WindowNotes {
public:
    /// `content` holds the video, and what stands in its place.
    WindowNotes(Player& player, QWidget& video, QWidget& content);

    NoteBox& Box() { return *m_box; }
    /// With a small copy of the picture in `file`, unless that is empty.
    void Show(const std::string& text, const std::string& file);
    /// With a button that runs the command of this id.
    void Offer(const std::string& text, std::string_view command);
    /// The wheel over the video, in eighths of a degree.
    void TurnVolume(int eighths);
    /// Volume, speed, pause or place may be new; `isAlone` where no control shows them. What is not shown is read out.
    void ShowState(bool isAlone);
    /// Files hover over the video, or have left it.
    void ShowDropTarget(bool isTarget);
    /// The video has moved.
    void Place();

private:
    struct News {
        QString shown;
        QString spoken;
    };
    QRect Area() const;
    QString VolumeText() const;
    std::string PlaceText() const;
    void ShowChange(const QString& text);
    /// What is new; empty where nothing is.
    News NewState();

    Player& m_player;
    QWidget& m_video;
    QWidget& m_content;
    NoteBox* m_box;
    QString m_shownVolume;
    double m_shownRate = 1;
    bool m_shownPause = false;
    int m_shownSeeks = 0;
    const Command* m_offered = nullptr;
};

} // namespace zentaro
