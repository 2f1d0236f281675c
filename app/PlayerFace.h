#pragma once

#include "app/ConfigFile.h"
#include "playlist/Notice.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

/// What only the window can do.
enum class WindowAction {
    Minimize,
    ToggleMaximized,
    ContextMenu, ///< of what has the focus
    OpenMenuStrip,
    NextArea, ///< the focus goes to the next part of the window
    PreviousArea,
    Move, ///< by the arrows, until Enter
    Resize,
};

/// The main window, as the player knows it.
class WindowFace {
public:
    virtual ~WindowFace() = default;

    /// The whole screen's extent, for the first start.
    virtual ScreenExtent Extent() const = 0;
    virtual bool IsMaximized() const = 0;
    virtual double WindowLeft() const = 0; ///< twips
    virtual double WindowTop() const = 0;  ///< twips
    virtual int WindowWidth() const = 0;   ///< logical pixels, while neither maximised nor full screen
    virtual int WindowHeight() const = 0;  ///< as above
    virtual bool IsFullScreen() const = 0;

    /// Gives the window its place and size, not yet to be seen.
    virtual void PlaceWindow() { }
    virtual void ShowWindow() = 0;
    virtual void CloseWindow() = 0;
    virtual void SetWindowSize(int width, int height) = 0; ///< logical pixels
    /// Shows a film of that size, in pixels of the screen, as it is.
    virtual void FitFilm(int width, int height) = 0;
    virtual void SetWindowPosition(int left, int top) = 0; ///< twips
    virtual void SetFullScreen(bool fullScreen) = 0;
    virtual void FlashCaption() = 0;
    virtual void Do(WindowAction action) = 0;
    /// Keys go to the video from now on.
    virtual void FocusVideo() = 0;
    /// Pops a menu of the classic tree up, by its control's name, near what it belongs to.
    virtual void PopupMenu(const std::string& menu) = 0;
    /// Shows a short line in the window that goes by itself, with a small copy of the picture in `file` unless that is
    /// empty.
    virtual void ShowNote(const std::string& text, const std::string& file = {}) = 0;
    /// Brings the list and its finding forward.
    virtual void FindInList() = 0;
    /// The same as ShowNote with a button that runs the command of this id.
    virtual void ShowOffer(const std::string& text, std::string_view command) = 0;
    /// What is shown follows from the player's state, which has changed.
    virtual void StateChanged() = 0;
};

/// What the user is told and asked in windows of their own. All calls return at once; what they answer through is never
/// called from within.
class DialogFace {
public:
    virtual ~DialogFace() = default;

    /// Shows a box; `closed` follows.
    virtual void ShowNotice(const Notice& notice, std::function<void()> closed) = 0;
    /// Asks for files, more than one at will: one text per folder, as ParseOpenFileResult reads it; none on cancel.
    virtual void AskForFiles(
        const std::string& title, const std::string& filter, std::function<void(std::vector<std::string>)> chosen) = 0;
    /// Asks under which name a list is to be saved; empty on cancel.
    virtual void AskForListName(std::function<void(std::string)> chosen) = 0;
    /// Asks for one file of subtitles; empty on cancel.
    virtual void AskForSubtitles(std::function<void(std::string)> chosen) = 0;
    /// Asks for a place in the item by a time; empty on cancel. `present` is what the time label shows.
    virtual void AskForTime(const std::string& present, std::function<void(std::string)> chosen) = 0;
    /// Opens the file manager where that file lies.
    virtual void ShowFolderOf(const std::string& path) = 0;
    /// WindowControl::DialogClosed() follows.
    virtual void ShowOptions() = 0;
    virtual void ShowAbout() = 0;
    /// All commands, to find one, see its key and run it.
    virtual void ShowCommandList() = 0;
    /// Opens the help pages; says so when they are missing.
    virtual void ShowHelp() = 0;
};

/// Where a player shows itself. It is there from Player::Load on.
struct PlayerFace {
    WindowFace* window = nullptr;
    DialogFace* dialogs = nullptr;
};

} // namespace zentaro
