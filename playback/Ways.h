#pragma once

namespace zentaro {

/// The ways that people know from other players, beside those that are ours. One choice changes all of them; each is
/// asked for where it counts, under its name here and nowhere else. What is not named here is the same in both.
struct Ways {
    bool isFamiliar = false;

    /// Play goes on from a pause; ours starts the item over.
    bool PlayGoesOn() const { return isFamiliar; }
    /// A right press selects the row; ours leaves the selection.
    bool RightPressSelects() const { return isFamiliar; }
    /// What follows is what stands behind the playing row; ours goes on from the row that was clicked, and passes one
    /// over after a removal.
    bool FollowsWhatPlays() const { return isFamiliar; }
    /// Next and Previous go through the shuffled order; ours go to the neighbours in the list.
    bool StepsShuffled() const { return isFamiliar; }
    /// Recent files: the newest first, each once, none while "Keep History" is off; ours keeps their first places.
    bool HistoryIsTidy() const { return isFamiliar; }
    /// The entries for the end of playing do what they say; ours do what the next one says.
    bool AfterPlayAsNamed() const { return isFamiliar; }
    /// They run at the end of the list under repeat all, too, and the list then ends; ours never runs them there.
    bool AfterPlayEndsRounds() const { return isFamiliar; }
    /// A double click leaves the list in sight; ours hides it.
    bool DoubleClickKeepsList() const { return isFamiliar; }
    /// A chosen speed stays for the next item; ours begins at 1.
    bool SpeedStays() const { return isFamiliar; }
    /// All files that the tools can read are taken; ours takes the 24 types.
    bool TakesAllMedia() const { return isFamiliar; }
    /// Several files on the command line are several files, and the first one plays; ours takes the line for one name.
    bool LineNamesFiles() const { return isFamiliar; }
    /// "*Add" behind a path that is handed over adds it; ours opens the text as it stands.
    bool AddIsObeyed() const { return isFamiliar; }
    /// A file that is listed already plays where it stands, and no box comes; ours says so and plays the last one.
    bool ListedPlaysInPlace() const { return isFamiliar; }
    /// An item ends when the engine says so; ours ends when its clock shows the full length, half a second early.
    bool EngineEndsItems() const { return isFamiliar; }
    /// The window takes the size of a film that starts; ours stays as it is.
    bool WindowFitsFilm() const { return isFamiliar; }
    /// What could not be added, of more files than one, is told in one note; ours says nothing of what is no media, and
    /// shows boxes for the rest.
    bool FailuresAreGathered() const { return isFamiliar; }
    /// The list of last time comes back at the start, and films go on where they were; ours offers both.
    bool GoesOnByItself() const { return isFamiliar; }
};

} // namespace zentaro
