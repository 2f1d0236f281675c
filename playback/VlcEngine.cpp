#include "playback/VlcEngine.h"

#include "platform/EngineLibrary.h"
#include "platform/Process.h"
#include "platform/Window.h"
#include "playback/VideoFrame.h"

#include <QCoreApplication>
#include <vlc/vlc.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace zentaro {

namespace {

constexpr auto kSoundPause = std::chrono::seconds(30);
/// What an item before may take to end: it holds the sound device, or the drive. Nearly all need less.
constexpr auto kEndingWait = std::chrono::milliseconds(50);
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

} // namespace

constexpr std::int64_t kMicroseconds = 1000; // in a millisecond

/// Plays one item. Each start of it has a player of the library of its own, and no stop is waited for.
class VlcEngine final : public Engine {
public:
    explicit VlcEngine(VlcEngines& engines)
        : m_engines(engines)
        , m_self(std::make_shared<VlcEngine*>(this))
    {
    }

    ~VlcEngine() override
    {
        Close();
        *m_self = nullptr;
    }

    void SetVolume(int percent) override
    {
        m_volume = percent;
        if (m_player != nullptr)
            libvlc_audio_set_volume(m_player, percent);
    }

    void SetMute(bool muted) override
    {
        m_muted = muted;
        if (m_player != nullptr)
            libvlc_audio_set_mute(m_player, muted);
    }

    std::vector<EngineTrack> AudioTracks() override { return Tracks(&libvlc_audio_get_track_description); }
    int AudioTrack() override { return m_player ? libvlc_audio_get_track(m_player) : -1; }
    void SetAudioTrack(int id) override
    {
        if (m_player != nullptr)
            libvlc_audio_set_track(m_player, id);
    }

    int AudioDelay() override
    {
        return m_player ? static_cast<int>(libvlc_audio_get_delay(m_player) / kMicroseconds) : 0;
    }
    void SetAudioDelay(int milliseconds) override
    {
        if (m_player != nullptr)
            libvlc_audio_set_delay(m_player, milliseconds * kMicroseconds);
    }
    int SubtitleDelay() override
    {
        return m_player ? static_cast<int>(libvlc_video_get_spu_delay(m_player) / kMicroseconds) : 0;
    }
    void SetSubtitleDelay(int milliseconds) override
    {
        if (m_player != nullptr)
            libvlc_video_set_spu_delay(m_player, milliseconds * kMicroseconds);
    }
    void NextFrame() override
    {
        if (m_player != nullptr)
            libvlc_media_player_next_frame(m_player);
    }

    std::vector<EngineTrack> SubtitleTracks() override { return Tracks(&libvlc_video_get_spu_description); }
    int SubtitleTrack() override { return m_player ? libvlc_video_get_spu(m_player) : -1; }
    void SetSubtitleTrack(int id) override
    {
        if (m_player != nullptr)
            libvlc_video_set_spu(m_player, id);
    }

    bool AddSubtitleFile(const std::string& path) override
    {
        if (m_player == nullptr)
            return false;
        auto* const media = libvlc_media_new_path(m_instance.get(), path.c_str());
        auto* const address = media != nullptr ? libvlc_media_get_mrl(media) : nullptr;
        const bool isAdded = address != nullptr
            && libvlc_media_player_add_slave(m_player, libvlc_media_slave_type_subtitle, address, true) == 0;
        libvlc_free(address);
        if (media != nullptr)
            libvlc_media_release(media);
        return isAdded;
    }

    std::string AspectRatio() override
    {
        auto* const text = m_player != nullptr ? libvlc_video_get_aspect_ratio(m_player) : nullptr;
        std::string ratio = text != nullptr ? text : "";
        libvlc_free(text);
        return ratio;
    }
    void SetAspectRatio(const std::string& ratio) override
    {
        if (m_player != nullptr)
            libvlc_video_set_aspect_ratio(m_player, ratio.empty() ? nullptr : ratio.c_str());
    }

    std::string Deinterlacing() override { return m_deinterlacing; }
    void SetDeinterlacing(const std::string& filter) override
    {
        // The library cannot be asked.
        m_deinterlacing = filter;
        if (m_player != nullptr)
            libvlc_video_set_deinterlace(m_player, filter.empty() ? nullptr : filter.c_str());
    }

    double Length() override { return static_cast<double>(m_player ? libvlc_media_player_get_length(m_player) : -1); }
    double Time() override { return static_cast<double>(m_player ? libvlc_media_player_get_time(m_player) : -1); }

    double Position() override
    {
        // The library's own reading can run past the end.
        return m_player ? std::clamp(static_cast<double>(libvlc_media_player_get_position(m_player)), 0.0, 1.0) : 0;
    }

    void SetPosition(double position) override
    {
        if (m_player != nullptr)
            libvlc_media_player_set_position(m_player, static_cast<float>(position));
    }

    int State() override
    {
        if (m_player == nullptr)
            return m_isAdded ? kStopped : 0;
        const auto state = m_item->State();
        // A pause that it was made ready with is none that anybody asked for.
        m_isLeavingPause = m_isLeavingPause && state <= kPaused && state != kPlaying;
        return m_isLeavingPause && state == kPaused ? kOpening : state;
    }

