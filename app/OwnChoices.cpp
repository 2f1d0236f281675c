#include "app/OwnChoices.h"

#include "app/OwnSettings.h"

#include <string_view>

namespace zentaro {

namespace {

std::string_view KeyOf(Choice choice)
{
    switch (choice) {
    case Choice::Remembers:
        return "choice.remembers";
    case Choice::RemembersRemovable:
        return "choice.remembersRemovable";
    case Choice::LowRows:
        return "choice.lowRows";
    case Choice::FamiliarWays:
        return "choice.familiarWays";
    case Choice::KnowsOfWays:
        return "choice.knowsOfWays";
    case Choice::Previews:
        return "choice.previews";
    case Choice::MusicView:
        return "choice.musicView";
    }
    return {};
}

} // namespace

bool OwnChoices::Has(Choice choice) const
{
    const bool isFromBeginning =
        choice == Choice::Remembers || choice == Choice::Previews || choice == Choice::MusicView;
    return m_settings.Number(KeyOf(choice), isFromBeginning ? 1 : 0, 0, 1) != 0;
}

void OwnChoices::Set(Choice choice, bool on)
{
    m_settings.Set(KeyOf(choice), on ? "1" : "0");
    IgnoreFailure(m_settings.Save());
}

} // namespace zentaro
