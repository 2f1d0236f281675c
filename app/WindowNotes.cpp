#include "app/WindowNotes.h"

#include "app/Background.h"
#include "app/Commands.h"
#include "app/Player.h"
#include "app/WindowFrame.h"
#include "base/Words.h"
#include "playback/TimeText.h"
#include "playback/VideoFrame.h"
#include "shell/Announcer.h"
#include "shell/MenuText.h"
#include "shell/NoteBox.h"
#include "shell/QtText.h"

#include <QFile>
#include <QImageReader>

#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kNoteTime = 5s;
constexpr auto kOfferTime = 8s;
constexpr auto kChangeTime = 1500ms;

} // namespace

WindowNotes::WindowNotes(Player& player, QWidget& video, QWidget& content)
    : m_player(player)
    , m_video(video)
    , m_content(content)
    , m_box(new NoteBox(content.window()))
    , m_shownVolume(VolumeText())
{
    LetCoverVideo(*m_box);
    if (auto* const frame = qobject_cast<WindowFrame*>(content.window()))
        QObject::connect(frame, &WindowFrame::FillsScreenChanged, m_box, [frame](bool fills) {
            Announce(*frame, ToQString(Words(fills ? "Full Screen" : "No longer full screen")));
        });
    QObject::connect(m_box, &NoteBox::OfferTaken, m_box, [this] { m_offered->run(m_player, 0); });
}

QRect WindowNotes::Area() const
{
    const auto& covered = m_video.isVisible() ? m_video : m_content;
    return { covered.mapTo(covered.window(), QPoint()), covered.size() };
}

void WindowNotes::Show(const std::string& text, const std::string& file)
{
    const auto room = (QSizeF(NoteBox::kPictureRoom) * m_box->devicePixelRatio()).toSize();
    const auto show = [this, text](const QImage& picture) { m_box->Show(Area(), ToQString(text), picture, kNoteTime); };
    if (file.empty())
        return show({});
    const auto onWindowThread = [this](std::function<void()> work) {
        QMetaObject::invokeMethod(m_box, std::move(work), Qt::QueuedConnection);
    };
    RunInBackground(onWindowThread, [file, room, show] {
        QImageReader reader(QFile::decodeName(file.c_str()));
        reader.setScaledSize(reader.size().scaled(room, Qt::KeepAspectRatio));
        return [show, picture = reader.read()] { show(picture); };
    });
}

void WindowNotes::Offer(const std::string& text, std::string_view command)
{
    const auto* const offered = FindCommand(command);
    if (offered == nullptr)
        return;
    auto caption = ToQString(Words(offered->caption)).remove('&');
    if (const auto key = KeyName(m_player.Keys().Shown(*offered)); !key.isEmpty())
        caption += " (" + key + ")";
    m_box->Show(Area(), ToQString(text), {}, kOfferTime, caption);
    m_offered = offered;
}

void WindowNotes::Place()
{
    if (m_box->isVisible())
        m_box->Place(Area());
}

void WindowNotes::ShowChange(const QString& text)
{
    m_box->Show(Area(), text, {}, kChangeTime);
}

QString WindowNotes::VolumeText() const
{
    const auto& state = m_player.State();
    return ToQString(Words(state.isMuted ? "Volume %1 % (muted)" : "Volume %1 %", { std::to_string(state.volume) }));
}

std::string WindowNotes::PlaceText() const
{
    const auto& state = m_player.State();
    return TimeLabelText(state.elapsed, state.length);
}

void WindowNotes::TurnVolume(int eighths)
{
    m_player.Transporting().TurnVolume(eighths);
    ShowChange(VolumeText());
}

WindowNotes::News WindowNotes::NewState()
{
    const auto& state = m_player.State();
    const auto volume = VolumeText();
    const bool isVolumeNew = std::exchange(m_shownVolume, volume) != volume;
    const bool isRateNew = std::exchange(m_shownRate, state.chosenRate) != state.chosenRate;
    const bool isPauseNew = std::exchange(m_shownPause, state.isPaused) != state.isPaused && state.mediaControlsEnabled;
    const bool isPlaceNew = std::exchange(m_shownSeeks, state.seeks) != state.seeks && state.seeks > 0;
    if (isVolumeNew)
        return { volume, volume };
    if (isRateNew)
        return { ToQString(RateLabelText(state.chosenRate)), ToQString(RateLabelText(state.chosenRate)) };
    if (isPauseNew)
        return { ToQString(Words(state.isPaused ? "Paused at %1" : "Playing from %1", { PlaceText() })),
            ToQString(Words(state.isPaused ? "Paused" : "Playing")) };
    return isPlaceNew ? News{ ToQString(PlaceText()), ToQString(zentaro::PlaceText(state)) } : News();
}

void WindowNotes::ShowState(bool isAlone)
{
    const auto news = NewState();
    if (news.spoken.isEmpty())
        return;
    if (isAlone && m_player.State().mediaControlsEnabled)
        ShowChange(news.shown);
    else
        Announce(*m_content.window(), news.spoken);
}

void WindowNotes::ShowDropTarget(bool isTarget)
{
    if (isTarget)
        m_box->Show(Area(), ToQString(Words("Let go to play")), {}, kNoteTime);
    else
        m_box->hide();
}

} // namespace zentaro
