#include "app/Player.h"

#include "app/Commands.h"
#include "app/ListFiles.h"
#include "app/Snapshots.h"
#include "base/Paths.h"
#include "base/Words.h"
#include "playlist/ListFile.h"
#include "playlist/MediaTypes.h"

#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr const char* kRunningMark = "QuorvaneZentaro";
constexpr auto kAfterStart = 2s; // then nobody waits for anything any more
constexpr const char* kNotKept = "Config.cfg cannot be read at the moment: the settings of this run are not kept.";

} // namespace

Player::Player(PlayerWorld world)
    : m_world(std::move(world))
    , m_keys(m_world.own)
    , m_choices(m_world.own)
    , m_settings(m_world.settingsFolder, m_world.separator)
    , m_transport(
          m_world.engines, [this](bool fullScreen) { m_face.window->SetFullScreen(fullScreen); }, *this)
    , m_library(*this, m_world.inspections, m_world.random, m_world.separator)
    , m_window(m_settings, m_transport, m_library.Entries(), m_face)
    , m_history(m_world.historyStore, m_menus, m_world.runForHistory)
    , m_discs(m_world.discs, m_settings, m_transport, m_library, m_menus, m_window, m_face)
    , m_sequencer({ m_settings, m_transport, m_library, m_discs, m_menus, m_history, m_window, m_world.power, m_face })
    , m_editor({ m_settings, m_transport, m_library, m_menus, m_face, [this] { m_memory.Look(); } })
    , m_memory(
          { m_world.settingsFolder, m_world.separator, m_world.after, m_world.runInBackground, m_world.isRemovable },
          { m_choices, m_settings, m_transport, m_library, m_sequencer, m_face })
    , m_tools({ m_world.engines, m_transport, m_library, m_sequencer, m_memory, m_face, m_world.after })
    , m_instance(m_world.handOver, m_world.store, m_world.separator)
    , m_associations(m_world.associations, m_world.associationStore, m_world.separator)
{
}

Player::~Player() = default;

std::vector<std::string> Player::FurtherFiles() const
{
    // May be asked before the choice is applied.
    const bool namesFiles = zentaro::Ways{ m_choices.Has(Choice::FamiliarWays) }.LineNamesFiles();
    if (!namesFiles || m_world.files.empty())
        return {};
    return { m_world.files.begin() + 1, m_world.files.end() };
}

StartupRequest Player::RequestOf(const std::string& commandLine) const
{
    return ReadCommandLine(FurtherFiles().empty() ? commandLine : m_world.files.front(), m_world.fileExists);
}

void Player::Expect(const std::string& commandLine)
{
    const auto path = RequestOf(commandLine).StartupArgument;
    // Where a player is there already, this process is most likely its messenger.
    if (m_instance.IsPlayerThere())
        return;
    m_isExpected = true;
    IgnoreFailure(m_world.engines.Prepare()); // it is told when the player is up
    if (m_world.fileExists(path) && IsSupportedFile(path, m_world.separator))
        m_world.inspections.Expect(path);
}

bool Player::Load(const std::string& commandLine, PlayerFace face)
{
    m_face = face;
    platform::MarkPlayerRunning(kRunningMark);
    m_world.power.EnableShutdownPrivilege();
    LoadConfigurations();
    m_history.LoadHistory();
    MediaControlsSet(false);
    m_sequencer.SetPlayMode(Settings().PlayMode);
    m_sequencer.SetRepeatMode(Settings().RepeatMode);
    m_sequencer.DoAfter(0);
    ApplyWays();
    // The engine draws in the window before it is seen; one that gets its place later would not know of it.
    m_face.window->PlaceWindow();
    if (m_isExpected)
        ReadyStartupFile(RequestOf(commandLine));
    if (!m_instance.BecomePlayer(RequestOf(commandLine), Settings().UseNewPlayer != 0, Ways().TakesAllMedia())) {
        m_world.engines.Forget();
        m_instance.AddElsewhere(FurtherFiles());
        return false;
    }
    const auto prepared = m_world.engines.Prepare();
    m_memory.Load();
    // The file's inspection is under way while the window comes up.
    OpenStartupFile();
    m_window.SetPlaylistPosition(m_settings.StoredDock());
    m_face.window->ShowWindow();
    if (!m_settings.IsRead())
        m_face.window->ShowNote(kNotKept);
    if (!prepared)
        m_face.dialogs->ShowNotice({ prepared.error().text, NoticeIcon::Critical }, [] {});
    m_instance.Receive([this](const std::string& text, auto done) { ReceiveText(text, std::move(done)); });
    m_instance.ReceiveAdded([this](const std::string& path) {
        m_face.window->FlashCaption();
        m_library.DropOnList({ path });
    });
    return true;
}

