#include "shell/VolumeSlider.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace zentaro {

namespace {

constexpr double kKnobCentre = 3;   // pixels from the knob's left edge to where it points
constexpr double kScaleMargin = 10; // pixels of the slider that the scale leaves out

} // namespace

void VolumeSlider::SetScaleWidth(double width)
{
    m_scaleWidth = width;
    PlaceKnob();
}

void VolumeSlider::SetVolume(int percent)
{
    if (percent == m_volume)
        return;
    m_volume = std::clamp(percent, 0, 100);
    PlaceKnob();
}

void VolumeSlider::PlaceKnob()
{
    // The first pixel that means this volume.
    m_knobLeft = std::ceil(m_volume * std::max(m_scaleWidth - kScaleMargin, 0.0) / 100);
}

std::optional<int> VolumeSlider::PointerOnSlider(double x)
{
    const double range = m_scaleWidth - kScaleMargin;
    if (range <= 0)
        return std::nullopt;
    // Divided last: a hundredth of the range can fall just short of its whole number otherwise.
    const int volume = RoundDown((x - kKnobCentre) * 100 / range);
    if (volume < 0 || volume > 100)
        return std::nullopt;
    m_knobLeft = x - kKnobCentre;
    m_volume = volume;
    return volume;
}

} // namespace zentaro
