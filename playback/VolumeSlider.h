#pragma once

#include <optional>

namespace zentaro {

/// The volume slider: where its knob stands and what it means. X counts in pixels from the slider's left edge. Where a
/// function answers with a volume (0 to 100), the engine and the number beside the slider are to show it.
class VolumeSlider {
public:
    int Volume() const { return m_volume; }
    double KnobLeft() const { return m_knobLeft; } ///< pixels

    /// The width of the slider's scale in pixels; the knob moves to where the volume lies on it.
    void SetScaleWidth(double width);
    /// Clamped to 0 to 100.
    void SetVolume(int percent);

    /// A press, or a move while any button is held. Outside the scale nothing changes: it has dead zones at both ends.
    std::optional<int> PointerOnSlider(double x);
    /// A move over the knob while a button is held; `x` counts from the knob's left edge.
    std::optional<int> PointerOnKnob(double x) { return PointerOnSlider(m_knobLeft + x); }

    /// A turn of the wheel in eighths of a degree, 120 to a notch, as fine as the device sends it.
    std::optional<int> Wheel(int eighths);
    /// A key; clamped. Nothing when the volume stays.
    std::optional<int> StepBy(int percent);

private:
    double m_scaleWidth = 0;
    double m_knobLeft = 0;
    int m_volume = 100;
    int m_wheel = 0; // eighths of a degree that have not made a notch yet
};

} // namespace zentaro
