#pragma once

#include "base/Geometry.h"

#include <array>
#include <cstddef>
#include <span>

namespace zentaro {

/// The skin's buttons by their fixed index.
enum class Button {
    Play,
    Pause,
    Stop,
    FastForward,
    Rewind,
    Next,
    Previous,
    FullScreen,
    Snapshot,
    PlayList,
    Dvd,
    Open,
    SoundOn,
    SoundOff,
    Minimize,
    Maximize,
    Close,
    PushButton,
};

/// Values of `PlayerSettings::PlaylistPosition`; hidden is never stored.
enum class PlaylistDock { Left, Right, Top, Bottom, Whole, Hidden };

/// Where the parts of the main window lie, in pixels of its client area, for one client size. Painting, hit testing and
/// the child widgets all ask here. Below the smallest size some rectangles have negative sizes and hold nothing.
class WindowLayout {
public:
    static constexpr int kMinimumWidth = 360;
    static constexpr int kMinimumHeight = 320;
    static constexpr int kFirstWidth = 388;
    static constexpr int kFirstHeight = 515;
    static constexpr int kPanelHeight = 147; // the bottom control panel
    static constexpr int kResizeBorder = 8;
    static constexpr int kLeastPress = 24; // what takes a press, each way; also in the bar and at the splitter

    WindowLayout(int width, int height)
        : m_width(width)
        , m_height(height)
    {
    }

    Rect TitleBar() const { return { 0, 0, m_width, 31 }; }
    /// Where a button is drawn. The two sound buttons share one place; the push-button face of the dialogs has none
    /// here.
    Rect ButtonRect(Button button) const;
    /// Where it takes a press: at least `kLeastPress` in both directions.
    Rect PressRect(Button button) const;
    Rect Icon() const { return { 3, 3, 24, 24 }; }
    Rect Caption() const { return { 32, 3, m_width - 110, 24 }; }
    Rect MenuStrip() const { return { 15, 31, m_width - 15, 26 }; }
    /// The splitter's place: the video and the playlist share it.
    Rect Content() const { return { 15, 57, m_width - 31, m_height - 204 }; }
    Rect Panel() const { return { 0, m_height - kPanelHeight, m_width, kPanelHeight }; }
    Rect TimeLabel() const { return { 45, PanelTop() + 12, (m_width - 93) / 2, 22 }; }
    Rect RateLabel() const { return { TimeLabel().Right(), PanelTop() + 12, m_width - 48 - TimeLabel().Right(), 22 }; }
    /// Higher than what is painted: a finger or a trembling hand meets it, too.
    Rect SeekTrack() const { return { 45, PanelTop() + 34, m_width - 93, 24 }; }
    /// Right of the sound button.
    Rect VolumeSlider() const { return { m_width - 78, m_height - 29, 44, 24 }; }
    Rect VolumeNumber() const { return { m_width - 30, m_height - 27, 24, 20 }; }

    /// Which edges of the frameless window a pointer takes hold of.
    struct Edges {
        bool left = false;
        bool top = false;
        bool right = false;
        bool bottom = false;
        bool Any() const { return left || top || right || bottom; }
        bool operator==(const Edges&) const = default;
    };
    Edges EdgesAt(int x, int y) const;

private:
    int PanelTop() const { return m_height - kPanelHeight; }

    int m_width;
    int m_height;
};

/// Where the controls lie in the bar of full screen, which is as wide as the screen. On a narrow one it goes without
/// some, so that the seek track keeps its use: their places are empty.
class BarLayout {
public:
    static constexpr int kHeight = 56;
    static constexpr int kLeastTrack = 120; // px, from a width of 480 on

    explicit BarLayout(int width);

    /// What takes a press; empty for a button that the bar does not have.
    Rect ButtonRect(Button button) const;
    /// The button's picture, where `middle` of its height, 0 to 1, lies in the middle of the bar: in their pictures the
    /// signs stand at different heights.
    Rect PictureRect(Button button, double middle) const;
    Rect TimeLabel() const { return m_time; }
    Rect SeekTrack() const { return m_track; }
    Rect VolumeSlider() const { return m_slider; }
    Rect VolumeNumber() const { return m_number; }

private:
    /// What goes, in this order: the later ones only after all before.
    enum class Fold { Nothing, Number, Slider, HeldButtons, Stop, Neighbours };

    void Place(Fold fold);
    int PlaceButtons(Fold fold);

    int m_width;
    std::array<Rect, static_cast<std::size_t>(Button::PushButton)> m_buttons{};
    Rect m_time;
    Rect m_track;
    Rect m_slider;
    Rect m_number;
};

/// In pixels.
struct Extent {
    int width = 0;
    int height = 0;
};

/// How the video and the list beside it share the room along the line on which they lie.
struct PaneShare {
    static constexpr int kSplitter = 6;                                  // px, between the two
    static constexpr int kReach = WindowLayout::kLeastPress - kSplitter; // px of the video, that take hold of it, too

    int list = 0;    ///< px, the list's usual share; 0: there is no room for one
    int minimum = 0; ///< px, below which the splitter makes neither of them
};
/// `room`: px, for both and the splitter.
PaneShare SharePanes(int room);

/// The screen that the window shares most with; the first when it shares nothing. `screens` is not empty.
const Rect& ScreenOf(const Rect& window, std::span<const Rect> screens);

/// The window's rectangle, moved so that all of it lies on the screen that it shares most with, else on the first. Its
/// size stays, unless it is larger than that screen.
Rect MoveOntoScreen(Rect window, std::span<const Rect> screens);

/// The window in which a film of that size is shown as it is, around the same middle: with what it has around a film of
/// size `shown` now. On a screen with less room the film is smaller, in its shape.
Rect FitFilm(const Rect& window, const Extent& shown, const Extent& film, const Rect& screen);

} // namespace zentaro
