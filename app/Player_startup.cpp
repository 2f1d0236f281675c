#include "app/Player.h"

#include "base/Numbers.h"
#include "base/Paths.h"
#include "platform/Files.h"
#include "shell/Caption.h"

#include <utility>

// The player's beginning and end, and its settings.
namespace zentaro {

namespace {

constexpr const char* kRunningMark = "QuorvaneZentaro";
constexpr std::size_t kConfigLimit = 1 << 20; // bytes; 46 lines are far shorter

} // namespace

bool Player::Load(const std::string& commandLine)
{
    m_starting = true;
    m_replaceOnOpen = true;
    platform::MarkPlayerRunning(kRunningMark);
    m_world.power.EnableShutdownPrivilege();
    LoadConfigurations();
    m_history.LoadHistory();
    m_world.screen.ShowIdle();
    EnableMediaControls(false);
    SetPlayMode(m_settings.PlayMode);
    SetRepeatMode(m_settings.RepeatMode);
    DoAfter(0);
    m_startup = ReadCommandLine(commandLine, m_world.fileExists);
    m_replaceOnOpen = m_startup.ReplaceOnOpen;
    if (!BecomePlayer())
        return false;
    m_world.engines.Prepare();
    // The file's inspection is under way while the window comes up.
    const auto opening = OpenStartupFile();
    m_world.screen.SetPlaylistPosition(StoredDock());
    m_world.screen.ShowWindow();
    if (opening)
        WaitForFile(*opening);
    ApplyAssociationsLater();
    m_starting = false;
    return true;
}

bool Player::BecomePlayer()
{
    const auto key = platform::SettingsKey(kApplicationTitle, "Setting");
    const auto read = [&](const char* name, const char* fallback) {
        return m_world.store.Read(platform::StringStore::Root::CurrentUser, key, name, fallback);
    };
    // A player can end between the test and the call: then its caller asks once more, and calls nobody any more.
    for (bool mayCall = true;; mayCall = false) {
        auto lock = m_world.handOver.lock();
        const PublishedHandles handles{ read("txtHwnd", "-1"), read("txtHwnd1", "") };
        const auto role =
            DecideRole(m_startup, handles, m_settings.UseNewPlayer != 0, m_world.handOver.isAlive, m_world.separator);
        if (role.kind == StartRole::Kind::Player || (role.kind == StartRole::Kind::Caller && !mayCall)) {
            Publish();
            return true;
        }
        lock.reset();
        const bool taken = role.text.empty() || m_world.handOver.send(role.handle, role.text);
        if (taken || role.kind == StartRole::Kind::Messenger)
            return false;
    }
}

void Player::Publish()
{
    auto ends = m_world.handOver.listen();
    if (!ends)
        return; // a player that cannot be reached plays all the same
    m_ends = std::move(*ends);
    const auto key = platform::SettingsKey(kApplicationTitle, "Setting");
    const auto write = [&](const char* name, const std::string& handle) {
        IgnoreFailure(m_world.store.Write(platform::StringStore::Root::CurrentUser, key, name, handle));
    };
    write("txtHwnd", m_ends->CommandHandle());
    write("txtHwnd1", m_ends->ProbeHandle());
    m_ends->Deliver([this](const std::string& text, const platform::HandOverDone& done) {
        ReceiveText(text);
        done();
    });
}

std::optional<int> Player::OpenStartupFile()
{
    const auto& path = m_startup.StartupArgument;
    if (!m_world.fileExists(path) || !IsSupportedFile(path, m_world.separator))
        return std::nullopt;
    return m_adding.Add({ RequestFromOutside(path) });
}

void Player::ReceiveText(const std::string& text)
{
    if (text.empty())
        return;
    m_world.screen.FlashCaption();
    // Whether it plays at once depends on how this player itself was started; the text is opened as it stands.
    const auto request = RequestFromOutside(text);
    LoadThumb(request.title, request.path, request.playFlag, request.playNow);
}

AddRequest Player::RequestFromOutside(const std::string& path) const
{
    return { FileNamePart(path, m_world.separator), path, m_settings.LaunchFullScreen != 0, m_replaceOnOpen };
}

void Player::Unload()
{
    if (std::exchange(m_ended, true))
        return;
    m_adding.Close();
    if (m_associationsPending)
        ApplyAssociations();
    IgnoreFailure(WriteConfigurations());
    m_world.holdOffSleep(false);
    // The engine goes with the process: stopping it first would make the end wait for its threads.
    m_world.screen.SetTrayShown(false);
    m_ends.reset();
    m_world.endProcess();
}

std::string Player::ConfigPath() const
{
    return m_world.settingsFolder + "Config.cfg";
}

void Player::LoadConfigurations()
{
    const auto text = platform::ReadTextFile(ConfigPath(), kConfigLimit);
    auto loaded = text ? ParseConfigurations(*text) : std::nullopt;
    const auto desktop = platform::DesktopFolder();
    if (!loaded) {
        loaded = DefaultSettings(desktop, m_world.screen.Extent());
        // A damaged file is replaced, a missing one made; one that must not be written stays as it is.
        if (!platform::PathExists(ConfigPath()) || platform::MayWriteFile(ConfigPath()))
            IgnoreFailure(platform::ReplaceTextFile(ConfigPath(), FormatConfigurations(*loaded)));
    } else if (loaded->DefaultFolder.find_first_not_of(' ') == std::string::npos) {
        loaded->DefaultFolder = desktop;
    }
    UseSettings(*loaded);
}

void Player::UseSettings(const PlayerSettings& settings)
{
    m_settings = settings;
    SaveVLCOptions();
    SetLoadedOptions();
}

Result<void> Player::WriteConfigurations()
{
    if (!m_starting && !m_world.screen.IsMaximized()) {
        m_settings.WindowLeft = RoundHalfEven(m_world.screen.WindowLeft());
        m_settings.WindowTop = RoundHalfEven(m_world.screen.WindowTop());
    }
    if (!platform::MayWriteFile(ConfigPath()))
        return Error{ 0, "Config.cfg cannot be replaced" };
    return platform::ReplaceTextFile(ConfigPath(), FormatConfigurations(m_settings));
}

void Player::SaveVLCOptions()
{
    m_options = OptionsFromSettings(m_settings);
}

void Player::SetLoadedOptions()
{
    // Sizes that the window takes on are recorded, so the settings are read before the first of them is.
    const auto settings = m_settings;
    if (settings.RememberLastSize != 0)
        m_world.screen.SetWindowSize(settings.WindowWidth, settings.WindowHeight);
    if (settings.RememberLastPos != 0)
        m_world.screen.SetWindowPosition(settings.WindowLeft, settings.WindowTop);
    m_world.screen.SetTopmost(settings.AlwaysOnTop != 0);
    m_world.screen.SetTrayShown(settings.ShowInTray != 0);
    if (m_mediaControlsEnabled)
        ShowCaption();
    if (m_world.screen.IsPlaylistVisible())
        m_world.screen.SetPlaylistPosition(StoredDock());
}

void Player::ApplyAssociationsLater()
{
    if (!m_modAssoc || !m_world.associations.later)
        return;
    m_associationsPending = true;
    m_world.associations.later([this] {
        if (m_associationsPending)
            ApplyAssociations();
    });
}

void Player::ApplyAssociations()
{
    m_associationsPending = false;
    if (m_modAssoc)
        m_modAssoc->ApplyAssociations(m_settings.Associations);
}

std::vector<AssociationChoice> Player::AssociationChoices()
{
    const auto& service = m_world.associations;
    if (m_modAssoc)
        m_modAssoc->AdoptLiveOwners();
    const ModIcons icons(m_world.store, service.icons, service.programFolder, m_world.separator);
    std::vector<AssociationChoice> choices;
    for (int i = 0; i < kAssociationCount; ++i) {
        const auto row = AssociationRowAt(i, m_world.separator);
        choices.push_back({ row.listText, service.icons.loadPicture ? icons.OwnerIcon(row.extension) : Picture() });
    }
    return choices;
}

PlaylistDock Player::StoredDock() const
{
    const auto position = m_settings.PlaylistPosition;
    return position >= 0 && position <= 4 ? static_cast<PlaylistDock>(position) : PlaylistDock::Left;
}

void Player::WindowResized(int width, int height)
{
    if (m_starting || m_world.screen.IsMaximized())
        return;
    m_settings.WindowWidth = width;
    m_settings.WindowHeight = height;
}

} // namespace zentaro
