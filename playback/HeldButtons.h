#pragma once

#include <optional>

namespace zentaro {

/// The two buttons that act while they are held. Fast forward works by the engine's rate, rewind by stepping its
/// position.
class HeldButtons {
public:
    /// The rate for the engine; the rate that the user has chosen stays.
    std::optional<double> PressFastForward();
    /// As above; nothing when it was not held, so that an end that comes twice leaves a later rate alone.
    std::optional<double> ReleaseFastForward();

    void PressRewind(bool mediaControlsEnabled) { m_isRewinding = mediaControlsEnabled; }
    void ReleaseRewind() { m_isRewinding = false; }
    /// While it is true, RewindTick is due every 10 ms.
    bool IsRewinding() const { return m_isRewinding; }
    /// The position (0.0 to 1.0) for the engine, one thousandth of the item before its present one; nothing while that
    /// is unknown (below 0).
    std::optional<double> RewindTick(double position) const;

    /// Both end: the window has lost the focus, playback was stopped, the item has ended. Answers like
    /// ReleaseFastForward.
    std::optional<double> ReleaseAll();

private:
    bool m_isFastForwarding = false;
    bool m_isRewinding = false;
};

} // namespace zentaro
