#include "app/MusicThreads.h"

#include "inspect/CoverPicture.h"
#include "inspect/ModPipes.h"
#include "platform/ChildProcess.h"
#include "platform/Files.h"

#include <atomic>
#include <cstring>
#include <deque>
#include <filesystem>
#include <mutex>
#include <sstream>
#include <system_error>
#include <utility>

namespace zentaro {

namespace {

constexpr std::size_t kMostCovers = 8; // whoever shows one has read it by then

void RemoveFile(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::path(std::u8string(path.begin(), path.end())), ignored);
}

std::vector<std::int16_t> SamplesIn(const std::string& bytes)
{
    std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
    return samples;
}

} // namespace

struct MusicThreads::Run {
    ToolContext tools;
    int number = 0;
    std::atomic<bool> isCancelled = false;

    void Cancel()
    {
        isCancelled = true;
        tools.CancelExecute = -1;
    }
};

struct MusicThreads::Shared {
    Needs needs;
    Post post;
    Gate gate;
    std::mutex mutex;
    std::deque<std::string> covers; // files
    int begun = 0;                  // of the window's thread

    Cover FindCover(const std::string& path, Run& run)
    {
        const auto file = needs.folder + "cover-" + std::to_string(run.number) + ".jpg";
        if (!MakeCover(needs.ffmpeg(), path, needs.separator, file, kCoverSide, run.tools))
            return {};
        Cover cover{ needs.decode(file), file };
        const std::lock_guard lock(mutex);
        covers.push_back(file);
        if (covers.size() > kMostCovers) {
            RemoveFile(covers.front());
            covers.pop_front();
        }
        return cover.picture ? cover : Cover();
    }

    Picture FindRowCover(const std::string& path, Run& run) const
    {
        const auto file = needs.folder + "row-" + std::to_string(run.number) + ".jpg";
        if (!MakeCover(needs.ffmpeg(), path, needs.separator, file, kRowCoverSide, run.tools))
            return {};
        auto picture = needs.decode(file);
        RemoveFile(file);
        return picture;
    }

    BarPictures MakeBars(const SoundPiece& piece, Run& run)
    {
        if (needs.isSpared(piece.path))
            return nullptr;
        const auto file = needs.folder + "sound-" + std::to_string(run.number) + ".raw";
        const auto command = SoundCommand(needs.ffmpeg(), piece, file);
        const auto most = static_cast<std::size_t>(piece.length + 1) * kBarSoundRate * sizeof(std::int16_t);
        std::string sound;
        if (const auto child = platform::ChildProcess::Start(
                { command.program, command.arguments, "", false, platform::kIdlePriority })) {
            std::ostringstream printed;
            if (Capture(**child, printed, 0, run.tools, command.limit) && !run.isCancelled)
                sound = platform::ReadTextFile(file, most).value_or("");
        }
        RemoveFile(file);
        return sound.empty() ? nullptr : std::make_shared<const std::vector<BarPicture>>(BarsOf(SamplesIn(sound)));
    }
};

MusicThreads::MusicThreads(Needs needs, Post post)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->needs = std::move(needs);
    m_shared->post = std::move(post);
}

MusicThreads::~MusicThreads()
{
    Close();
}

template <typename Found>
std::shared_ptr<MusicThreads::Run> MusicThreads::Begin(
    std::function<Found(Shared&, Run&)> work, std::function<void(Found)> done)
{
    auto run = std::make_shared<Run>();
    run->number = ++m_shared->begun;
    RunInBackground(m_shared->post, [shared = m_shared, run, work = std::move(work), done = std::move(done)] {
        platform::GiveWay();
        Found found;
        shared->gate.Pass([&] {
            if (!shared->needs.folder.empty() && !run->isCancelled)
                found = work(*shared, *run);
        });
        return [shared, run, done, found = std::move(found)] {
            if (shared->gate.IsOpen() && !run->isCancelled)
                done(found);
        };
    });
    return run;
}

void MusicThreads::FindCover(const std::string& path, std::function<void(Cover)> done)
{
    if (m_cover)
        m_cover->Cancel();
    m_cover = Begin<Cover>([path](Shared& shared, Run& run) { return shared.FindCover(path, run); }, std::move(done));
}

void MusicThreads::MakeBars(const SoundPiece& piece, std::function<void(BarPictures)> done)
{
    m_bars =
        Begin<BarPictures>([piece](Shared& shared, Run& run) { return shared.MakeBars(piece, run); }, std::move(done));
}

void MusicThreads::FindRowCover(const std::string& path, std::function<void(Picture)> done)
{
    m_rowCover =
        Begin<Picture>([path](Shared& shared, Run& run) { return shared.FindRowCover(path, run); }, std::move(done));
}

void MusicThreads::CancelBars()
{
    if (m_bars)
        m_bars->Cancel();
    m_bars = nullptr;
}

void MusicThreads::Close()
{
    for (const auto& run : { m_cover, m_bars, m_rowCover }) {
        if (run)
            run->Cancel();
    }
    m_shared->gate.Close();
}

} // namespace zentaro
