#include "desktop/DesktopDefaults.h"

#include "desktop/DesktopEntry.h"

#include <algorithm>

namespace zentaro::desktop {

bool IsOurEntry(const std::string& entry)
{
    return entry == kOpenEntry || entry == kAddEntry;
}

std::string DesktopDefaults::ProgramOf(const std::string& type, bool withOurs) const
{
    const auto firstOf = [&](const std::vector<std::string>& programs) {
        const auto found = std::find_if(programs.begin(), programs.end(),
            [&](const std::string& program) { return (withOurs || !IsOurEntry(program)) && isInstalled(program); });
        return found == programs.end() ? std::string() : *found;
    };
    for (const auto group : { kDefaultApplications, kAddedAssociations }) {
        for (const auto* files : { &own, &others }) {
            for (const auto& file : *files) {
                if (auto program = firstOf(file.Programs(group, type)); !program.empty())
                    return program;
            }
        }
    }
    for (const auto& cache : caches) {
        auto programs = cache.Programs(kMimeCache, type);
        for (const auto& file : own) {
            for (const auto& removed : file.Programs(kRemovedAssociations, type))
                std::erase(programs, removed);
        }
        if (auto program = firstOf(programs); !program.empty())
            return program;
    }
    return {};
}

void DesktopDefaults::Take(const std::string& type)
{
    for (auto& file : own) {
        const bool isEveryDesktops = &file == &own.back();
        if (isEveryDesktops || !file.Programs(kDefaultApplications, type).empty())
            file.PutFirst(kDefaultApplications, type, { kOpenEntry });
        for (const auto* entry : { kOpenEntry, kAddEntry })
            file.Remove(kRemovedAssociations, type, entry);
    }
    // So both are on offer even where no tool collects what the entries are for.
    const auto added = own.back().Programs(kAddedAssociations, type);
    if (std::count_if(added.begin(), added.end(), &IsOurEntry) < 2)
        own.back().PutFirst(kAddedAssociations, type, { kOpenEntry, kAddEntry });
}

void DesktopDefaults::Release(const std::string& type)
{
    for (auto& file : own) {
        for (const auto* entry : { kOpenEntry, kAddEntry }) {
            file.Remove(kDefaultApplications, type, entry);
            file.Remove(kAddedAssociations, type, entry);
        }
    }
}

void DesktopDefaults::Restore(const std::string& type, const std::string& owner)
{
    if (!owner.empty() && !IsOurEntry(owner) && isInstalled(owner) && ProgramOf(type, false) != owner)
        own.back().PutFirst(kDefaultApplications, type, { owner });
}

} // namespace zentaro::desktop
