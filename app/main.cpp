#include "app/Background.h"
#include "app/Dialogs.h"
#include "app/DisplayStore.h"
#include "app/DriveQueries.h"
#include "app/InspectionThreads.h"
#include "app/Language.h"
#include "app/MediaRemote.h"
#include "app/MusicStage.h"
#include "app/MusicThreads.h"
#include "app/Player.h"
#include "app/PreviewThreads.h"
#include "app/frmMain.h"
#include "assoc/IconPicture.h"
#include "base/Paths.h"
#include "inspect/ConsoleToolRunner.h"
#include "inspect/DiskFiles.h"
#include "inspect/QtServices.h"
#include "platform/AssociationShell.h"
#include "platform/ChildProcess.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/MediaControl.h"
#include "platform/Power.h"
#include "platform/Process.h"
#include "platform/RemovableDiscs.h"
#include "platform/Window.h"
#include "playback/VideoFrame.h"
#include "playback/VlcEngines.h"
#include "shell/Caption.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <random>
#include <utility>

namespace {

using namespace zentaro;

constexpr auto kEngineDelay = std::chrono::milliseconds(100); // until the engine shows what it was told
constexpr std::int64_t kKnownFilesLimit = 512 << 20;          // bytes
constexpr std::int64_t kPreviewsLimit = 256 << 20;            // bytes
constexpr auto kTidyDelay = std::chrono::seconds(5);          // a start has shown its first picture by then

HandOverService RealHandOver()
{
    return { &platform::HandOverEnds::Listen, &platform::IsHandOverAlive, &platform::SendHandOverText,
        [] { return platform::HandOverLock::Take(std::chrono::seconds(2)); },
        [](const std::string& text) { std::fprintf(stderr, "%s\n", text.c_str()); } };
}

RandomSource RealRandom()
{
    return [engine = std::mt19937_64(std::random_device{}())]() mutable {
        return std::uniform_real_distribution<double>(0.0, 1.0)(engine);
    };
}

/// What every inspection shares. The codec names and the two pictures lie beside the program.
struct InspectionBase {
    explicit InspectionBase(const std::string& programFolder)
        : audioNames(ReadNames(programFolder + "audiomaps.txt"))
        , videoNames(ReadNames(programFolder + "videomaps.txt"))
        , files(&LocalDateText)
    {
        context.files = &files;
        context.readAviStreams = &ReadAviStreams;
        context.decodePicture = &DecodePictureFile;
        context.decodeBytes = &DecodePictureBytes;
        context.ffmpeg = FindTool("ffmpeg", programFolder);
        context.mpgtx = platform::FindTool("mpgtx", programFolder).value_or("");
        context.installAdvice = &platform::InstallAdvice;
        context.separator = platform::PathSeparator();
        context.audioCodecNames = &audioNames;
        context.videoCodecNames = &videoNames;
        const auto images = programFolder + "images" + context.separator;
        context.defaultVideoPicture = DecodePictureFile(images + "DefaultVideo.png");
        context.defaultAudioPicture = DecodePictureFile(images + "DefaultAudio.png");
    }

    static CodecNames ReadNames(const std::string& path)
    {
        constexpr std::size_t limit = 1 << 20; // bytes
        return CodecNames(platform::ReadTextFile(path, limit).value_or(""));
    }

    CodecNames audioNames;
    CodecNames videoNames;
    DiskFiles files;
    InspectionContext context;
};

/// Made by the first inspection that needs it, in its thread; the others wait for it.
InspectionThreads::SharedContext SharedInspectionBase(const std::string& programFolder)
{
    struct Shared {
        std::once_flag isMade;
        std::shared_ptr<InspectionBase> base;
    };
    return [programFolder, shared = std::make_shared<Shared>()] {
        std::call_once(shared->isMade, [&] { shared->base = std::make_shared<InspectionBase>(programFolder); });
        return std::shared_ptr<const InspectionContext>(shared->base, &shared->base->context);
    };
}

/// With a trailing separator; empty when no folder can be made, as on a full disk.
std::string MakeFolderOfThisRun()
{
    auto folder = platform::MakeWorkingFolder();
    return folder.empty() ? folder : WithTrailingSeparator(std::move(folder), platform::PathSeparator());
}

/// False when no window can be shown, which was said.
bool ChooseWindowSystem()
{
    const auto chosen = platform::WindowSystem(qgetenv("QT_QPA_PLATFORM").toStdString());
    if (!chosen)
        std::fprintf(stderr, "%s\n", chosen.error().text.c_str());
    else if (!chosen->empty())
        qputenv("QT_QPA_PLATFORM", chosen->c_str());
    return bool(chosen);
}

/// While Qt comes up: where it cannot use the plug-in that it needs it would abort.
void SayOrEnd(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type != QtFatalMsg)
        return;
    if (qgetenv("QT_QPA_PLATFORM") == "wayland")
        std::fprintf(stderr, "%s\n", platform::kNoWaylandPlugin);
    std::_Exit(1);
}

