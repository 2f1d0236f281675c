#include "playback/VlcItems.h"

#include "platform/EngineLibrary.h"
#include "platform/Files.h"
#include "platform/Process.h"
#include "platform/Window.h"
#include "playback/EngineOptions.h"
#include "playback/VideoFrame.h"

#include <QCoreApplication>
#include <vlc/vlc.h>

#include <utility>
#include <vector>

namespace zentaro {

namespace {

constexpr auto kSoundPause = std::chrono::seconds(30);
/// What an item before may take to end: it holds the sound device, or the drive. Nearly all need less.
constexpr auto kEndingWait = std::chrono::milliseconds(30);
constexpr auto kLastWait = std::chrono::seconds(1);

std::shared_ptr<libvlc_instance_t> StartLibrary(const std::vector<std::string>& arguments)
{
    std::vector<const char*> texts;
    for (const auto& argument : arguments)
        texts.push_back(argument.c_str());
    auto* const instance = libvlc_new(static_cast<int>(texts.size()), texts.data());
    if (instance == nullptr)
        return {};
    return { instance, &libvlc_release };
}

// --quiet silences the decoders, which write past the log. No scripts: they would only look for covers on the network.
// The screen saver is held off by the player, on every output and not beyond the end of an item.
std::vector<std::string> CommonArguments(bool plainOutput)
{
    std::vector<std::string> arguments = { "--quiet", "--no-video-title-show", "--no-osd", "--no-snapshot-preview",
        "--no-lua", "--no-interact", "--no-disable-screensaver" };
    // The embedded player chooses its output by itself; taking OpenGL away leaves the plain one.
    if (plainOutput)
        arguments.insert(arguments.end(), { "--gl=none", "--gles2=none" });
    return arguments;
}

/// Without its list the library loads every plug-in at each start to see what it can do.
bool MustListPlugins()
{
    constexpr std::size_t limit = 16 << 20; // bytes; a thousand plug-ins need less than one
    const auto list = platform::OwnPluginList();
    return list && !KnowsPlugin(platform::ReadTextFile(list->path, limit).value_or(""), list->changed);
}

/// Engine threads, where the library may not be called.
void TellLater(std::weak_ptr<std::function<void()>> heard)
{
    const auto tell = [heard = std::move(heard)] {
        if (const auto hear = heard.lock(); hear && *hear)
            (*hear)();
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), tell, Qt::QueuedConnection);
}

} // namespace

VlcItems::VlcItems(VideoFrame& frame, const std::string& logPath)
    : m_frame(frame)
    , m_log(std::make_shared<VlcLog>(logPath))
    , m_endings(std::make_shared<VlcEndings>())
{
}

VlcItems::~VlcItems()
{
    Forget();
    m_endings->Wait(kLastWait);
    if (m_base.valid())
        m_base.wait();
}

Result<void> VlcItems::Prepare()
{
    if (m_base.valid())
        return {};
    if (auto loaded = platform::LoadEngineLibrary(); !loaded)
        return loaded;
    m_plainOutput = !platform::HasGraphicsCard();
    // Finding the plug-ins takes longest at a start; the window comes up meanwhile.
    m_base = std::async(std::launch::async, [plain = m_plainOutput] {
        platform::SilenceSoundLibrary();
        auto arguments = CommonArguments(plain);
        if (MustListPlugins())
            arguments.push_back("--reset-plugins-cache");
        return StartLibrary(arguments);
    }).share();
    return {};
}

bool VlcItems::IsPrepared()
{
    return Prepare() && m_base.get() != nullptr;
}

void VlcItems::MakeReady(const MediaLocation& location, const EngineOptions& options)
{
    Forget();
    if (!Prepare())
        return;
    auto open = New(location, options, true);
    if (!open.item)
        return;
    open.item->GetReady();
    m_ready = { location, options, std::move(open) };
}

void VlcItems::Forget()
{
    if (m_ready)
        End(std::move(m_ready->open));
    m_ready.reset();
}

VlcItems::Open VlcItems::Take(const MediaLocation& location, const EngineOptions& options)
{
    Open open;
    if (m_ready && m_ready->location == location && m_ready->options == options)
        open = std::move(std::exchange(m_ready, std::nullopt)->open);
    Forget();
    // The item beside which it was made ready can have held the sound device.
    if (open.isBeside && m_log->TakeSoundFailure())
        End(std::exchange(open, {}));
    if (open.item)
        open.item->ShowSurface();
    else
        open = New(location, options, false);
    open.taken = m_taken;
    return open;
}

VlcItems::Open VlcItems::New(const MediaLocation& location, const EngineOptions& options, bool isReady)
{
    m_endings->Wait(kEndingWait);
    auto library = NewLibrary();
    auto* const instance = library.instance.get();
    if (instance == nullptr)
        return {};
    auto* const media = location.isLocation ? libvlc_media_new_location(instance, location.text.c_str())
                                            : libvlc_media_new_path(instance, location.text.c_str());
    if (media == nullptr)
        return {};
    for (const auto& option : options)
        libvlc_media_add_option(media, option.c_str());
    // No card decodes either, and asking for one makes the card's library complain on the terminal. The player would
    // forget this one; the item keeps it.
    if (m_plainOutput)
        libvlc_media_add_option(media, ":avcodec-hw=none");
    const auto onPlaying = std::make_shared<std::function<void()>>();
    const bool isBeside = isReady && m_taken.use_count() > 1;
    Open open{ library.instance, nullptr, onPlaying, nullptr, isReady, isBeside };
    open.item = std::make_unique<VlcItem>(std::move(library), media, m_frame.AddSurface(!isReady),
        VlcItem::Events{ [heard = std::weak_ptr(onPlaying)] { TellLater(heard); },
            [heard = std::weak_ptr(m_onOver)] { TellLater(heard); } });
    auto* const player = open.Player();
    if (player == nullptr)
        return {};
    if (!MayTrySound())
        libvlc_audio_output_set(player, "adummy");
    return open;
}

VlcLibrary VlcItems::NewLibrary()
{
    m_base.wait();
    auto arguments = CommonArguments(m_plainOutput);
    arguments.push_back("--sub-text-scale=" + std::to_string(m_subtitleScale));
    VlcLibrary library{ m_log, StartLibrary(arguments) };
    if (!library.instance)
        library.instance = m_base.get();
    m_log->Attach(library.instance.get());
    return library;
}

void VlcItems::End(Open open)
{
    VlcItem::End(std::move(open.item), m_endings);
}

bool VlcItems::MayTrySound()
{
    const auto now = std::chrono::steady_clock::now();
    // An item that has not ended yet can hold the device.
    if (m_log->TakeSoundFailure() && !m_endings->AreAny())
        m_silentUntil = now + kSoundPause;
    return now >= m_silentUntil;
}

} // namespace zentaro
