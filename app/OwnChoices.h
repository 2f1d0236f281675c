#pragma once

namespace zentaro {

class OwnSettings;

/// What the user has chosen beside the options.
enum class Choice {
    Remembers,          ///< lists and places are kept over the player's end; from the beginning
    RemembersRemovable, ///< also those of discs that are taken out
    LowRows,            ///< more of the list's rows are in sight
    FamiliarWays,       ///< as Ways::isFamiliar
    KnowsOfWays,        ///< the choice was offered
    Previews,           ///< pictures of the places under the pointer; from the beginning
    MusicView,          ///< a song's cover and moving bars; from the beginning
};

/// These choices, each kept as soon as it is made.
class OwnChoices {
public:
    explicit OwnChoices(OwnSettings& settings)
        : m_settings(settings)
    {
    }

    bool Has(Choice choice) const;
    void Set(Choice choice, bool on);

private:
    OwnSettings& m_settings;
};

} // namespace zentaro