/// While Qt runs on Wayland: it leaves at once when the display goes, without a word to anybody else.
void SayOrExit(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    if (text.startsWith("The Wayland connection"))
        std::exit(1);
}

/// The window and its pictures, for the desktop's media controls.
MediaRemote::Window RemoteWindow(frmMain& window, const std::string& workingFolder)
{
    const auto raise = [&window] {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        window.show();
        window.raise();
        window.activateWindow();
    };
    const auto saveArtwork = [workingFolder](std::uint64_t track, const Picture& picture) {
        // The better picture of a film is a larger one.
        const auto path =
            workingFolder + "artwork-" + std::to_string(track) + '-' + std::to_string(picture.Width()) + ".png";
        return !workingFolder.empty() && SavePictureFile(picture, path) ? path : std::string();
    };
    return { raise, [&window] { window.close(); }, [&window] { return window.isFullScreen(); }, saveArtwork };
}

} // namespace

int main(int argc, char** argv)
{
    const auto commandLine = platform::CommandLineText({ argv + 1, argv + argc });
    if (!ChooseWindowSystem())
        return 1;
    qInstallMessageHandler(&SayOrEnd);
    const auto separator = platform::PathSeparator();
    OwnSettings own(WithTrailingSeparator(platform::SettingsFolder(), separator) + "Own.cfg");
    own.Load();
    const auto display = ReadDisplay(own);
    auto wishes = platform::SystemWishes();
    if (const auto scale = ScaleOf(display) * wishes.textScale; scale > 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    // Qt takes words of its own from the command line; all of ours belong to the file.
    int ownArgument = 1;
    QApplication application(ownArgument, argv);
    qInstallMessageHandler(QGuiApplication::platformName() == "wayland" ? &SayOrExit : nullptr);
    QApplication::setApplicationName(kApplicationTitle);
    QApplication::setDesktopFileName("zentaro");
    QApplication::setQuitOnLastWindowClosed(false);
    const auto programFolder = WithTrailingSeparator(platform::ExecutableFolder(), separator);
    const auto language =
        SpeakLanguage(application, display.language, ToQString(programFolder + "languages" + separator));
    const auto takeLook = [&] { style::Apply(application, NeedsOf(ReadDisplay(own), wishes)); };
    takeLook();
    const auto workingFolder = MakeFolderOfThisRun();
    const auto store = platform::StringStore::Open();
    const auto historyStore = platform::StringStore::Open();
    const auto associationStore = platform::StringStore::Open();
    const auto power = platform::Power::Open();
    auto sleepInhibitor = platform::SleepInhibitor::Open();
    const auto onWindowThread = [&](std::function<void()> work) {
        QMetaObject::invokeMethod(&application, std::move(work), Qt::QueuedConnection);
    };
    const auto after = [&](std::chrono::milliseconds time, std::function<void()> work) {
        QTimer::singleShot(time, &application, std::move(work));
    };

    const auto runInBackground = [&](std::function<std::function<void()>()> work) {
        RunInBackground(onWindowThread, std::move(work));
    };

    auto* const video = new VideoFrame(ToQString(programFolder) + "Audio.JPG", nullptr);
    VlcEngines engines(*video, workingFolder.empty() ? std::string() : workingFolder + "engine.log");
    const auto openCache = [separator](const char* name, std::int64_t limit) {
        const auto folder = platform::CacheFolder();
        return folder.empty() ? nullptr : platform::CacheStore::Open(folder + separator + name, limit);
    };
    const auto known = std::make_shared<KnownFiles>([openCache] { return openCache("seen.db", kKnownFilesLimit); });
    const auto inspectionBase = SharedInspectionBase(programFolder);
    InspectionThreads inspections(inspectionBase, workingFolder, onWindowThread, known);
    PreviewThreads previewThreads(
        { [inspectionBase] { return inspectionBase()->ffmpeg; }, std::not_fn(&platform::IsOnOtherMachine),
            std::make_shared<KnownPreviews>([openCache] { return openCache("previews.db", kPreviewsLimit); }),
            &DecodePictureBytes },
        onWindowThread);
    Previews previews(previewThreads, &platform::IsOnRemovableDisc, after);
    MusicThreads musicThreads({ [inspectionBase] { return inspectionBase()->ffmpeg; },
                                  [](const std::string& path) {
                                      return platform::IsOnOtherMachine(path) || platform::IsOnRemovableDisc(path);
                                  },
                                  &DecodePictureFile, workingFolder, separator },
        onWindowThread);
    Music music(musicThreads);
    DriveQueries drives(platform::Drives::Open(), onWindowThread);
    const bool isToldOfDiscs = drives.Watch();
    const auto endProcess = [&] {
        previewThreads.Close();
        musicThreads.Close();
        inspections.CancelAll();
        platform::RemoveFolder(workingFolder);
        sleepInhibitor.reset();
        platform::EndProcess();
    };
    const auto programPath = platform::ShortProgramPath();
    const auto shell = platform::AssociationShell::Open(programPath, programFolder);
    constexpr int iconSide = 64; // px: sharp in a list of a scaled display, too
    Player player({
        .engines = engines,
        .inspections = inspections,
        .store = *store,
        .historyStore = *historyStore,
        .associationStore = *associationStore,
        .power = *power,
        .handOver = RealHandOver(),
        .random = RealRandom(),
        .fileExists = &platform::PathExists,
        .endProcess = endProcess,
        .own = own,
        .files = NamedFiles({ argv + 1, argv + argc }),
        .settingsFolder = WithTrailingSeparator(platform::SettingsFolder(), separator),
        .separator = separator,
        .discs = {
            [&] { drives.Ask(); }, [&] { return DecodePictureFile(programFolder + "DVD.jpg"); }, isToldOfDiscs, after },
        .associations = { shell.get(), programPath, programFolder,
            { &platform::IconInFile, [](const std::string& file) { return LoadIconPicture(file, iconSide); } },
            runInBackground },
        .after = after,
        .runInBackground = runInBackground,
        .runForHistory = runInBackground,
        .holdOffSleep = [&](bool held) { sleepInhibitor->Hold(held); },
        .isRemovable = &platform::IsOnRemovableDisc,
    });
    player.Expect(commandLine);
    drives.onChange = [&] { player.Discs().OnDVDTick(); };
    drives.onFound = [&](auto found) { player.Discs().DrivesFound(std::move(found)); };
    inspections.onReported = [&](int ticket, Inspection report) {
        player.Files().InspectionReported(ticket, std::move(report));
    };
    inspections.onRecalled = [&](auto files) { player.Files().FilesRecalled(std::move(files)); };
    inspections.onPicturesFound = [&](auto pictures) { player.Files().PicturesFound(std::move(pictures)); };
    inspections.onCompleted = [&](int ticket, Inspection result) {
        player.Files().InspectionCompleted(ticket, std::move(result));
    };
    player.Files().Better().order = [&](const BetterOrder& order) {
        const auto found = [&player, id = order.id](
                               Picture picture) { player.Files().Better().Found(id, std::move(picture)); };
        if (order.isSong)
            musicThreads.FindRowCover(order.path, found);
        else
            previewThreads.FindTelling(order.path, order.length, found);
    };
    player.Files().Better().isStandIn = [inspectionBase](const Picture& picture) {
        return picture == inspectionBase()->defaultAudioPicture;
    };
    frmMain window(player, previews, video, ToQString(programFolder));
    Dialogs dialogs(window, player, programFolder, language);
    dialogs.onDisplayChosen = takeLook;

    // Whatever follows is not to wait for the next reading of the clock.
    engines.OnOver([&window] { window.Timers().OnMovie(); });
    MusicStage stage(player, music, *video, ToQString(programFolder) + "Audio.JPG");
    auto remoteWindow = RemoteWindow(window, workingFolder);
    remoteWindow.coverFile = [&music](std::uint64_t track) { return music.CoverFileOf(track); };
    MediaRemote remote(player, std::move(remoteWindow));
    if (!player.Load(commandLine, { &window, &dialogs }))
        endProcess();
    const auto mediaControl = platform::MediaControl::Open(
        [&](platform::MediaCommand command) {
            const auto obey = [&, asked = std::move(command)] {
                remote.Do(asked);
                // The desktop shows what it hears, and the next tick can be half a second away.
                QTimer::singleShot(kEngineDelay, &window, [&] { window.Timers().Follow(); });
            };
            QMetaObject::invokeMethod(&application, obey, Qt::QueuedConnection);
        },
        window.winId());
    window.Timers().settled = [&] {
        stage.Follow();
        if (mediaControl)
            mediaControl->Publish(remote.Status());
    };
    const auto wishWatch = platform::WishWatch::Open([&](const platform::Wishes& news) {
        onWindowThread([&, news] {
            wishes = news;
            takeLook();
        });
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
        [&] { IgnoreFailure(player.WriteConfigurations()); });
    // As at a logout, when the display is gone before anybody has asked the player to end.
    platform::OnForcedExit([&] {
        IgnoreFailure(player.WriteConfigurations());
        player.Remembering().SaveNow();
        endProcess();
    });
    after(kTidyDelay, [&] {
        RunInBackground(onWindowThread, [] {
            platform::RemoveLeftovers(platform::SettingsFolder());
            return [] {};
        });
    });
    QApplication::exec();
    player.Unload();
    return 0;
}
