#include "app/Sequencer.h"

#include "base/Paths.h"
#include "base/Words.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace zentaro {

namespace {

constexpr double kAhead = 4000; // ms at normal speed: enough for a slow disk

}

std::int16_t ItemNumber(int index)
{
    return index <= std::numeric_limits<std::int16_t>::max() ? static_cast<std::int16_t>(index) : std::int16_t{ -1 };
}

Sequencer::Sequencer(Rooms rooms)
    : m_rooms(rooms)
{
}

void Sequencer::PlayItem(std::int16_t index, bool fullScreen)
{
    const auto entry = Entries().EntryAt(index);
    if (!entry)
        return;
    auto& transport = m_rooms.transport;
    const auto& path = entry->FullPath;
    transport.Open(
        DiscSession::ItemOf(*entry), { path, DiscSession::IsDiscLocation(path) }, m_rooms.settings.ItemOptions(path));
    transport.Play();
    m_rooms.window.ShowCaption();
    if (Known().WindowFitsFilm() && entry->Facts.width > 0 && entry->Facts.height > 0)
        m_rooms.face.window->FitFilm(entry->Facts.width, entry->Facts.height);
    if (!Known().HistoryIsTidy())
        m_rooms.history.AddToHistory(path, Entries().List().SelectedText());
    else if (m_rooms.settings.Settings().KeepHistory != 0)
        m_rooms.history.AddNewest(path, entry->Title);
    Entries().List().SetPlayingItem(index);
    transport.ItemStarted(Known().SpeedStays());
    if (fullScreen)
        transport.Host().ToggleFullScreen();
}

void Sequencer::Chosen(Way way)
{
    m_failuresInRow = 0;
    m_way = way;
    m_rooms.window.BringFilmForward();
}

void Sequencer::PlayChosen(int index, bool fullScreen)
{
    Chosen(Way::ByTheModes);
    PlayItem(ItemNumber(index), fullScreen);
}

void Sequencer::PlayEntry(int index)
{
    Chosen(Way::ByTheModes);
    Entries().List().SetSelectedItem(index);
    PlaySelected();
}

void Sequencer::CMDPlayClick()
{
    if (Entries().Count() == 0)
        return m_rooms.library.OpenFiles(false);
    if (Known().PlayGoesOn() && m_rooms.transport.State().isPaused)
        return m_rooms.transport.CMDPauseClick();
    Chosen(Way::ByTheModes);
    if (m_rooms.transport.Item().kind == TransportItem::Kind::DriveDisc)
        m_rooms.discs.Play();
    else
        PlaySelected();
}

void Sequencer::PlaySelected()
{
    auto& list = Entries().List();
    if (list.SelectedItem() < 0)
        list.SetSelectedItem(0);
    Entries().MovePositionToSelected();
    PlayItem(ItemNumber(list.SelectedItem()), false);
}

void Sequencer::PlayOrPause()
{
    if (m_rooms.transport.State().mediaControlsEnabled)
        return m_rooms.transport.CMDPauseClick();
    // A removal can leave the selection behind the last entry.
    auto& list = Entries().List();
    if (list.SelectedItem() >= list.Count())
        list.SetSelectedItem(list.Count() - 1);
    CMDPlayClick();
}

void Sequencer::PlayPause()
{
    if (Entries().Count() > 0)
        return m_rooms.transport.CMDPauseClick();
    m_rooms.library.OpenFiles(false, [this] { m_rooms.menus.SmartMenuXP1.SetEnabled("Stop", true); });
}

void Sequencer::cmdNextClick()
{
    if (!m_rooms.transport.State().mediaControlsEnabled)
        return;
    Chosen(Way::Forward);
    StepOn();
}

void Sequencer::cmdPreviousClick()
{
    if (!m_rooms.transport.State().mediaControlsEnabled)
        return;
    Chosen(Way::Back);
    StepOn();
}

void Sequencer::StepOn()
{
    if (Known().FollowsWhatPlays())
        Entries().StandOn(Entries().IndexOfPath(m_rooms.transport.Item().path));
    if (Known().StepsShuffled()) {
        if (const auto index = Entries().StepInOrder(m_way == Way::Back))
            PlayItem(ItemNumber(*index), false);
        return;
    }
    if (const auto index = m_way == Way::Back ? Entries().StepPrevious() : Entries().StepNext())
        PlayItem(ItemNumber(*index), false);
}

void Sequencer::ListClicked()
{
    if (Known().FollowsWhatPlays())
        return;
    Entries().OnClick(m_rooms.settings.Settings().PlayMode);
}

void Sequencer::ListRightPressed(int row)
{
    if (Known().RightPressSelects() && row >= 0 && !Entries().List().Item(row).IsMarked)
        Entries().List().SetSelectedItem(row);
}

void Sequencer::ListDoubleClicked()
{
    const auto index = Entries().DoubleClickedIndex();
    if (!index)
        return;
    PlayChosen(*index, false);
    if (!Known().DoubleClickKeepsList())
        m_rooms.window.SetPlaylistPosition(PlaylistDock::Hidden);
    Entries().MovePositionToSelected();
}

void Sequencer::SetPlayMode(std::int32_t mode)
{
    m_rooms.settings.SetPlayMode(mode);
    m_rooms.menus.SmartMenuXP1.CheckOnly(kPlayModeKeys, static_cast<std::size_t>(mode));
    Entries().BuildOrder(mode);
    m_rooms.face.window->StateChanged();
}

