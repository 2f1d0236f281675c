#pragma once

#include "platform/Window.h"

#include <functional>
#include <memory>

namespace zentaro::platform {

/// Watches whether other windows lie over all of a window. Where the system composes windows it says nothing of that,
/// and nothing is heard; a window that is minimised or on another desktop is the toolkit's news.
class Covering {
public:
    virtual ~Covering() = default;
    /// Null where nothing will ever be heard. `changed` is called on the thread that watches, out of its event loop.
    static std::unique_ptr<Covering> Watch(NativeWindow window, std::function<void(bool isCovered)> changed);
};

} // namespace zentaro::platform
