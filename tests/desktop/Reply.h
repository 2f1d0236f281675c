#pragma once

#include <cstdlib>
#include <memory>

namespace zentaro::desktop {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// What the X server has answered; empty when it refused.
template <class T> using Reply = std::unique_ptr<T, FreeReply>;

} // namespace zentaro::desktop
