#include "playback/VolumeSlider.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace zentaro {

namespace {

constexpr double kKnobCentre = 3;   // pixels from the knob's left edge to where it points
constexpr double kScaleMargin = 10; // pixels of the slider that the scale leaves out
constexpr int kNotch = 120;         // eighths of a degree
constexpr int kVolumePerNotch = 5;  // percent

} // namespace

void VolumeSlider::SetScaleWidth(double width)
{
    m_scaleWidth = width;
    SetVolume(m_volume);
}

void VolumeSlider::SetVolume(int percent)
{
    m_volume = std::clamp(percent, 0, 100);
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

std::optional<int> VolumeSlider::Wheel(int eighths)
{
    // A turn back is felt at once, whatever the turn forward has left over.
    if ((eighths < 0) != (m_wheel < 0))
        m_wheel = 0;
    m_wheel += eighths;
    const int notches = m_wheel / kNotch;
    m_wheel %= kNotch;
    return StepBy(notches * kVolumePerNotch);
}

std::optional<int> VolumeSlider::StepBy(int percent)
{
    const int before = m_volume;
    if (std::clamp(before + percent, 0, 100) == before)
        return std::nullopt;
    SetVolume(before + percent);
    return m_volume;
}

} // namespace zentaro
