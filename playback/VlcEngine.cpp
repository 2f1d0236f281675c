#include "playback/VlcEngine.h"

#include "platform/Process.h"
#include "platform/Window.h"
#include "playback/VideoFrame.h"

#include <QGuiApplication>
#include <QPointer>
#include <vlc/vlc.h>

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <vector>

namespace zentaro {

namespace {

constexpr long kLogLimit = 1'000'000; // bytes
constexpr auto kSoundPause = std::chrono::seconds(30);

void OnLogMessage(void* log, int level, const libvlc_log_t*, const char* format, va_list arguments)
{
    if (level < LIBVLC_WARNING)
        return;
    char text[1024];
    std::vsnprintf(text, sizeof text, format, arguments);
    static_cast<VlcLog*>(log)->Write(level, text);
}

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

// memory output: the library writes into pictures of ours
unsigned OnFormat(void** opaque, char* chroma, unsigned* width, unsigned* height, unsigned* pitches, unsigned* lines)
{
    auto& sink = *static_cast<PictureSink*>(*opaque);
    std::memcpy(chroma, "RV32", 4);
    if (!sink.Resize(*width, *height))
        return 0;
    *pitches = static_cast<unsigned>(sink.BytesPerLine());
    *lines = *height;
    return 1;
}

void* OnLock(void* opaque, void** planes)
{
    *planes = static_cast<PictureSink*>(opaque)->NextPicture();
    return nullptr;
}

void OnDisplay(void* opaque, void*)
{
    static_cast<PictureSink*>(opaque)->Show();
}

} // namespace

VlcLog::VlcLog(const std::string& path)
    : m_file(path.empty() ? nullptr : std::fopen(path.c_str(), "w"))
    , m_room(kLogLimit)
{
}

VlcLog::~VlcLog()
{
    if (m_file != nullptr)
        std::fclose(m_file);
}

void VlcLog::Attach(libvlc_instance_t* instance)
{
    libvlc_log_set(instance, &OnLogMessage, this);
}

void VlcLog::Write(int level, const char* text)
{
    if (std::strstr(text, "failed to create audio output") != nullptr)
        m_soundFailed = true;
    const std::lock_guard lock(m_mutex);
    if (m_file == nullptr || m_room <= 0)
        return;
    m_room -= std::fprintf(m_file, "%s: %s\n", level == LIBVLC_ERROR ? "error" : "warning", text);
    std::fflush(m_file);
}

/// One libVLC player with its own instance and surface. Library threads only set the flags; everything else runs on the
/// UI thread.
class VlcEngine final : public Engine {
public:
    VlcEngine(VlcEngines& engines, VideoSurface* surface)
        : m_engines(engines)
        , m_surface(surface)
    {
    }

    ~VlcEngine() override
    {
        if (m_player != nullptr) {
            auto* const events = libvlc_media_player_event_manager(m_player);
            libvlc_event_detach(events, libvlc_MediaPlayerEncounteredError, &OnFailed, this);
            libvlc_media_player_stop(m_player);
            libvlc_media_player_release(m_player);
        }
        delete m_surface.data();
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
            return 0;
        // By its state alone the library shows a failed item as an ended one.
        return m_failed ? kFailed : static_cast<int>(libvlc_media_player_get_state(m_player));
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
        if (m_player != nullptr)
            return;
        m_instance = m_engines.NewInstance();
        if (!m_instance)
            return;
        auto* const media = location.isLocation ? libvlc_media_new_location(m_instance.get(), location.text.c_str())
                                                : libvlc_media_new_path(m_instance.get(), location.text.c_str());
        if (media == nullptr)
            return;
        for (const auto& option : options)
            libvlc_media_add_option(media, option.c_str());
        // No card decodes either, and asking for one makes the card's library complain on the terminal. The player
        // would forget this one; the item keeps it.
        if (m_engines.m_plainOutput)
            libvlc_media_add_option(media, ":avcodec-hw=none");
        m_player = libvlc_media_player_new_from_media(media);
        libvlc_media_release(media);
        if (m_player != nullptr)
            Prepare();
    }

