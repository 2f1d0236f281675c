#include "app/PreviewThreads.h"

#include "inspect/ModPipes.h"
#include "inspect/PictureSense.h"
#include "inspect/PreviewPicture.h"
#include "platform/ChildProcess.h"

#include <mutex>
#include <utility>

namespace zentaro {

namespace {

/// Where a film is looked at, in this order, until a picture says something. A film with hardly any key frame is read
/// up to exact places at last.
constexpr struct {
    double share;
    bool isExact = false;
} kLooks[] = { { 0.1 }, { 0.3 }, { 0.5 }, { 0.2 }, { 0.7 }, { 0.05 }, { 0.3, true }, { 0.6, true } };
/// Stands for the picture that was chosen.
constexpr PreviewPlace kTelling{ -1, false };

PreviewBytes BytesOf(std::string picture)
{
    return picture.empty() ? nullptr : std::make_shared<const std::string>(std::move(picture));
}

} // namespace

struct PreviewThreads::Run {
    ToolContext tools;
    bool isCancelled = false; // of the window's thread
};

struct PreviewThreads::Shared {
    Needs needs;
    Post post;
    std::mutex tool; // held while it runs: one at a time
    Gate gate;

    std::string BytesAt(const std::string& path, const PreviewPlace& place, ToolContext& tools)
    {
        if (!needs.isNear(path))
            return {};
        const auto stamp = StampOf(path);
        if (!stamp)
            return {};
        if (auto picture = needs.known->Recall(path, *stamp, place); !picture.empty())
            return picture;
        const std::lock_guard lock(tool);
        if (tools.CancelExecute != 0)
            return {};
        auto picture = MakePreview(needs.ffmpeg(), { path, place.time, place.isExact }, tools);
        if (!picture.empty())
            needs.known->Remember(path, *stamp, place, picture);
        return picture;
    }

    Picture Telling(const std::string& path, double length, ToolContext& tools)
    {
        const auto stamp = StampOf(path);
        if (!stamp || !needs.isNear(path))
            return {};
        if (auto known = needs.decode(needs.known->Recall(path, *stamp, kTelling)))
            return known;
        const auto places = PreviewPlan(length).Places();
        std::string best;
        Picture shown;
        for (const auto& look : kLooks) {
            auto place = places[static_cast<std::size_t>(look.share * static_cast<double>(places.size()))];
            place.isExact = look.isExact;
            auto bytes = BytesAt(path, place, tools);
            auto picture = needs.decode(bytes);
            if (tools.CancelExecute != 0)
                return {};
            if (!picture || (shown && ContrastOf(picture) <= ContrastOf(shown)))
                continue;
            best = std::move(bytes);
            shown = std::move(picture);
            if (SaysSomething(shown))
                break;
        }
        if (shown)
            needs.known->Remember(path, *stamp, kTelling, best);
        return shown;
    }
};

PreviewThreads::PreviewThreads(Needs needs, Post post)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->needs = std::move(needs);
    m_shared->post = std::move(post);
}

PreviewThreads::~PreviewThreads()
{
    Close();
}

void PreviewThreads::Recall(
    const std::string& path, const std::vector<PreviewPlace>& places, std::function<void(Made, const Stamp&)> done)
{
    RunInBackground(m_shared->post, [shared = m_shared, path, places, done = std::move(done)] {
        Made made;
        const auto stamp = shared->needs.isNear(path) ? StampOf(path) : std::nullopt;
        for (const auto& place : places) {
            if (auto bytes = stamp ? BytesOf(shared->needs.known->Recall(path, *stamp, place)) : nullptr)
                made.emplace_back(place, std::move(bytes));
        }
        return [shared, done, made = std::move(made), stamp] {
            if (shared->gate.IsOpen())
                done(made, stamp);
        };
    });
}

void PreviewThreads::Make(
    const std::string& path, const PreviewPlace& place, std::function<void(PreviewBytes picture)> done)
{
    m_run = std::make_shared<Run>();
    RunInBackground(m_shared->post, [shared = m_shared, run = m_run, path, place, done = std::move(done)] {
        platform::GiveWay();
        PreviewBytes picture;
        shared->gate.Pass([&] { picture = BytesOf(shared->BytesAt(path, place, run->tools)); });
        return [shared, run, done, picture] {
            if (shared->gate.IsOpen() && !run->isCancelled)
                done(picture);
        };
    });
}

void PreviewThreads::Cancel()
{
    if (!m_run)
        return;
    m_run->isCancelled = true;
    m_run->tools.CancelExecute = -1;
    m_run = nullptr;
}

void PreviewThreads::FindTelling(const std::string& path, double length, std::function<void(Picture)> done)
{
    m_telling = std::make_shared<Run>();
    RunInBackground(m_shared->post, [shared = m_shared, run = m_telling, path, length, done = std::move(done)] {
        platform::GiveWay();
        Picture picture;
        shared->gate.Pass([&] { picture = shared->Telling(path, length, run->tools); });
        return [shared, done, picture] {
            if (shared->gate.IsOpen())
                done(picture);
        };
    });
}

void PreviewThreads::Close()
{
    Cancel();
    if (m_telling)
        m_telling->tools.CancelExecute = -1;
    m_shared->gate.Close();
}

} // namespace zentaro
