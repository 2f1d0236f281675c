#pragma once

#include <chrono>
#include <thread>

namespace zentaro::trial {

using namespace std::chrono_literals;

/// How long anything may take on a slow, busy machine. A test that holds never waits as long.
constexpr auto kPatience = 30s;

/// Asks again and again; the last answer after `limit`.
template <class Condition> bool WaitUntil(Condition condition, std::chrono::milliseconds limit = kPatience)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return condition();
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

} // namespace zentaro::trial
