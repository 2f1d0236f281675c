#pragma once

#include "app/Background.h"
#include "app/Previews.h"
#include "playlist/KnownPreviews.h"

#include <functional>
#include <memory>
#include <string>

namespace zentaro {

/// Makes previews with the tool, each in a thread of its own that gives way to whatever else runs; what was made is
/// kept.
class PreviewThreads : public PreviewRunner {
public:
    /// What the threads need; called on any of them.
    struct Needs {
        std::function<std::string()> ffmpeg;                 ///< the program: its path
        std::function<bool(const std::string& path)> isNear; ///< on a drive of this machine; others are left alone
        std::shared_ptr<KnownPreviews> known;
        std::function<Picture(const std::string& bytes)> decode = [](const std::string&) { return Picture(); };
    };
    PreviewThreads(Needs needs, Post post);
    ~PreviewThreads() override;

    void Recall(const std::string& path, const std::vector<PreviewPlace>& places,
        std::function<void(Made, const Stamp&)> done) override;
    void Make(
        const std::string& path, const PreviewPlace& place, std::function<void(PreviewBytes picture)> done) override;
    void Cancel() override;
    /// Calls back with a picture by which a film of that length (ms) is recognised, as far as it has one; empty where
    /// none can be made. Not ended by Cancel().
    void FindTelling(const std::string& path, double length, std::function<void(Picture)> done);
    /// Ends everything, in a tenth of a second at most; nothing is called back afterwards.
    void Close();

private:
    struct Run;
    /// Shared with the threads, which may outlive this.
    struct Shared;

    std::shared_ptr<Shared> m_shared;
    std::shared_ptr<Run> m_run;
    std::shared_ptr<Run> m_telling;
};

} // namespace zentaro
