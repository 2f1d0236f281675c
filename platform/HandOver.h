#pragma once

#include "base/Result.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace zentaro::platform {

/// The two named ends at which a running player receives texts from later starts: one for commands, one that only
/// answers that the player is alive. A handle is the decimal text of a number that is not 0.
///
/// Windows: two hidden edit windows that receive WM_SETTEXT; a text that arrives while the handler runs nests in it.
/// Linux: two sockets of this user in the runtime folder, served by Qt's event loop; texts are handled one after the
/// other, in the order in which they were completely received, and the sender waits for its own.
///
/// The handler may destroy the object.
class HandOverEnds {
public:
    virtual ~HandOverEnds() = default;

    virtual std::string CommandHandle() const = 0;
    virtual std::string ProbeHandle() const = 0;
    /// From now on texts are delivered, on this thread, by its event loop. Earlier ones have waited. The handler gets a
    /// copy of its own and may run an event loop.
    virtual void Deliver(std::function<void(std::string)> onCommand) = 0;

    /// Both ends, ready to be connected to.
    static Result<std::unique_ptr<HandOverEnds>> Listen();
};

/// True while the process that listens at the handle lives. Any text is allowed as handle.
bool IsHandOverAlive(const std::string& handle);

/// Delivers one text and returns after the receiver's handler has returned; false when it could not be delivered or the
/// receiver ended before. At most 16 MiB; the text ends at its first NUL byte.
bool SendHandOverText(const std::string& handle, const std::string& text);

/// Held while the handles are read, tested and published, so that of several starts at once exactly one becomes the
/// player. Per user. Waits at most `timeout` for another holder, then is empty; the caller goes on all the same.
class HandOverLock {
public:
    virtual ~HandOverLock() = default;
    static std::unique_ptr<HandOverLock> Take(std::chrono::milliseconds timeout);
};

/// Marks, until the process ends, that a player runs: on Windows a named mutex, elsewhere a locked file of that name in
/// the runtime folder. Nobody waits for it; a failure changes nothing.
void MarkPlayerRunning(const std::string& name);

} // namespace zentaro::platform
