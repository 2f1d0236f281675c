#include "app/ListCommands.h"

#include "app/ListFiles.h"
#include "app/Player.h"
#include "base/Words.h"

#include <array>

namespace zentaro {

namespace {

constexpr Keys<1> kAltDown{ "Alt+Down" }, kAltReturn{ "Alt+Return" }, kAltUp{ "Alt+Up" }, kCtrlA{ "Ctrl+A" },
    kCtrlJ{ "Ctrl+J" }, kCtrlN{ "Ctrl+N" }, kBackspace{ "Backspace" }, kCtrlShiftT{ "Ctrl+Shift+T" },
    kCtrlShiftS{ "Ctrl+Shift+S" }, kCtrlZ{ "Ctrl+Z" }, kF3{ "F3" };
constexpr Keys<2> kRedo{ "Ctrl+Shift+Z", "Ctrl+Y" };

bool HasEntries(const Player& player)
{
    return player.Entries().Count() > 0;
}

bool IsAnyChosen(const Player& player)
{
    return player.Entries().SelectedEntry() || player.Entries().List().IsAnyMarked();
}

bool HasSelection(const Player& player)
{
    return player.Entries().SelectedEntry().has_value();
}

Notice PropertiesOf(const PlaylistEntry& entry)
{
    const auto detail = DetailText(entry.Facts);
    return { entry.FullPath + "\r\n" + (detail.empty() ? "" : detail + "\r\n") + "\r\n" + entry.MediaInfo,
        NoticeIcon::Information, entry.Title };
}

template <int Step> void MoveBy(Player& player, int)
{
    player.Editing().MoveBy(Step);
}

template <ListSort By> void Sort(Player& player, int)
{
    player.Editing().Sort(By);
}

template <Choice Kind> bool Has(const Player& player)
{
    return player.Choices().Has(Kind);
}

template <Choice Kind> void Switch(Player& player, int)
{
    player.Choices().Set(Kind, !player.Choices().Has(Kind));
    player.Face().window->StateChanged();
}

constexpr std::array kCommands{
    Command{ "PlayNext", "Play &Next", kCtrlN, [](Player& player, int) { player.Editing().PlayNext(); }, IsAnyChosen },
    Command{ "ShowInFolder", "Show in &Folder", {},
        [](Player& player, int) {
            if (const auto entry = player.Entries().SelectedEntry())
                player.Face().dialogs->ShowFolderOf(entry->FullPath);
        },
        HasSelection },
    Command{ "Properties", "P&roperties", kAltReturn,
        [](Player& player, int) {
            if (const auto entry = player.Entries().SelectedEntry())
                player.Face().dialogs->ShowNotice(PropertiesOf(*entry), [] {});
        },
        HasSelection },
    Command{ "UndoListEdit", "&Undo", kCtrlZ, [](Player& player, int) { player.Editing().Undo(); },
        [](const Player& player) { return player.Entries().Edits().CanUndo(); } },
    Command{ "RedoListEdit", "R&edo", kRedo, [](Player& player, int) { player.Editing().Redo(); },
        [](const Player& player) { return player.Entries().Edits().CanRedo(); } },
    Command{ "SelectAll", "Select &All", kCtrlA,
        [](Player& player, int) { player.Entries().List().MarkOnly(0, player.Entries().Count()); }, HasEntries },
    Repeated("MoveEntryUp", "Move U&p", kAltUp, MoveBy<-1>, IsAnyChosen),
    Repeated("MoveEntryDown", "Move &Down", kAltDown, MoveBy<1>, IsAnyChosen),
    Command{ "SortByName", "Sort by &Name", {}, Sort<ListSort::Name>, HasEntries },
    Command{ "SortByLength", "Sort by &Length", {}, Sort<ListSort::Length>, HasEntries },
    Command{ "SortByDate", "Sort by &Date", {}, Sort<ListSort::Date>, HasEntries },
    Command{ "SortBySize", "Sort by &Size", {}, Sort<ListSort::Size>, HasEntries },
    Command{ "SortByFolder", "Sort by &Folder", {}, Sort<ListSort::Folder>, HasEntries },
    Command{ "ShowCurrent", "Show &What Plays", kCtrlJ,
        [](Player& player, int) { player.Entries().List().ShowRow(player.Entries().List().PlayingItem()); },
        [](const Player& player) { return player.Entries().List().PlayingItem() >= 0; } },
    Command{ "BringBack", "&Bring Back the Last List", kCtrlShiftT,
        [](Player& player, int) { player.Remembering().BringBack(); },
        [](const Player& player) { return !player.Remembering().LastTime().empty(); } },
    Command{ "GoToLastPlace", "&Go to Where I Was", kBackspace,
        [](Player& player, int) { player.Remembering().GoToLastPlace(); },
        [](const Player& player) { return player.Remembering().LastPlace() > 0; } },
    Command{ "StartOver", "Start &Over", {}, [](Player& player, int) { player.Remembering().StartOver(); },
        [](const Player& player) { return player.State().mediaControlsEnabled; } },
    Command{ .id = "Remember",
        .caption = "&Remember Lists and Places",
        .run = [](Player& player, int) { player.Remembering().SetRemembering(!player.Remembering().IsRemembering()); },
        .isChecked = [](const Player& player) { return player.Remembering().IsRemembering(); } },
    Command{ .id = "RememberRemovable",
        .caption = "Also of &Discs That Are Taken Out",
        .run = Switch<Choice::RemembersRemovable>,
        .isChecked = Has<Choice::RemembersRemovable> },
    Command{ "NeverRemember", "&Nothing in This Folder", {},
        [](Player& player, int) {
            if (const auto entry = player.Entries().SelectedEntry())
                player.Remembering().ForgetFolderOf(
                    entry->FullPath, !player.Remembering().IsFolderForgotten(entry->FullPath));
        },
        HasSelection,
        [](const Player& player) {
            const auto entry = player.Entries().SelectedEntry();
            return entry && player.Remembering().IsFolderForgotten(entry->FullPath);
        } },
    Command{ .id = "CompactList",
        .caption = "&Low Rows",
        .run = Switch<Choice::LowRows>,
        .isChecked = Has<Choice::LowRows> },
    Command{ .id = "FamiliarWays",
        .caption = "&Ways as in Other Players",
        .run =
            [](Player& player, int) {
                const bool on = !player.Ways().isFamiliar;
                player.SetFamiliarWays(on);
                player.Face().window->ShowNote(Words(on ? "Ways: Familiar" : "Ways: Zentaro's own"));
            },
        .isChecked = [](const Player& player) { return player.Ways().isFamiliar; } },
    Command{ .id = "ShowFailures",
        .caption = "&Show",
        .run = [](Player& player,
                   int) { player.Face().dialogs->ShowNotice(GatherNotices(player.Files().Failures()), [] {}); },
        .isAvailable = [](const Player& player) { return !player.Files().Failures().empty(); },
        .name = "Show What Could Not Be Opened" },
    Command{ "ClearHistory", "Clear &Recent Files", {}, [](Player& player, int) { player.ClearHistory(); } },
    Command{ "ForgetEntry", "&Forget This Entry", {},
        [](Player& player, int) {
            if (const auto entry = player.Entries().SelectedEntry())
                player.Remembering().Forget(entry->FullPath);
        },
        HasSelection },
    Command{ "ForgetAll", "Forget &All", {},
        [](Player& player, int) {
            player.Remembering().ForgetAll();
            player.Face().window->ShowNote(Words("All is forgotten"));
        } },
    Command{
        "FindInList", "&Find...", kF3, [](Player& player, int) { player.Face().window->FindInList(); }, HasEntries },
    Command{ "SaveList", "Save List &As...", kCtrlShiftS, [](Player& player, int) { SaveList(player); }, HasEntries },
};

} // namespace

std::span<const Command> ListCommands()
{
    return kCommands;
}

} // namespace zentaro
