#pragma once

#include "app/ConfigFile.h"
#include "playback/PositionTick.h"
#include "playlist/AddQueue.h"
#include "shell/WindowLayout.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace zentaro {

/// What the player asks of its window. A test stands in for it.
class PlayerScreen {
public:
    virtual ~PlayerScreen() = default;

    /// The whole screen's extent, for the first start.
    virtual ScreenExtent Extent() const = 0;
    virtual bool IsMaximized() const = 0;
    virtual double WindowLeft() const = 0; ///< twips
    virtual double WindowTop() const = 0;  ///< twips

    virtual void ShowWindow() = 0;
    virtual void CloseWindow() = 0;
    virtual void SetWindowSize(int width, int height) = 0; ///< logical pixels
    virtual void SetWindowPosition(int left, int top) = 0; ///< twips
    virtual void SetTopmost(bool topmost) = 0;
    virtual void SetFullScreen(bool fullScreen) = 0;
    virtual bool IsFullScreen() const = 0;
    /// The whole text; the window shortens it to its width.
    virtual void ShowCaption(const std::string& text) = 0;
    virtual void FlashCaption() = 0;

    virtual void SetPlaylistPosition(PlaylistDock position) = 0;
    virtual bool IsPlaylistVisible() const = 0;
    virtual void ShowAddProgress(const AddProgress& progress) = 0;
    /// `length` of the item in ms, 0 or below while unknown. The seek bar has its new fill already.
    virtual void ShowPosition(const PositionTick& tick, double length) = 0;
    /// A word in place of the time, until the time is shown again.
    virtual void ShowTimeText(const std::string& text) = 0;
    virtual void ShowRate(const std::string& text) = 0;
    /// Back to what is shown while nothing is loaded: time, bar, rate, audio logo.
    virtual void ShowIdle() = 0;
    /// The check marks, enabled commands and buttons are to be worked out anew.
    virtual void StateChanged() = 0;

    /// Keys go to the video from now on.
    virtual void FocusVideo() = 0;

    /// Shows a box and returns when it is closed.
    virtual void ShowNotice(const Notice& notice) = 0;
    /// Shows a short line in the window that goes by itself.
    virtual void ShowNote(const std::string& text) = 0;
    /// As above, with a small copy of the picture in `file`; without one when `file` is empty.
    virtual void ShowPictureNote(const std::string& text, const std::string& file) = 0;
    /// Asks for files, more than one at will. One text per folder, as ParseOpenFileResult reads it; none on cancel.
    virtual std::vector<std::string> AskForFiles(const std::string& title, const std::string& filter) = 0;

    // Dialogs: these return at once; Player::DialogClosed() follows.
    virtual void ShowOptions() = 0;
    virtual void ShowAbout() = 0;
    /// Opens the help pages; says so when they are missing.
    virtual void ShowHelp() = 0;

    /// Shows or removes the icon in the notification area, where there is one.
    virtual void SetTrayShown(bool shown) = 0;
    /// Pops a menu of the classic tree up, by its control's name, near what it belongs to.
    virtual void PopupMenu(const std::string& menu) = 0;

    /// Asks for one file of subtitles; empty on cancel.
    virtual std::string AskForSubtitles() = 0;

    /// Lets waiting window messages be handled that many times.
    virtual void PumpMessages(int times) = 0;
    /// Handles window messages for that long.
    virtual void PumpFor(std::chrono::milliseconds time) = 0;
    /// Handles window messages until `done`.
    virtual void PumpUntil(const std::function<bool()>& done) = 0;
};

} // namespace zentaro
