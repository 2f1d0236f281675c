#include "playlist/Library.h"

#include "playlist/DroppedFiles.h"
#include "playlist/OpenFiles.h"

#include <utility>

namespace zentaro {

Library::Library(LibraryHost& host, InspectionRunner& inspections, RandomSource random, char separator)
    : m_host(host)
    , m_separator(separator)
    , m_playlist(std::move(random))
    , m_adding(m_playlist, m_inspected, host, inspections)
    , m_isOpen(std::make_shared<std::atomic<bool>>(true))
{
}

Library::~Library()
{
    *m_isOpen = false;
}

void Library::LoadThumb(const std::string& title, const std::string& path, bool playFlag, bool playNow,
    std::function<void(AddOutcome)> decided)
{
    m_adding.Add({ { title, path, playFlag, playNow, false, std::move(decided) } }, AddTurn::AtOnce);
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
        std::vector<AddRequest> requests;
        for (const auto& answer : answers) {
            const auto files = ParseOpenFileResult(answer, m_separator);
            if (!files)
                continue;
            for (auto& request : AddRequests(*files, m_separator, playFirst && requests.empty())) {
                request.selectsFirst = selectsFirst;
                requests.push_back(std::move(request));
            }
        }
        m_adding.Add(std::move(requests), playFirst ? AddTurn::AtOnce : AddTurn::AfterOthers);
        then();
    };
    m_host.AskForFiles(std::string(kOpenDialogTitle), OpenDialogFilter(), chosen);
}

void Library::SelectFirst()
{
    if (m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
}

void Library::DropOnList(const std::vector<std::string>& paths)
{
    auto& drop = m_drops.emplace_back();
    FindMedia(paths, [this, &drop](const std::vector<std::string>& files) {
        drop = { true, files };
        AddReadDrops();
    });
}

void Library::AddReadDrops()
{
    for (; !m_drops.empty() && m_drops.front().isRead; m_drops.pop_front())
        m_adding.Add(AddRequests(m_drops.front().files, m_separator, false));
}

void Library::DropOnVideo(const std::vector<std::string>& paths)
{
    FindMedia(paths, [this](const std::vector<std::string>& files) {
        m_adding.Add(AddRequests(files, m_separator, true), AddTurn::AtOnce);
    });
}

void Library::FindMedia(
    const std::vector<std::string>& paths, std::function<void(const std::vector<std::string>& files)> found)
{
    m_host.RunInBackground([isOpen = m_isOpen, paths, separator = m_separator, found = std::move(found)] {
        auto files = DroppedMediaFiles(paths, separator, [&] { return isOpen->load(); });
        return [isOpen, found, files = std::move(files)] {
            if (*isOpen)
                found(files);
        };
    });
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
