#pragma once

#include "app/Background.h"
#include "app/Music.h"

#include <functional>
#include <memory>
#include <string>

namespace zentaro {

/// Finds out about songs with the tool, each thing in a thread of its own that gives way to whatever else runs.
class MusicThreads : public MusicRunner {
public:
    /// What the threads need; called on any of them.
    struct Needs {
        std::function<std::string()> ffmpeg;                   ///< the program: its path
        std::function<bool(const std::string& path)> isSpared; ///< nothing is read ahead from where it lies
        std::function<Picture(const std::string& path)> decode = [](const std::string&) { return Picture(); };
        std::string folder; ///< for covers and sounds, with a trailing separator; empty: there are none
        char separator = '/';
    };
    MusicThreads(Needs needs, Post post);
    ~MusicThreads() override;

    void FindCover(const std::string& path, std::function<void(Cover)> done) override;
    void MakeBars(const SoundPiece& piece, std::function<void(BarPictures)> done) override;
    void CancelBars() override;
    /// Calls back with the song's cover as a row of the list shows it; empty where there is none. Only one at a time.
    void FindRowCover(const std::string& path, std::function<void(Picture)> done);
    /// Ends everything, in a tenth of a second at most; nothing is called back afterwards.
    void Close();

private:
    struct Run;
    struct Shared;
    /// Runs `work` in a thread, and then, unless it was cancelled, `done` with what it has found.
    template <typename Found>
    std::shared_ptr<Run> Begin(std::function<Found(Shared&, Run&)> work, std::function<void(Found)> done);

    std::shared_ptr<Shared> m_shared; // the threads may outlive this
    std::shared_ptr<Run> m_cover;
    std::shared_ptr<Run> m_bars;
    std::shared_ptr<Run> m_rowCover;
};

} // namespace zentaro
