#pragma once

#include <inspectable.h>
#include <shtypes.h>

// The system's media transport controls, as far as they are used here: the compiler's headers do not know them. Each
// interface is its calls in their order, and ends where nobody calls any further.
namespace zentaro::platform::transport {

using Token = INT64; // of a listener
using Time = INT64;  // 100 ns

enum class Playback : INT32 { Stopped = 2, Playing = 3, Paused = 4 };
enum class Kind : INT32 { Music = 1, Video = 2 };

/// What listens to one kind of news; called on a thread of the system.
template <class News> struct Listener : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE Invoke(IInspectable* sender, News* news) = 0;
};

struct Press : IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Button(INT32* button) = 0;
};
inline constexpr IID kPressListener{ 0x0557e996, 0x7b23, 0x5bae, { 0xaa, 0x81, 0xea, 0x0d, 0x67, 0x11, 0x43, 0xa4 } };

struct PlaceWish : IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_RequestedPlaybackPosition(Time* place) = 0;
};
inline constexpr IID kPlaceListener{ 0x44e34f15, 0xbdc0, 0x50a7, { 0xac, 0xe4, 0x39, 0xe9, 0x1f, 0xb7, 0x53, 0xf1 } };

struct Music : IInspectable {
    static constexpr IID kId{ 0x6bbf0c59, 0xd0a0, 0x4d26, { 0x92, 0xa0, 0xf9, 0x78, 0xe1, 0xd1, 0x8e, 0x7b } };
    virtual HRESULT STDMETHODCALLTYPE get_Title(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Title(HSTRING text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_AlbumArtist(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AlbumArtist(HSTRING text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Artist(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Artist(HSTRING text) = 0;
};

struct Album : IInspectable { // of music, too
    static constexpr IID kId{ 0x00368462, 0x97d3, 0x44b9, { 0xb0, 0x0f, 0x00, 0x8a, 0xfc, 0xef, 0xaf, 0x18 } };
    virtual HRESULT STDMETHODCALLTYPE get_AlbumTitle(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AlbumTitle(HSTRING text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TrackNumber(UINT32* number) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_TrackNumber(UINT32 number) = 0;
};

struct Video : IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Title(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Title(HSTRING text) = 0;
};

struct Display : IInspectable {
    virtual HRESULT STDMETHODCALLTYPE get_Type(Kind* kind) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Type(Kind kind) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_AppMediaId(HSTRING* text) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AppMediaId(HSTRING text) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Thumbnail(IUnknown** stream) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Thumbnail(IUnknown* stream) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MusicProperties(Music** music) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VideoProperties(Video** video) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ImageProperties(IUnknown** image) = 0;
    virtual HRESULT STDMETHODCALLTYPE CopyFromFileAsync(Kind kind, IUnknown* file, IUnknown** way) = 0;
    virtual HRESULT STDMETHODCALLTYPE ClearAll() = 0;
    virtual HRESULT STDMETHODCALLTYPE Update() = 0;
};

struct Timeline : IInspectable {
    static constexpr IID kId{ 0x5125316a, 0xc3a2, 0x475b, { 0x85, 0x07, 0x93, 0x53, 0x4d, 0xc8, 0x8f, 0x15 } };
    virtual HRESULT STDMETHODCALLTYPE get_StartTime(Time* time) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_StartTime(Time time) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_EndTime(Time* time) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_EndTime(Time time) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MinSeekTime(Time* time) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_MinSeekTime(Time time) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MaxSeekTime(Time* time) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_MaxSeekTime(Time time) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Position(Time* time) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_Position(Time time) = 0;
};

struct Controls : IInspectable {
    static constexpr IID kId{ 0x99fa3ff4, 0x1742, 0x42a6, { 0x90, 0x2e, 0x08, 0x7d, 0x41, 0xf9, 0x65, 0xec } };
    virtual HRESULT STDMETHODCALLTYPE get_PlaybackStatus(Playback* playback) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_PlaybackStatus(Playback playback) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DisplayUpdater(Display** display) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SoundLevel(INT32* level) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsPlayEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsPlayEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsStopEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsStopEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsPauseEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsPauseEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsRecordEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsRecordEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsFastForwardEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsFastForwardEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsRewindEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsRewindEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsPreviousEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsPreviousEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsNextEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsNextEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsChannelUpEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsChannelUpEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsChannelDownEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsChannelDownEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE add_ButtonPressed(Listener<Press>* listener, Token* token) = 0;
    virtual HRESULT STDMETHODCALLTYPE remove_ButtonPressed(Token token) = 0;
};

struct PlaceControls : IInspectable { // of the same object; not in the first releases
    static constexpr IID kId{ 0xea98d2f6, 0x7f3c, 0x4af2, { 0xa5, 0x86, 0x72, 0x88, 0x98, 0x08, 0xef, 0xb1 } };
    virtual HRESULT STDMETHODCALLTYPE get_AutoRepeatMode(INT32* mode) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_AutoRepeatMode(INT32 mode) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ShuffleEnabled(boolean* flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ShuffleEnabled(boolean flag) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PlaybackRate(double* rate) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_PlaybackRate(double rate) = 0;
    virtual HRESULT STDMETHODCALLTYPE UpdateTimelineProperties(Timeline* timeline) = 0;
    virtual HRESULT STDMETHODCALLTYPE add_PlaybackPositionChangeRequested(
        Listener<PlaceWish>* listener, Token* token) = 0;
    virtual HRESULT STDMETHODCALLTYPE remove_PlaybackPositionChangeRequested(Token token) = 0;
};

/// The way from a window to its controls, of the class's factory.
struct WindowControls : IInspectable {
    static constexpr IID kId{ 0xddb0472d, 0xc911, 0x4a1f, { 0x86, 0xd9, 0xdc, 0x3d, 0x71, 0xa9, 0x5f, 0x5a } };
    virtual HRESULT STDMETHODCALLTYPE GetForWindow(HWND window, REFIID id, void** controls) = 0;
};

/// Of the factory of what a picture is read from.
struct StreamReferences : IInspectable {
    static constexpr IID kId{ 0x857309dc, 0x3fbf, 0x4e7d, { 0x98, 0x6f, 0xef, 0x3b, 0x1a, 0x07, 0xa9, 0x64 } };
    virtual HRESULT STDMETHODCALLTYPE CreateFromFile(IUnknown* file, IUnknown** reference) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateFromUri(IUnknown* uri, IUnknown** reference) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateFromStream(IUnknown* stream, IUnknown** reference) = 0;
};
/// A stream to be read from anywhere.
inline constexpr IID kRandomAccessStream{ 0x905a0fe1, 0xbc53, 0x11df,
    { 0x8c, 0x49, 0x00, 0x1e, 0x4f, 0xc6, 0x86, 0xda } };

} // namespace zentaro::platform::transport
