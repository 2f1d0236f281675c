#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

/// Keeps files up to date with what they are to hold: a moment after it has changed, beside the window, each replaced
/// atomically.
class StateFiles {
public:
    struct Needs {
        std::function<void(std::chrono::milliseconds, std::function<void()>)> after;
        std::function<void(std::function<std::function<void()>()>)> runInBackground;
    };
    struct File {
        std::string path;
        std::function<std::string()> text; ///< called on any thread, once
    };
    /// What has changed since it was called last.
    using TakeChanged = std::function<std::vector<File>()>;
    StateFiles(Needs needs, TakeChanged takeChanged);

    /// Something may have changed.
    void WriteSoon();
    /// Returns when everything is written.
    void WriteNow();

private:
    void Write();

    Needs m_needs;
    TakeChanged m_takeChanged;
    bool m_isWaiting = false;
    bool m_isWriting = false;
    std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
};

} // namespace zentaro
