#include "platform/SystemMedia_windows.h"

#include "desktop/MprisRules.h"
#include "desktop/WindowsRules.h"
#include "platform/Com_windows.h"
#include "platform/Files.h"
#include "platform/TransportFaces_windows.h"

#include <atomic>
#include <cmath>
#include <string>
#include <utility>

#include <roapi.h>
#include <shlwapi.h>
#include <winstring.h>

namespace zentaro::platform {

namespace {

using desktop::MediaPlayback;
using desktop::MediaStatus;

constexpr double kTimes = 10'000;                        // of the system's, in 1 ms
constexpr std::size_t kLargestPicture = 8 * 1024 * 1024; // bytes

template <class Function> bool Find(HMODULE library, const char* name, Function& function)
{
    function = library == nullptr ? nullptr
                                  : reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    return function != nullptr;
}

HMODULE SystemLibrary(const char* name)
{
    return LoadLibraryExA(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

/// What leads to the system's classes; an older system has none of it, and the player starts there, too.
struct Classes {
    decltype(&::RoGetActivationFactory) factory = nullptr;
    decltype(&::RoActivateInstance) make = nullptr;
    decltype(&::WindowsCreateString) createText = nullptr;
    decltype(&::WindowsDeleteString) deleteText = nullptr;
    HRESULT(WINAPI* openStream)(IStream* stream, int options, REFIID id, void** opened) = nullptr;

    bool Load()
    {
        const auto combase = SystemLibrary("combase.dll");
        // Without this one there is no picture, and all the rest.
        Find(SystemLibrary("shcore.dll"), "CreateRandomAccessStreamOverStream", openStream);
        return Find(combase, "RoGetActivationFactory", factory) && Find(combase, "RoActivateInstance", make)
            && Find(combase, "WindowsCreateString", createText) && Find(combase, "WindowsDeleteString", deleteText);
    }
};

/// A text as the system's classes take it.
class Text {
public:
    Text(const Classes& classes, const std::string& text)
        : m_delete(classes.deleteText)
    {
        const auto wide = Wide(text);
        classes.createText(wide.c_str(), static_cast<UINT32>(wide.size()), &m_text);
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { m_delete(m_text); }
    operator HSTRING() const { return m_text; }

private:
    decltype(Classes::deleteText) m_delete;
    HSTRING m_text = nullptr; // which is the empty one
};

/// What `get` has given; null when it has failed.
template <class Face, class Get> Held<Face> Given(const Get& get)
{
    Face* given = nullptr;
    return Held<Face>(SUCCEEDED(get(&given)) ? given : nullptr);
}

template <class Face> Held<Face> As(IUnknown& object)
{
    return Given<Face>([&](Face** face) { return object.QueryInterface(Face::kId, reinterpret_cast<void**>(face)); });
}

template <class Face> Held<Face> FactoryOf(const Classes& classes, const char* name)
{
    return Given<Face>(
        [&](Face** face) { return classes.factory(Text(classes, name), Face::kId, reinterpret_cast<void**>(face)); });
}

/// Brings news from the system's threads to the window's. The system may keep it longer than the controls.
template <class News> class Messenger : public transport::Listener<News> {
public:
    using Read = LPARAM (*)(News& news);

    Messenger(const IID& id, HWND window, UINT message, SystemMedia::Asked asked, Read read)
        : m_id(id)
        , m_window(window)
        , m_message(message)
        , m_asked(asked)
        , m_read(read)
    {
    }
    virtual ~Messenger() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** face) override
    {
        // It may be called on any thread, without a way between them being made.
        const bool isOurs = id == IID_IUnknown || id == __uuidof(IAgileObject) || id == m_id;
        *face = isOurs ? this : nullptr;
        if (isOurs)
            AddRef();
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_holders; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_holders;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE Invoke(IInspectable*, News* news) override
    {
        if (news != nullptr)
            PostMessageW(m_window, m_message, m_asked, m_read(*news));
        return S_OK;
    }

private:
    std::atomic<ULONG> m_holders = 1;
    IID m_id;
    HWND m_window;
    UINT m_message;
    SystemMedia::Asked m_asked;
    Read m_read;
};

LPARAM ButtonOf(transport::Press& press)
{
    INT32 button = -1;
    press.get_Button(&button);
    return button;
}

LPARAM PlaceOf(transport::PlaceWish& wish)
{
    transport::Time place = -1;
    wish.get_RequestedPlaybackPosition(&place);
    return place < 0 ? -1 : static_cast<LPARAM>(std::nearbyint(static_cast<double>(place) / kTimes));
}

transport::Playback PlaybackOf(MediaPlayback playback)
{
    if (playback == MediaPlayback::Stopped)
        return transport::Playback::Stopped;
    return playback == MediaPlayback::Playing ? transport::Playback::Playing : transport::Playback::Paused;
}

class RealSystemMedia : public SystemMedia {
public:
    bool Open(HWND window, UINT message)
    {
        if (!m_classes.Load())
            return false;
        const auto factory =
            FactoryOf<transport::WindowControls>(m_classes, "Windows.Media.SystemMediaTransportControls");
        if (!factory)
            return false;
        m_controls = Given<transport::Controls>([&](transport::Controls** controls) {
            return factory->GetForWindow(window, transport::Controls::kId, reinterpret_cast<void**>(controls));
        });
        if (!m_controls)
            return false;
        m_display = Given<transport::Display>(
            [&](transport::Display** display) { return m_controls->get_DisplayUpdater(display); });
        m_places = As<transport::PlaceControls>(*m_controls);
        const Held<transport::Listener<transport::Press>> presses(
            new Messenger<transport::Press>(transport::kPressListener, window, message, Button, &ButtonOf));
        m_controls->add_ButtonPressed(presses.get(), &m_pressToken);
        const Held<transport::Listener<transport::PlaceWish>> wishes(
            new Messenger<transport::PlaceWish>(transport::kPlaceListener, window, message, Place, &PlaceOf));
        if (m_places)
            m_places->add_PlaybackPositionChangeRequested(wishes.get(), &m_placeToken);
        return m_display != nullptr;
    }
    ~RealSystemMedia() override
    {
        if (!m_controls)
            return;
        m_controls->put_IsEnabled(FALSE);
        m_controls->remove_ButtonPressed(m_pressToken);
        if (m_places)
            m_places->remove_PlaybackPositionChangeRequested(m_placeToken);
    }

    void Show(const MediaStatus& status) override
    {
        if (desktop::IsNewsOfButtons(m_told, status))
            ShowButtons(status);
        if (desktop::IsNewsOfTrack(m_told, status))
            ShowTrack(status);
        if (m_places && desktop::IsNewsOfPlace(m_toldPlace, status))
            ShowPlace(status);
        m_told = status;
    }

private:
    void ShowButtons(const MediaStatus& status)
    {
        const bool isLoaded = status.playback != MediaPlayback::Stopped;
        m_controls->put_IsEnabled(isLoaded);
        m_controls->put_IsPlayEnabled(desktop::CanPlay(status));
        m_controls->put_IsPauseEnabled(desktop::CanPause(status));
        m_controls->put_IsStopEnabled(isLoaded);
        m_controls->put_IsNextEnabled(desktop::CanStep(status));
        m_controls->put_IsPreviousEnabled(desktop::CanStep(status));
        m_controls->put_PlaybackStatus(PlaybackOf(status.playback));
    }

    void ShowTrack(const MediaStatus& status)
    {
        const auto& track = status.track;
        m_display->ClearAll();
        m_display->put_Type(track.isSong ? transport::Kind::Music : transport::Kind::Video);
        const Text title(m_classes, track.title);
        if (track.isSong) {
            const auto music = Given<transport::Music>(
                [&](transport::Music** given) { return m_display->get_MusicProperties(given); });
            if (music) {
                music->put_Title(title);
                music->put_Artist(Text(m_classes, track.artist));
            }
            if (const auto album = music ? As<transport::Album>(*music) : nullptr) {
                album->put_AlbumTitle(Text(m_classes, track.album));
                album->put_TrackNumber(static_cast<UINT32>(track.number));
            }
        } else if (const auto video = Given<transport::Video>(
                       [&](transport::Video** given) { return m_display->get_VideoProperties(given); })) {
            video->put_Title(title);
        }
        if (const auto picture = status.artwork.empty() ? nullptr : PictureFrom(status.artwork))
            m_display->put_Thumbnail(picture.get());
        m_display->Update();
    }

    /// Out of memory: an open file could not be removed at the end.
    Held<IUnknown> PictureFrom(const std::string& path) const
    {
        const auto bytes = ReadTextFile(path, kLargestPicture);
        const auto references =
            FactoryOf<transport::StreamReferences>(m_classes, "Windows.Storage.Streams.RandomAccessStreamReference");
        if (!bytes || bytes->size() == kLargestPicture || !references || m_classes.openStream == nullptr)
            return nullptr;
        const Held<IStream> memory(
            SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes->data()), static_cast<UINT>(bytes->size())));
        const auto stream = Given<IUnknown>([&](IUnknown** opened) {
            return memory ? m_classes.openStream(
                       memory.get(), 0, transport::kRandomAccessStream, reinterpret_cast<void**>(opened))
                          : E_OUTOFMEMORY;
        });
        return Given<IUnknown>([&](IUnknown** reference) {
            return stream ? references->CreateFromStream(stream.get(), reference) : E_FAIL;
        });
    }

    void ShowPlace(const MediaStatus& status)
    {
        m_toldPlace = status;
        const auto made = Given<IInspectable>([&](IInspectable** given) {
            return m_classes.make(
                Text(m_classes, "Windows.Media.SystemMediaTransportControlsTimelineProperties"), given);
        });
        const auto timeline = made ? As<transport::Timeline>(*made) : nullptr;
        if (!timeline)
            return;
        const auto end = Nearest(status.length * kTimes);
        timeline->put_StartTime(0);
        timeline->put_EndTime(end);
        timeline->put_MinSeekTime(0);
        timeline->put_MaxSeekTime(desktop::CanSeek(status) ? end : 0);
        timeline->put_Position(Nearest(status.position * kTimes));
        m_places->put_PlaybackRate(status.rate);
        m_places->UpdateTimelineProperties(timeline.get());
    }

    static transport::Time Nearest(double number) { return static_cast<transport::Time>(std::nearbyint(number)); }

    Classes m_classes;
    Held<transport::Controls> m_controls;
    Held<transport::Display> m_display;
    Held<transport::PlaceControls> m_places; // null where the system has no place to show
    transport::Token m_pressToken = 0;
    transport::Token m_placeToken = 0;
    MediaStatus m_told;
    MediaStatus m_toldPlace;
};

} // namespace

std::unique_ptr<SystemMedia> SystemMedia::Open(HWND window, UINT message)
{
    auto media = std::make_unique<RealSystemMedia>();
    if (!media->Open(window, message))
        return nullptr;
    return media;
}

} // namespace zentaro::platform