void Sequencer::SetRepeatMode(std::int32_t mode)
{
    m_rooms.settings.SetRepeatMode(mode);
    m_rooms.menus.SmartMenuXP1.CheckOnly(kRepeatModeKeys, static_cast<std::size_t>(mode));
    m_rooms.face.window->StateChanged();
}

void Sequencer::DoAfter(std::int16_t action)
{
    m_afterPlay.DoAfter(action);
    m_rooms.menus.SmartMenuXP1.CheckOnly(kAfterPlayKeys, m_afterPlay.MarkedItem());
    m_rooms.face.window->StateChanged();
}

void Sequencer::DoAfterFinishPlay()
{
    m_afterPlay.DoAfterFinishPlay(
        m_rooms.power, [this] { m_rooms.face.window->CloseWindow(); }, Known().AfterPlayAsNamed());
}

bool Sequencer::IsRoundOfFailures() const
{
    const bool isOneEnough = m_way == Way::ByTheModes && m_rooms.settings.Settings().RepeatMode == kRepeatSingle;
    return m_failuresInRow >= (isOneEnough ? 1 : m_rooms.library.Entries().Count());
}

void Sequencer::ItemEnded(bool failed)
{
    if (failed)
        return ItemFailed();
    m_failuresInRow = 0;
    m_way = Way::ByTheModes;
    if (std::exchange(m_stopsAfterThis, false))
        return Follow({}, true);
    const auto& settings = m_rooms.settings.Settings();
    if (Known().FollowsWhatPlays())
        Entries().StandOn(Entries().IndexOfPath(m_rooms.transport.Item().path));
    Follow(Entries().OnEndOfItem(settings.PlayMode, RepeatModeAtEnd()), true);
}

std::int32_t Sequencer::RepeatModeAtEnd() const
{
    const auto mode = m_rooms.settings.Settings().RepeatMode;
    const bool endsRounds = Known().AfterPlayEndsRounds() && m_afterPlay.AfterPlayAction() != 0;
    return endsRounds && mode == kRepeatAll ? kNoRepeat : mode;
}

bool Sequencer::IsNearEnd() const
{
    const auto& state = m_rooms.transport.State();
    return state.mediaControlsEnabled && !state.isPaused && state.length > 0
        && state.length - state.elapsed < kAhead * std::max(state.chosenRate, 1.0);
}

void Sequencer::LookAhead()
{
    auto& host = m_rooms.transport.Host();
    if (IsNearEnd())
        host.Expect(WhatFollows());
    else
        host.Expect({});
}

std::optional<ExpectedItem> Sequencer::WhatFollows()
{
    const auto& item = m_rooms.transport.Item();
    if (m_stopsAfterThis || item.IsDisc())
        return std::nullopt;
    const auto present = Known().FollowsWhatPlays() ? Entries().IndexOfPath(item.path) : std::nullopt;
    const auto index = Entries().FollowsAtEnd(m_rooms.settings.Settings().PlayMode, RepeatModeAtEnd(), present);
    const auto next = index ? Entries().EntryAt(*index) : std::nullopt;
    if (!next || DiscSession::IsDiscLocation(next->FullPath))
        return std::nullopt;
    ExpectedItem expected;
    expected.location.text = next->FullPath;
    expected.options = m_rooms.settings.ItemOptions(next->FullPath);
    return expected;
}

void Sequencer::Follow(const EndOfItem& next, bool hasPlayed)
{
    if (next.action == EndOfItem::Action::StopAndAfterPlay) {
        m_rooms.transport.cmdStopClick();
        if (hasPlayed)
            DoAfterFinishPlay();
    } else if (next.action == EndOfItem::Action::RestartSame) {
        m_rooms.transport.cmdStopClick();
        if (Entries().Count() > 0)
            PlaySelected();
        else
            m_rooms.library.OpenFiles(false); // emptied while its last item played
    } else if (Entries().EntryAt(next.index)) {
        PlayItem(ItemNumber(next.index), false);
    } else {
        GoIdle(); // the order names an entry that was removed
    }
}

// What has not played has not ended: nothing that belongs to the end of playback follows.
void Sequencer::ItemFailed()
{
    ++m_failuresInRow;
    const auto path = m_rooms.transport.Item().path;
    if (IsRoundOfFailures()) {
        m_failuresInRow = 0;
        m_rooms.transport.cmdStopClick();
        const bool isOnly = Entries().Count() <= 1;
        m_rooms.face.window->ShowNote(isOnly
                ? Words("%1 cannot be played", { FileNamePart(path, m_rooms.settings.Separator()) })
                : Words("Nothing in the playlist can be played"));
        return;
    }
    m_rooms.face.window->ShowNote(Words("%1 cannot be played", { FileNamePart(path, m_rooms.settings.Separator()) }));
    if (m_way != Way::ByTheModes)
        return StepOn();
    const auto& settings = m_rooms.settings.Settings();
    Follow(Entries().OnEndOfItem(settings.PlayMode, settings.RepeatMode), false);
}

void Sequencer::GoIdle()
{
    m_rooms.transport.cmdStopClick();
    m_rooms.window.ClearCaption();
}

} // namespace zentaro