void Player::LoadConfigurations()
{
    m_settings.LoadConfigurations(m_face.window->Extent());
    m_window.SetLoadedOptions();
}

void Player::ApplyWays()
{
    m_settings.SetWays({ m_choices.Has(Choice::FamiliarWays) });
    m_library.TakeAllMedia(Ways().TakesAllMedia());
    m_transport.LetEngineEndItems(Ways().EngineEndsItems());
}

void Player::SetFamiliarWays(bool on)
{
    m_choices.Set(Choice::FamiliarWays, on);
    ApplyWays();
    m_face.window->StateChanged();
}

void Player::OpenStartupFile()
{
    const auto& path = m_instance.Request().StartupArgument;
    const bool isOurs =
        IsMediaFile(path, m_world.separator, Ways().TakesAllMedia()) || ListFormatOf(path, m_world.separator);
    if (!m_world.fileExists(path) || !isOurs)
        return StartIsOver();
    const bool plays = m_instance.Request().ReplaceOnOpen;
    m_library.LoadThumb(FileNamePart(path, m_world.separator), path, Settings().LaunchFullScreen != 0, plays,
        [this](AddOutcome outcome) {
            if (outcome != AddOutcome::Added)
                m_world.engines.Forget();
            if (const auto others = FurtherFiles(); !others.empty())
                m_library.DropOnList(others);
            StartIsOver();
        });
    if (!m_isExpected)
        ReadyStartupFile(m_instance.Request());
}

void Player::ReadyStartupFile(const StartupRequest& request)
{
    const auto& path = request.StartupArgument;
    // The engine opens the file while it is inspected.
    if (request.ReplaceOnOpen && m_world.fileExists(path)
        && IsMediaFile(path, m_world.separator, Ways().TakesAllMedia()) && !ListFormatOf(path, m_world.separator))
        m_world.engines.MakeReady({ path, false }, m_settings.ItemOptions(path));
}

void Player::StartIsOver()
{
    m_starting = false;
    // What settings that could not be read say of types of files is not known.
    if (!m_settings.IsRead())
        return;
    m_associations.Postpone();
    m_world.after(kAfterStart, [this] { m_associations.ApplyPostponed(Settings().Associations); });
}

void Player::ReceiveText(const std::string& text, platform::HandOverDone done)
{
    if (text.empty())
        return done();
    m_face.window->FlashCaption();
    constexpr std::string_view added = " *Add";
    if (Ways().AddIsObeyed() && text.ends_with(added)) {
        m_library.DropOnList({ text.substr(0, text.size() - added.size()) });
        return done();
    }
    // Whether it plays at once depends on how this player itself was started; the text is opened as it stands.
    m_library.LoadThumb(FileNamePart(text, m_world.separator), text, Settings().LaunchFullScreen != 0,
        m_instance.Request().ReplaceOnOpen, [done = std::move(done)](AddOutcome) { done(); });
}

void Player::Unload()
{
    m_library.Close();
    m_history.Close();
    IgnoreFailure(WriteConfigurations());
    m_memory.SaveNow();
    m_associations.Close(Settings().Associations);
    m_world.holdOffSleep(false);
    // The engine goes with the process: stopping it first would make the end wait for its threads.
    m_window.RemoveTrayIcon();
    m_instance.Close();
    m_world.endProcess();
}

Result<void> Player::WriteConfigurations()
{
    const auto& window = *m_face.window;
    const bool isPlaceKept = m_starting || window.IsMaximized();
    return m_settings.WriteConfigurations(
        isPlaceKept ? std::nullopt : std::optional(WindowPlace{ window.WindowLeft(), window.WindowTop() }));
}

void Player::CommitOptions(const SettingsPages& shown, const SettingsPages& chosen)
{
    // Again, so that what was chosen joins what the file holds.
    m_settings.TryAgain();
    m_settings.TakePages(shown, chosen);
    // To remember the size means the present one; that of an earlier run would make the window jump.
    if (chosen.rememberLastSize && !shown.rememberLastSize)
        m_settings.SetWindowSize(m_face.window->WindowWidth(), m_face.window->WindowHeight());
    IgnoreFailure(WriteConfigurations());
    m_settings.SaveVLCOptions();
    m_window.OptionsCommitted();
    if (m_settings.IsRead())
        m_associations.Apply(Settings().Associations);
    else
        m_face.window->ShowNote(kNotKept);
}

