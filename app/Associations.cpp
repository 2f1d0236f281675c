#include "app/Associations.h"

#include "assoc/AssociationTable.h"

#include <utility>

namespace zentaro {

Associations::Associations(AssociationService service, platform::StringStore& store, char separator)
    : m_service(std::move(service))
    , m_store(store)
    , m_separator(separator)
{
    if (m_service.shell != nullptr)
        m_modAssoc.emplace(store, *m_service.shell, m_service.programPath, m_service.programFolder, separator);
}

void Associations::Apply(const AssociationFlags& flags)
{
    m_isPending = false;
    {
        const std::lock_guard lock(m_mutex);
        m_due = flags;
    }
    m_service.background([this] {
        ApplyDue();
        return [] {};
    });
}

void Associations::ApplyPostponed(const AssociationFlags& flags)
{
    if (m_isPending)
        Apply(flags);
}

void Associations::Close(const AssociationFlags& flags)
{
    if (std::exchange(m_isPending, false)) {
        const std::lock_guard lock(m_mutex);
        m_due = flags;
    }
    ApplyDue();
}

void Associations::ApplyDue()
{
    const std::lock_guard working(m_working);
    std::optional<AssociationFlags> flags;
    {
        const std::lock_guard lock(m_mutex);
        flags = std::exchange(m_due, std::nullopt);
    }
    if (flags && m_modAssoc)
        m_modAssoc->ApplyAssociations(*flags);
}

void Associations::Choices(std::function<void(std::vector<AssociationChoice>)> done)
{
    m_service.background([this, done = std::move(done)] { return [done, choices = ReadChoices()] { done(choices); }; });
}

std::vector<AssociationChoice> Associations::ReadChoices()
{
    const std::lock_guard working(m_working);
    if (m_modAssoc)
        m_modAssoc->AdoptLiveOwners();
    const ModIcons icons(m_store, m_service.icons, m_service.programFolder, m_separator);
    std::vector<AssociationChoice> choices;
    for (int i = 0; i < kAssociationCount; ++i) {
        const auto row = AssociationRowAt(i, m_separator);
        choices.push_back({ row.listText, m_service.icons.loadPicture ? icons.OwnerIcon(row.extension) : Picture(),
            m_modAssoc && m_modAssoc->IsDecidedElsewhere(i) });
    }
    return choices;
}

} // namespace zentaro
