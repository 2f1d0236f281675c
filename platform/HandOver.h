#pragma once

#include "base/Result.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace zentaro::platform {

/// How long the two sides of a hand-over wait for each other.
struct HandOverLimits {
    /// A sender that has not heard for so long that its text was taken over does without this receiver. On Windows
    /// eight times as long while the receiver has not been running for a minute.
    std::chrono::milliseconds silence = std::chrono::seconds(5);
    /// A text that was taken over may take so long to be opened; then its sender ends without having seen it.
    std::chrono::milliseconds opening = std::chrono::seconds(10);
};

/// Tells the sender of a text that it has been opened. Called on the receiver's thread. Only the first call counts; one
/// that comes late, or after the sender or the ends are gone, does nothing.
using HandOverDone = std::function<void()>;

/// The named ends at which a running player receives texts from later starts: one for commands, one that only answers
/// that the player is alive, and one for paths that are to be added. A handle is the decimal text of a number that is
/// not 0.
///
/// Texts do not wait for each other: each is handed on as soon as it is complete, also while others are still being
/// opened, and its sender is answered when its own `done` is called.
///
/// Linux: sockets of this user in the runtime folder, served by Qt's event loop.
/// Windows: three hidden edit windows that receive WM_SETTEXT. The window procedure waits for `done` by handling
/// messages, so a text that comes meanwhile is handed on from within, and a sender is answered only after those that
/// came later and still wait. No sender waits longer than the limit for that.
///
/// Destroying the object, also from inside the handler, drops every sender that still waits: each hears at once that
/// this player is gone.
class HandOverEnds {
public:
    virtual ~HandOverEnds() = default;

    virtual std::string CommandHandle() const = 0;
    virtual std::string ProbeHandle() const = 0;
    virtual std::string AddHandle() const = 0;
    /// From now on texts are delivered, on this thread, by its event loop. Earlier ones have waited.
    virtual void Deliver(std::function<void(std::string text, HandOverDone done)> onCommand) = 0;
    /// The same for the paths that are to be added.
    virtual void DeliverAdded(std::function<void(std::string path, HandOverDone done)> onPath) = 0;

    /// All ends, ready to be connected to.
    static Result<std::unique_ptr<HandOverEnds>> Listen();
    static Result<std::unique_ptr<HandOverEnds>> ListenWithin(HandOverLimits limits);
};

/// True while a player that listens at the handle lives, also when it is busy or stopped. Any text is allowed as
/// handle.
bool IsHandOverAlive(const std::string& handle);

enum class HandOverOutcome {
    Opened,    ///< the receiver has called `done`
    TakenOver, ///< the receiver has the text, but has not called `done` in time; the sender's work is done all the same
    Silent ///< nobody has opened the text and nobody will: no receiver, none that answers, or one that closed or died
};

/// Delivers one text and waits for what becomes of it, as long as the limits say. A text of which the sender heard
/// "Silent" is never opened later, even when a receiver that was stopped goes on. (On Windows this holds for a receiver
/// that did not react at all; one that stops just after it did counts as TakenOver.) At most 16 MiB, longer ones are
/// Silent; the text ends at its first NUL byte.
HandOverOutcome SendHandOverText(const std::string& handle, const std::string& text);
HandOverOutcome SendHandOverTextWithin(const std::string& handle, const std::string& text, HandOverLimits limits);

/// Held while the handles are read, tested and published, so that of several starts at once exactly one becomes the
/// player; under another purpose by whoever adds files, so that those of two do not mix. Per user. Waits at most
/// `timeout` for another holder, then is empty; the caller goes on all the same.
class HandOverLock {
public:
    virtual ~HandOverLock() = default;
    static std::unique_ptr<HandOverLock> Take(std::chrono::milliseconds timeout, const std::string& purpose = "start");
};

/// Marks, until the process ends, that a player runs: on Windows a named mutex, elsewhere a locked file of that name in
/// the runtime folder. Nobody waits for it; a failure changes nothing.
void MarkPlayerRunning(const std::string& name);

} // namespace zentaro::platform