    void Play() override
    {
        if (m_player == nullptr)
            return;
        // An ended player takes no order but stop.
        if (libvlc_media_player_get_state(m_player) == libvlc_Ended)
            libvlc_media_player_stop(m_player);
        m_failed = false;
        libvlc_media_player_play(m_player);
    }

    void TogglePause() override
    {
        if (m_player != nullptr)
            libvlc_media_player_pause(m_player);
    }

    void Stop() override
    {
        if (m_player == nullptr)
            return;
        libvlc_media_player_stop(m_player);
        // The OpenGL output leaves its last picture standing.
        if (m_surface)
            m_surface->update();
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
        const auto parts = PartsOf(all, count);
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

    int ItemCount() override { return m_player != nullptr ? 1 : 0; }

private:
    static void OnFailed(const libvlc_event_t*, void* engine) { static_cast<VlcEngine*>(engine)->m_failed = true; }

    template <typename Description> static std::vector<DiscPart> PartsOf(Description* const* all, int count)
    {
        std::vector<DiscPart> parts;
        for (int i = 0; i < count; ++i)
            parts.push_back(
                { all[i]->psz_name != nullptr ? all[i]->psz_name : "", static_cast<double>(all[i]->i_duration) });
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

    /// Everything that a player must know before it plays.
    void Prepare()
    {
        // The window handles keys and pointer; the library must not compete.
        libvlc_video_set_mouse_input(m_player, 0);
        libvlc_video_set_key_input(m_player, 0);
        AttachSurface();
        if (!m_engines.MayTrySound())
            libvlc_audio_output_set(m_player, "adummy");
        libvlc_audio_set_volume(m_player, m_volume);
        libvlc_audio_set_mute(m_player, m_muted);
        libvlc_event_attach(
            libvlc_media_player_event_manager(m_player), libvlc_MediaPlayerEncounteredError, &OnFailed, this);
    }

    void AttachSurface()
    {
        if (const auto sink = m_surface->Sink()) {
            m_sink = sink;
            libvlc_video_set_callbacks(m_player, &OnLock, nullptr, &OnDisplay, m_sink.get());
            libvlc_video_set_format_callbacks(m_player, &OnFormat, nullptr);
        } else if (QGuiApplication::platformName() == "windows") {
            libvlc_media_player_set_hwnd(m_player, reinterpret_cast<void*>(m_surface->winId()));
        } else {
            libvlc_media_player_set_xwindow(m_player, static_cast<std::uint32_t>(m_surface->winId()));
        }
    }

    VlcEngines& m_engines;
    QPointer<VideoSurface> m_surface;
    std::shared_ptr<PictureSink> m_sink;
    VlcEngines::Instance m_instance;
    libvlc_media_player_t* m_player = nullptr;
    std::atomic<bool> m_failed = false;
    std::string m_deinterlacing = kDeinterlaceAuto;
    int m_volume = 100;
    bool m_muted = false;
};

VlcEngines::VlcEngines(VideoFrame& frame, const std::string& logPath)
    : m_frame(frame)
    , m_log(logPath)
{
}

VlcEngines::~VlcEngines()
{
    if (m_base.valid())
        m_base.wait();
}

void VlcEngines::Prepare()
{
    m_plainOutput = !platform::HasGraphicsCard();
    // Finding the plug-ins takes longest at a start; the window comes up meanwhile.
    m_base = std::async(std::launch::async, [plain = m_plainOutput] {
        platform::SilenceSoundLibrary();
        return StartLibrary(CommonArguments(plain));
    }).share();
}

std::unique_ptr<Engine> VlcEngines::Create()
{
    if (!m_base.valid())
        Prepare();
    if (!m_base.get())
        return nullptr;
    return std::make_unique<VlcEngine>(*this, m_frame.AddSurface());
}

VlcEngines::Instance VlcEngines::NewInstance()
{
    auto instance = StartLibrary(CommonArguments(m_plainOutput));
    if (!instance)
        instance = m_base.get();
    m_log.Attach(instance.get());
    return instance;
}

bool VlcEngines::MayTrySound()
{
    const auto now = std::chrono::steady_clock::now();
    if (m_log.TakeSoundFailure())
        m_silentUntil = now + kSoundPause;
    return now >= m_silentUntil;
}

} // namespace zentaro
