#include "app/Sequencer.h"

#include <limits>
#include <utility>

namespace zentaro {

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
    m_rooms.history.AddToHistory(path, Entries().List().SelectedText());
    Entries().List().SetPlayingItem(index);
    transport.ItemStarted();
    if (fullScreen)
        transport.Host().ToggleFullScreen();
}

void Sequencer::PlayChosen(int index, bool fullScreen)
{
    m_failuresInRow = 0;
    m_rooms.window.BringFilmForward();
    PlayItem(ItemNumber(index), fullScreen);
}

void Sequencer::PlayEntry(int index)
{
    m_failuresInRow = 0;
    m_rooms.window.BringFilmForward();
    Entries().List().SetSelectedItem(index);
    PlaySelected();
}

void Sequencer::CMDPlayClick()
{
    if (Entries().Count() == 0)
        return m_rooms.library.OpenFiles(false);
    m_failuresInRow = 0;
    m_rooms.window.BringFilmForward();
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
    if (m_rooms.transport.State().mediaControlsEnabled)
        StepTo(Entries().StepNext());
}

void Sequencer::cmdPreviousClick()
{
    if (m_rooms.transport.State().mediaControlsEnabled)
        StepTo(Entries().StepPrevious());
}

void Sequencer::StepTo(std::optional<int> index)
{
    if (index)
        PlayChosen(*index, false);
}

void Sequencer::ListClicked()
{
    Entries().OnClick(m_rooms.settings.Settings().PlayMode);
}

void Sequencer::ListDoubleClicked()
{
    const auto index = Entries().DoubleClickedIndex();
    if (!index)
        return;
    PlayChosen(*index, false);
    m_rooms.window.SetPlaylistPosition(PlaylistDock::Hidden);
    Entries().MovePositionToSelected();
}

void Sequencer::RemoveSelected()
{
    Entries().RemoveSelected();
    m_rooms.face.window->StateChanged();
}

void Sequencer::RemoveAll()
{
    Entries().RemoveAll();
    m_rooms.face.window->StateChanged();
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
    m_afterPlay.DoAfterFinishPlay(m_rooms.power, [this] { m_rooms.face.window->CloseWindow(); });
}

bool Sequencer::IsRoundOfFailures() const
{
    const bool isOneEnough = m_rooms.settings.Settings().RepeatMode == kRepeatSingle;
    return m_failuresInRow >= (isOneEnough ? 1 : m_rooms.library.Entries().Count());
}

void Sequencer::ItemEnded(bool failed)
{
    m_failuresInRow = failed ? m_failuresInRow + 1 : 0;
    const auto& settings = m_rooms.settings.Settings();
    const auto next = Entries().OnEndOfItem(settings.PlayMode, settings.RepeatMode);
    if (next.action == EndOfItem::Action::StopAndAfterPlay) {
        m_rooms.transport.cmdStopClick();
        DoAfterFinishPlay();
    } else if (failed && IsRoundOfFailures()) {
        m_failuresInRow = 0;
        m_rooms.transport.cmdStopClick();
        m_rooms.face.window->ShowNote("Nothing in the playlist can be played");
    } else if (next.action == EndOfItem::Action::RestartSame) {
        m_rooms.transport.cmdStopClick();
        if (Entries().Count() > 0)
            PlaySelected();
        else
            m_rooms.library.OpenFiles(false); // emptied while its last item played
    } else {
        // An index that a removal has left behind plays nothing.
        PlayItem(ItemNumber(next.index), false);
    }
}

} // namespace zentaro
