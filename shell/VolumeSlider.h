#pragma once

#include <optional>

namespace zentaro {

/// The arithmetic of the volume slider: where its knob stands and what it means. X counts in pixels from the slider's
/// left edge.
class VolumeSlider {
public:
    int Volume() const { return m_volume; }
    double KnobLeft() const { return m_knobLeft; } ///< pixels

    /// The width of the slider's scale in pixels; the knob moves to where the volume lies on it.
    void SetScaleWidth(double width);
    /// 0 to 100. The knob stays where it is when it stands for this volume already.
    void SetVolume(int percent);

    /// A press, or a move while any button is held: the volume (0 to 100) that the engine is to be set to. Outside the
    /// scale nothing changes: it has dead zones at both ends.
    std::optional<int> PointerOnSlider(double x);

private:
    void PlaceKnob();

    double m_scaleWidth = 0;
    double m_knobLeft = 0;
    int m_volume = 100;
};

} // namespace zentaro
