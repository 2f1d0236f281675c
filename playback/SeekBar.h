#pragma once

#include <optional>
#include <string>

namespace zentaro {

/// The seek bar: a track and a filled part over its left end, whose width is all that the bar remembers. X counts in
/// pixels from the track's left edge. The bar never touches the engine: where it answers with a position (0.0 to 1.0),
/// the engine is to be set to it.
class SeekBar {
public:
    double TrackWidth() const { return m_trackWidth; } ///< pixels
    double FillWidth() const { return m_fillWidth; }   ///< pixels
    /// The filled part keeps its share.
    void SetTrackWidth(double width);
    /// 0 to 100; what lies outside counts as the nearest of them.
    void SetProgress(int percent);

    /// Whether the pointer meets the filled part or the bare track.
    bool IsOnFill(double x) const { return x < m_fillWidth; }
    /// A press or a move. A drag that leaves the bar on the left goes to the start.
    std::optional<double> PointerOnFill(double x, bool leftButton, bool mediaControlsEnabled);
    /// Any other button than the left seeks to where the filled part already ends.
    std::optional<double> PressOnTrack(double x, bool leftButton, bool mediaControlsEnabled);
    std::optional<double> MoveOnTrack(double x, bool leftButton, bool mediaControlsEnabled);

    /// A key steps by `milliseconds`, back when below 0, from the engine's position in an item of `length` ms (0 or
    /// below while unknown: then the step is a hundredth of the item). A step past the end lands just before it.
    std::optional<double> StepBy(double milliseconds, double position, double length, bool mediaControlsEnabled);
    /// A key jumps to a fraction of the item.
    std::optional<double> JumpTo(double fraction, bool mediaControlsEnabled);

    /// The time that a press here would seek to; empty where it would not, and while the length (ms) is unknown.
    std::string TimeUnder(double x, double length, bool mediaControlsEnabled) const;

private:
    bool CanSeek(double x, bool mediaControlsEnabled) const;
    std::optional<double> FillTo(double x);

    double m_trackWidth = 0;
    double m_fillWidth = 0;
};

} // namespace zentaro
