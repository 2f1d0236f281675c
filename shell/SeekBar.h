#pragma once

#include <optional>
#include <string>

namespace zentaro {

/// The arithmetic of the seek bar: a track and a filled part over its left end, whose width is all that the bar
/// remembers. X counts in pixels from the track's left edge. Where a function answers with a position (0.0 to 1.0), the
/// engine is to be set to it.
class SeekBar {
public:
    double TrackWidth() const { return m_trackWidth; } ///< pixels
    double FillWidth() const { return m_fillWidth; }   ///< pixels
    /// The filled part keeps its share.
    void SetTrackWidth(double width);
    /// 0 to 100; what lies outside counts as the nearest of them.
    void SetProgress(double percent);

    /// Whether the pointer meets the filled part or the bare track.
    bool IsOnFill(double x) const { return x < m_fillWidth; }
    /// A press or a move. A drag that leaves the bar on the left goes to the start.
    std::optional<double> PointerOnFill(double x, bool leftButton, bool mediaControlsEnabled);
    /// Any other button than the left seeks to where the filled part already ends.
    std::optional<double> PressOnTrack(double x, bool leftButton, bool mediaControlsEnabled);
    std::optional<double> MoveOnTrack(double x, bool leftButton, bool mediaControlsEnabled);

    /// The time that a press here would seek to; empty where it would not, and while the length (ms) is unknown.
    std::string TimeUnder(double x, double length, bool mediaControlsEnabled) const;

private:
    bool CanSeek(double x, bool mediaControlsEnabled) const;
    std::optional<double> FillTo(double x);

    double m_trackWidth = 0;
    double m_fillWidth = 0;
};

} // namespace zentaro