    double Rate() override { return m_player ? static_cast<double>(libvlc_media_player_get_rate(m_player)) : 1.0; }

    void SetRate(double rate) override
    {
        if (m_player != nullptr)
            libvlc_media_player_set_rate(m_player, static_cast<float>(rate));
    }

    bool HasVideoOutput() override { return m_player != nullptr && libvlc_media_player_has_vout(m_player) > 0; }

    bool TakeSnapshot(const std::string& file) override
    {
        return m_player != nullptr && libvlc_video_take_snapshot(m_player, 0, file.c_str(), 0, 0) == 0;
    }

    void Add(const MediaLocation& location, const EngineOptions& options) override
    {
        if (m_isAdded)
            return;
        m_location = location;
        m_options = options;
        m_isAdded = Open();
        // A refused item leaves no black surface behind.
        if (!m_isAdded)
            Close();
    }

    void Play() override
    {
        if (!m_isAdded)
            return;
        const auto state = State();
        // An ended player takes no order but stop.
        if (state >= kEnded)
            Close();
        if (m_player == nullptr && !Open())
            return;
        if (state > 0 && !m_isLeavingPause)
            m_pauseWaits = false;
        if (std::exchange(m_isReady, false))
            libvlc_media_player_set_pause(m_player, 0);
        else
            libvlc_media_player_play(m_player);
    }

    void SetPause(bool paused) override
    {
        const auto state = State();
        m_pauseWaits = paused && m_isAdded && state < kPlaying;
        if (m_player == nullptr || m_pauseWaits)
            return;
        // The library stops what cannot pause, and waits for it.
        if (paused ? state == kPlaying && libvlc_media_player_can_pause(m_player) : state == kPaused)
            libvlc_media_player_set_pause(m_player, paused);
    }

    void TogglePause() override { SetPause(State() != kPaused && !m_pauseWaits); }

    void Stop() override
    {
        m_pauseWaits = false;
        Close();
    }

    void Navigate(DiscKey key) override
    {
        constexpr unsigned kKeys[] = { libvlc_navigate_activate, libvlc_navigate_up, libvlc_navigate_down,
            libvlc_navigate_left, libvlc_navigate_right };
        if (m_player != nullptr)
            libvlc_media_player_navigate(m_player, kKeys[static_cast<int>(key)]);
    }

    std::vector<DiscPart> Titles() override
    {
        libvlc_title_description_t** all = nullptr;
        const int count = m_player ? libvlc_media_player_get_full_title_descriptions(m_player, &all) : 0;
        const auto parts = PartsOf(all, count);
        if (all != nullptr)
            libvlc_title_descriptions_release(all, static_cast<unsigned>(std::max(count, 0)));
        return parts;
    }

    int Title() override { return m_player ? libvlc_media_player_get_title(m_player) : -1; }

    void SetTitle(int index) override
    {
        if (m_player != nullptr)
            libvlc_media_player_set_title(m_player, index);
    }

    std::vector<DiscPart> Chapters() override
    {
        libvlc_chapter_description_t** all = nullptr;
        const int count = m_player ? libvlc_media_player_get_full_chapter_descriptions(m_player, -1, &all) : 0;
        auto parts = PartsOf(all, count);
        for (std::size_t i = 0; i < parts.size(); ++i)
            parts[i].start = static_cast<double>(all[i]->i_time_offset);
        if (all != nullptr)
            libvlc_chapter_descriptions_release(all, static_cast<unsigned>(std::max(count, 0)));
        return parts;
    }

    int Chapter() override { return m_player ? libvlc_media_player_get_chapter(m_player) : -1; }

    void SetChapter(int index) override
    {
        if (m_player != nullptr)
            libvlc_media_player_set_chapter(m_player, index);
    }

    int ItemCount() override { return m_isAdded ? 1 : 0; }

    /// Engine threads. A pause that was asked for too early is given now, where the library may be called.
    static void PauseLater(std::weak_ptr<VlcEngine*> self)
    {
        const auto pause = [self = std::move(self)] {
            if (const auto engine = self.lock(); engine && *engine != nullptr && (*engine)->m_pauseWaits)
                (*engine)->SetPause(true);
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), pause, Qt::QueuedConnection);
    }

