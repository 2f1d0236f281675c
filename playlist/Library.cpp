#include "playlist/Library.h"

#include "playlist/ListFile.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace zentaro {

namespace {

int ProcessorCount()
{
    return std::max(2, static_cast<int>(std::thread::hardware_concurrency()));
}

} // namespace

Library::Library(LibraryHost& host, InspectionRunner& inspections, RandomSource random, char separator)
    : m_host(host)
    , m_separator(separator)
    , m_playlist(std::move(random))
    , m_adding(m_playlist, m_inspected, host, inspections, { .running = ProcessorCount() })
    , m_pictures(
          m_playlist, [&inspections](std::vector<PictureOrder> orders) { inspections.FindPictures(std::move(orders)); })
    , m_isOpen(std::make_shared<std::atomic<bool>>(true))
{
    m_playlist.List().onRowsSeen = [this](int first, int last) {
        m_pictures.RowsInSight(first, last);
        // Files that are still to come go first.
        if (Adding().total == 0)
            m_better.RowsInSight(first, last);
    };
}

Library::~Library()
{
    *m_isOpen = false;
}

void Library::LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow,
    std::function<void(AddOutcome)> decided)
{
    AddRequest request{ title, path, playFlag, playNow, false, std::move(decided) };
    if (ListFormatOf(path, m_separator))
        return LoadList(request);
    m_adding.Add({ std::move(request) }, AddTurn::AtOnce);
}

void Library::LoadList(const AddRequest& list)
{
    FindMedia({ list.path }, [this, list](const FoundFiles& found) {
        auto requests = AddRequests(found.media, m_separator, list.playNow);
        // A list that says nothing is refused like a file that cannot be read.
        if (requests.empty() && found.listed == 0)
            requests.push_back(list);
        if (requests.empty()) {
            if (list.onDecided)
                list.onDecided(AddOutcome::Refused);
            return;
        }
        requests.front().playFlag = list.playFlag;
        requests.front().onDecided = list.onDecided;
        m_adding.Add(std::move(requests), AddTurn::AtOnce);
    });
}

void Library::OpenFiles(bool addOnly, std::function<void()> then)
{
    Ask(!addOnly, false, std::move(then));
}

void Library::AddVideoFile()
{
    Ask(false, true, [this] {
        SelectFirst();
        m_host.EntryAdded();
    });
}

void Library::Ask(bool playFirst, bool selectsFirst, std::function<void()> then)
{
    const auto chosen = [this, playFirst, selectsFirst, isOpen = m_isOpen, then = std::move(then)](
                            const std::vector<std::string>& answers) {
        if (!*isOpen)
            return;
        std::vector<OpenedFile> opened;
        for (const auto& answer : answers) {
            if (const auto files = ParseOpenFileResult(answer, m_separator))
                opened.insert(opened.end(), files->begin(), files->end());
        }
        AddChosen(opened, playFirst, selectsFirst);
        then();
    };
    m_host.AskForFiles(std::string(kOpenDialogTitle), OpenDialogFilter(), chosen);
}

void Library::AddChosen(const std::vector<OpenedFile>& files, bool playFirst, bool selectsFirst)
{
    const auto turn = playFirst ? AddTurn::AtOnce : AddTurn::AfterOthers;
    const auto add = [this, turn, selectsFirst](std::vector<AddRequest> requests) {
        for (auto& request : requests)
            request.selectsFirst = selectsFirst;
        m_adding.Add(std::move(requests), turn);
    };
    if (std::ranges::none_of(
            files, [&](const OpenedFile& file) { return ListFormatOf(file.path, m_separator).has_value(); }))
        return add(AddRequests(files, m_separator, playFirst));
    std::vector<std::string> paths;
    for (const auto& file : files)
        paths.push_back(file.path);
    FindMedia(paths,
        [this, add, playFirst](const FoundFiles& found) { add(AddRequests(found.media, m_separator, playFirst)); });
}

void Library::SelectFirst()
{
    if (m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
}

void Library::DropOnList(const std::vector<std::string>& paths)
{
    auto& drop = m_drops.emplace_back();
    FindMedia(paths, [this, &drop](const FoundFiles& found) {
        drop = { true, found };
        AddReadDrops();
    });
}

void Library::AddReadDrops()
{
    for (; !m_drops.empty() && m_drops.front().isRead; m_drops.pop_front())
        m_adding.Add(AddRequests(m_drops.front().found.media, m_separator, false), AddTurn::AfterOthers,
            m_drops.front().found.skipped);
}

void Library::DropOnVideo(const std::vector<std::string>& paths)
{
    FindMedia(paths, [this](const FoundFiles& found) {
        m_adding.Add(AddRequests(found.media, m_separator, true), AddTurn::AtOnce, found.skipped);
    });
}

void Library::FindMedia(const std::vector<std::string>& paths, std::function<void(const FoundFiles& found)> found)
{
    m_host.RunInBackground(
        [this, isOpen = m_isOpen, paths, separator = m_separator, all = m_takesAll, found = std::move(found)] {
            auto files = FindFiles(
                paths, separator, [&] { return isOpen->load(); }, all);
            return [this, isOpen, found, files = std::move(files)] {
                if (!*isOpen)
                    return;
                found(files);
                m_host.FilesFound(files);
            };
        });
}

void Library::InspectionReported(int ticket, Inspection report)
{
    m_adding.Reported(ticket, std::move(report));
}

void Library::PicturesFound(std::vector<FoundPicture> pictures)
{
    m_pictures.Found(std::move(pictures));
    m_host.ThumbnailChanged();
}

void Library::UpdatePictures()
{
    m_pictures.EntriesChanged();
    if (Adding().total == 0)
        m_better.GoOn();
}

void Library::InspectionCompleted(int ticket, Inspection inspection)
{
    m_adding.Completed(ticket, std::move(inspection));
}

void Library::Close()
{
    *m_isOpen = false;
    m_adding.Close();
}

} // namespace zentaro
