#pragma once

#include "playlist/KnownFiles.h"
#include "playlist/PreviewPlan.h"

#include <chrono>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

/// Makes previews beside the window, one at a time.
class PreviewRunner {
public:
    virtual ~PreviewRunner() = default;
    using Made = std::vector<std::pair<PreviewPlace, PreviewBytes>>;
    using Stamp = std::optional<FileStamp>; ///< nothing for a file that is not looked at
    /// Calls back with those of the places that were made before, and what the file is now; never from within.
    virtual void Recall(const std::string& path, const std::vector<PreviewPlace>& places,
        std::function<void(Made, const Stamp&)> done) = 0;
    /// Calls back with the picture, null when there is none to be had; never from within. Only while none is being
    /// made.
    virtual void Make(
        const std::string& path, const PreviewPlace& place, std::function<void(PreviewBytes picture)> done) = 0;
    /// Ends what is being made; nothing is called back for it.
    virtual void Cancel() = 0;
};

/// The pictures of the places that the pointer goes over, on the seek track or on a thumbnail.
class Previews {
public:
    /// `isSpared`: for files on drives that are slow, or at work, from which only what is asked for is read.
    /// `after`: as PlayerWorld::after.
    Previews(PreviewRunner& runner, std::function<bool(const std::string& path)> isSpared,
        std::function<void(std::chrono::milliseconds, std::function<void()>)> after);
    Previews(const Previews&) = delete;
    Previews& operator=(const Previews&) = delete;

    struct Film {
        std::string path;
        double length = 0; ///< ms; below 1 while unknown
    };
    /// The pointer is at that time (ms) of a film. `among`: as PreviewWish.
    void PointAt(const Film& film, double time, int among = 0);
    /// Nothing is pointed at any more: what runs is ended.
    void Leave();

    /// What is to be seen of the place that is pointed at; null for nothing yet.
    PreviewBytes Picture() const;
    /// A picture is there or can come.
    bool MayCome() const;
    /// Called when Picture() may be another; whoever points sets it.
    std::function<void()> onNews = [] {};

private:
    struct Known {
        std::string path;
        PreviewPlan plan;
        PreviewRunner::Stamp stamp = {};
        bool isLookedAt = false;
    };
    void GoTo(const Film& film);
    void LookAtFile();
    void GoOn();
    void CancelUnwanted();
    Known* Pointed() { return m_isPointing ? &m_films.front() : nullptr; }
    Known* Find(const std::string& path);

    PreviewRunner& m_runner;
    std::function<bool(const std::string& path)> m_isSpared;
    std::function<void(std::chrono::milliseconds, std::function<void()>)> m_after;
    std::list<Known> m_films; // the last one that was pointed at is in front
    PreviewWish m_wish;
    bool m_isPointing = false;
    int m_moves = 0;
    std::string m_makingPath; // empty: nothing is being made
    PreviewPlace m_making;
};

} // namespace zentaro