private:
    template <typename Description> static std::vector<DiscPart> PartsOf(Description* const* all, int count)
    {
        std::vector<DiscPart> parts;
        for (int i = 0; i < count; ++i)
            parts.push_back(
                { all[i]->psz_name != nullptr ? all[i]->psz_name : "", static_cast<double>(all[i]->i_duration), 0 });
        return parts;
    }

    std::vector<EngineTrack> Tracks(libvlc_track_description_t* (*describe)(libvlc_media_player_t*)) const
    {
        std::vector<EngineTrack> tracks;
        auto* const first = m_player != nullptr ? describe(m_player) : nullptr;
        for (const auto* each = first; each != nullptr; each = each->p_next)
            tracks.push_back({ each->i_id, each->psz_name != nullptr ? each->psz_name : "" });
        if (first != nullptr)
            libvlc_track_description_list_release(first);
        return tracks;
    }

    bool Open()
    {
        auto open = m_engines.TakeReady(m_location, m_options);
        m_isReady = open.item != nullptr;
        m_isLeavingPause = m_isReady;
        if (!m_isReady)
            open = m_engines.OpenNew(m_location, m_options, m_self, false);
        if (!open.item)
            return false;
        m_self = std::move(open.owner);
        *m_self = this;
        m_instance = std::move(open.instance);
        m_item = std::move(open.item);
        m_player = m_item->Player();
        libvlc_audio_set_volume(m_player, m_volume);
        libvlc_audio_set_mute(m_player, m_muted);
        m_deinterlacing = kDeinterlaceAuto;
        return true;
    }

    void Close()
    {
        m_player = nullptr;
        m_isReady = false;
        m_isLeavingPause = false;
        m_engines.End(std::move(m_item));
    }

    VlcEngines& m_engines;
    std::shared_ptr<VlcEngine*> m_self; // late calls find it null
    MediaLocation m_location;
    EngineOptions m_options;
    std::shared_ptr<libvlc_instance_t> m_instance; // the item's
    std::unique_ptr<VlcItem> m_item;
    libvlc_media_player_t* m_player = nullptr; // the item's; null while it is stopped
    bool m_isAdded = false;
    bool m_pauseWaits = false;     // until it plays
    bool m_isReady = false;        // the item was made ready, and does not play yet
    bool m_isLeavingPause = false; // and does not play yet, but was told to
    std::string m_deinterlacing = kDeinterlaceAuto;
    int m_volume = 100;
    bool m_muted = false;
};

VlcEngines::VlcEngines(VideoFrame& frame, const std::string& logPath)
    : m_frame(frame)
    , m_log(std::make_shared<VlcLog>(logPath))
    , m_endings(std::make_shared<VlcEndings>())
{
}

VlcEngines::~VlcEngines()
{
    Forget();
    m_endings->Wait(kLastWait);
    if (m_base.valid())
        m_base.wait();
}

Result<void> VlcEngines::Prepare()
{
    if (m_base.valid())
        return {};
    if (auto loaded = platform::LoadEngineLibrary(); !loaded)
        return loaded;
    m_plainOutput = !platform::HasGraphicsCard();
    // Finding the plug-ins takes longest at a start; the window comes up meanwhile.
    m_base = std::async(std::launch::async, [plain = m_plainOutput] {
        platform::SilenceSoundLibrary();
        return StartLibrary(CommonArguments(plain));
    }).share();
    return {};
}

std::unique_ptr<Engine> VlcEngines::Create()
{
    if (!Prepare() || !m_base.get())
        return nullptr;
    return std::make_unique<VlcEngine>(*this);
}

void VlcEngines::MakeReady(const MediaLocation& location, const EngineOptions& options)
{
    Forget();
    if (!Prepare())
        return;
    auto open = OpenNew(location, options, std::make_shared<VlcEngine*>(nullptr), true);
    if (!open.item)
        return;
    libvlc_media_player_play(open.item->Player());
    m_ready = { location, options, std::move(open) };
}

void VlcEngines::Forget()
{
    if (m_ready)
        End(std::move(m_ready->open.item));
    m_ready.reset();
}

VlcEngines::OpenItem VlcEngines::TakeReady(const MediaLocation& location, const EngineOptions& options)
{
    OpenItem taken;
    if (m_ready && m_ready->location == location && m_ready->options == options) {
        taken = std::move(m_ready->open);
        taken.item->ShowSurface();
    }
    Forget();
    return taken;
}

VlcEngines::OpenItem VlcEngines::OpenNew(
    const MediaLocation& location, const EngineOptions& options, Owner owner, bool isReady)
{
    WaitForEndings();
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
    if (isReady)
        libvlc_media_add_option(media, ":start-paused");
    OpenItem open{ library.instance, nullptr, owner };
    open.item = std::make_unique<VlcItem>(std::move(library), media, m_frame.AddSurface(!isReady),
        [self = std::weak_ptr(owner)] { VlcEngine::PauseLater(self); });
    auto* const player = open.item->Player();
    if (player == nullptr)
        return {};
    if (!MayTrySound())
        libvlc_audio_output_set(player, "adummy");
    return open;
}

VlcLibrary VlcEngines::NewLibrary()
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

void VlcEngines::End(std::unique_ptr<VlcItem> item)
{
    VlcItem::End(std::move(item), m_endings);
}

void VlcEngines::WaitForEndings()
{
    m_endings->Wait(kEndingWait);
}

bool VlcEngines::MayTrySound()
{
    const auto now = std::chrono::steady_clock::now();
    // An item that has not ended yet can hold the device.
    if (m_log->TakeSoundFailure() && !m_endings->AreAny())
        m_silentUntil = now + kSoundPause;
    return now >= m_silentUntil;
}

} // namespace zentaro
