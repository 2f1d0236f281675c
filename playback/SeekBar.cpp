#include "playback/SeekBar.h"

#include "base/Numbers.h"
#include "playback/TimeText.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr double kDeadEnd = 2;                    // pixels at the right end that do not seek
constexpr double kStepWithoutLength = 0.01;       // of the item
constexpr double kEndMargin = 500;                // ms before the end: from there an item ends by itself
constexpr double kEndMarginWithoutLength = 0.001; // of the item

} // namespace

void SeekBar::SetTrackWidth(double width)
{
    m_fillWidth = m_trackWidth > 0 ? m_fillWidth / m_trackWidth * width : 0;
    m_trackWidth = width;
}

void SeekBar::SetProgress(int percent)
{
    m_fillWidth = std::clamp(percent, 0, 100) * m_trackWidth / 100;
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

std::optional<double> SeekBar::StepBy(double milliseconds, double position, double length, bool mediaControlsEnabled)
{
    const bool isLengthKnown = length > 0;
    const double step = isLengthKnown ? milliseconds / length : (milliseconds < 0 ? -1 : 1) * kStepWithoutLength;
    const double margin = isLengthKnown ? kEndMargin / length : kEndMarginWithoutLength;
    // Who is in the margin already is not thrown back.
    const double furthest = std::max(1 - margin, position);
    return JumpTo(std::min(position + step, furthest), mediaControlsEnabled);
}

std::optional<double> SeekBar::JumpTo(double fraction, bool mediaControlsEnabled)
{
    if (!mediaControlsEnabled)
        return std::nullopt;
    // Asked of no track: where none is shown the keys go on.
    const double position = std::clamp(fraction, 0.0, 1.0);
    m_fillWidth = position * m_trackWidth;
    return position;
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