void Player::WindowResized(int width, int height)
{
    if (!m_starting)
        m_window.WindowResized(width, height);
}

void Player::RunCommand(std::string_view key)
{
    const auto* const item = m_menus.SmartMenuXP1.Find(key);
    if (item != nullptr && item->enabled && item->visible)
        zentaro::RunCommand(*this, item->command, item->slot);
}

void Player::PlayHistoryItem(int slot)
{
    m_library.LoadThumb(m_history.TitleAt(slot), m_history.PathAt(slot), false, true);
}

void Player::TakeSnapshot()
{
    zentaro::TakeSnapshot(m_transport, m_settings, *m_face.window, m_world.separator);
}

bool Player::CanTakeSnapshot() const
{
    return zentaro::CanTakeSnapshot(m_transport);
}

void Player::OnPositionTick()
{
    // The word in place of the time stays until the disc plays.
    if (m_discs.IsStarting())
        return;
    m_memory.Tick();
    m_tools.Tick();
    const auto end = m_transport.OnPositionTick();
    if (end && !end->hasFailed)
        m_memory.ItemEnded();
    if (end)
        end->isDisc ? m_discs.Ended(end->hasFailed) : m_sequencer.ItemEnded(end->hasFailed);
    m_sequencer.LookAhead();
    const bool isAdding = m_library.Adding().total > 0;
    if (!State().mediaControlsEnabled && !m_starting && !isAdding)
        m_discs.Watch();
    // How far the adding is shows in the window, and that it is over.
    if (std::exchange(m_wasAdding, isAdding) || isAdding)
        m_face.window->StateChanged();
}

bool Player::NeedsTicks() const
{
    return State().mediaControlsEnabled || m_discs.IsStarting() || m_library.Adding().total > 0 || m_starting
        || !m_discs.IsWatching();
}

void Player::MediaControlsSet(bool enabled)
{
    m_menus.SmartMenuXP1.SetEnabled({ "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" }, enabled);
    if (!enabled)
        Entries().List().SetPlayingItem(FancyListItems::kNone);
}

void Player::RateChanged(const RateChange& change)
{
    if (change.increaseEnabled)
        m_menus.SmartMenuXP1.SetEnabled("IncreaseSpeed", *change.increaseEnabled);
    if (change.decreaseEnabled)
        m_menus.SmartMenuXP1.SetEnabled("DecreaseSpeed", *change.decreaseEnabled);
}

void Player::TransportChanged()
{
    m_memory.Look();
    m_world.holdOffSleep(Settings().DisableScreenSaver != 0 && State().isWatched);
    m_world.inspections.GiveWay(State().mediaControlsEnabled && !State().isPaused);
    m_library.UpdatePictures();
    m_face.window->StateChanged();
}

void Player::ShowNotice(const Notice& notice, std::function<void()> closed)
{
    m_face.dialogs->ShowNotice(notice, std::move(closed));
}

void Player::EntryAdded()
{
    if (Entries().Count() > 0)
        m_menus.SmartMenuXP1.SetEnabled({ "Remove", "RemoveAll", "Next", "Previous" }, true);
    m_library.UpdatePictures();
    m_memory.Look();
    m_face.window->StateChanged();
}

void Player::ThumbnailChanged()
{
    m_library.UpdatePictures();
    m_face.window->StateChanged();
}

void Player::FilesFound(const FoundFiles& found)
{
    TakeFound(*this, found);
}

void Player::ShowFailures(int failed, int total)
{
    m_face.window->ShowOffer(
        Words("%1 of %2 could not be opened", { std::to_string(failed), std::to_string(total) }), "ShowFailures");
}

void Player::AddProgressChanged()
{
    if (m_library.Adding().total == 0)
        Entries().Edits().EndAdding();
    m_face.window->StateChanged();
}

void Player::AskForFiles(
    const std::string& title, const std::string& filter, std::function<void(std::vector<std::string>)> chosen)
{
    m_face.dialogs->AskForFiles(title, filter, std::move(chosen));
}

} // namespace zentaro
