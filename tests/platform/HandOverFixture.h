#pragma once

#include "platform/ChildProcess.h"
#include "platform/HandOver.h"
#include "tests/platform/EventLoop.h"
#include "tests/platform/WorkingFolder.h"

#include <future>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace zentaro::platform {

/// This program, or a copy of it, started once more beside the test. See HandOverTest.cpp for what it can do.
std::unique_ptr<StartedProcess> StartPeer(std::vector<std::string> arguments, const std::string& program = "");
/// The path of this program.
const std::string& OwnProgram();

/// Longer than RunUntil() waits.
inline constexpr HandOverLimits kNever{ std::chrono::minutes(2), std::chrono::minutes(2) };

using Sending = std::future<HandOverOutcome>;

/// A player of the test's own, and senders.
class HandOverTest : public testing::Test {
protected:
    HandOverTest() { UseAsRuntimeFolder(folder.Path()); }

    /// Texts come to `received`, their tokens to `tokens`, unless they are opened at once.
    void Listen(HandOverLimits limits = kNever)
    {
        ends = std::move(*HandOverEnds::ListenWithin(limits));
        ends->Deliver(Keep());
    }
    std::function<void(std::string, HandOverDone)> Keep()
    {
        return [this](std::string text, const HandOverDone& done) {
            received.push_back(std::move(text));
            tokens.push_back(done);
            if (opensAtOnce)
                done();
            onReceived();
        };
    }
    static Sending Send(const std::string& handle, const std::string& text, HandOverLimits limits = kNever)
    {
        return std::async(std::launch::async, [=] { return SendHandOverTextWithin(handle, text, limits); });
    }
    static bool IsDone(const Sending& sending)
    {
        return sending.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
    /// What came of it, while this thread's loop runs.
    static HandOverOutcome OutcomeOf(Sending& sending)
    {
        EXPECT_TRUE(RunUntil([&] { return IsDone(sending); }));
        return sending.get();
    }
    /// The two handles that a peer has written.
    static std::pair<std::string, std::string> HandlesIn(const std::string& file)
    {
        EXPECT_TRUE(RunUntil([&] { return PathExists(file); }));
        const auto handles = ReadTextFile(file, 100).value();
        return { handles.substr(0, handles.find(' ')), handles.substr(handles.find(' ') + 1) };
    }

    WorkingFolder folder;
    std::unique_ptr<HandOverEnds> ends;
    bool opensAtOnce = false;
    /// Whoever is to act while a text waits does it from here: where its sender waits in the window's procedure, the
    /// test goes on only after that.
    std::function<void()> onReceived = [] {};
    std::vector<std::string> received;
    std::vector<HandOverDone> tokens;
};

} // namespace zentaro::platform
