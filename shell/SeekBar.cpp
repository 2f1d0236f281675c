#include "shell/SeekBar.h"

#include "base/Numbers.h"
#include "playback/TimeText.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr double kDeadEnd = 2; // pixels at the right end that do not seek

} // namespace

void SeekBar::SetTrackWidth(double width)
{
    m_fillWidth = m_trackWidth > 0 ? m_fillWidth / m_trackWidth * width : 0;
    m_trackWidth = width;
}

void SeekBar::SetProgress(double percent)
{
    m_fillWidth = std::clamp(percent, 0.0, 100.0) * m_trackWidth / 100;
}

std::optional<double> SeekBar::PointerOnFill(double x, bool leftButton, bool mediaControlsEnabled)
{
    if (!leftButton || !CanSeek(x, mediaControlsEnabled))
        return std::nullopt;
    return FillTo(x);
}

std::optional<double> SeekBar::PressOnTrack(double x, bool leftButton, bool mediaControlsEnabled)
{
    if (!CanSeek(x, mediaControlsEnabled))
        return std::nullopt;
    return FillTo(leftButton ? x : m_fillWidth);
}

std::optional<double> SeekBar::MoveOnTrack(double x, bool leftButton, bool mediaControlsEnabled)
{
    return leftButton ? PressOnTrack(x, leftButton, mediaControlsEnabled) : std::nullopt;
}

std::string SeekBar::TimeUnder(double x, double length, bool mediaControlsEnabled) const
{
    if (length <= 0 || !CanSeek(x, mediaControlsEnabled))
        return {};
    return TimeText(RoundHalfEven(std::max(x, 0.0) / m_trackWidth * length / 1000));
}

bool SeekBar::CanSeek(double x, bool mediaControlsEnabled) const
{
    return mediaControlsEnabled && m_trackWidth > 0 && x < m_trackWidth - kDeadEnd;
}

std::optional<double> SeekBar::FillTo(double x)
{
    m_fillWidth = std::max(x, 0.0);
    return m_fillWidth / m_trackWidth;
}

} // namespace zentaro
