#include "app/Memory.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr const char* kListFile = "LastList.state";
constexpr const char* kPlacesFile = "Places.state";
constexpr const char* kPresentFile = "Present.state";
constexpr std::size_t kLongest = 64 << 20; // bytes
// A film that is begun anew keeps its old place for a minute: it may have been a mistake.
constexpr double kSecondThought = 60'000; // ms

std::string PlaceText(double time)
{
    return DurationText(time / 1000);
}

} // namespace

Memory::Memory(Needs needs, Rooms rooms)
    : m_needs(std::move(needs))
    , m_rooms(rooms)
    , m_files({ m_needs.after, m_needs.runInBackground }, [this] { return TakeDirt(); })
    , m_isAlive(std::make_shared<bool>(true))
{
}

void Memory::Load()
{
    const auto read = [](const std::string& path) { return platform::ReadTextFile(path, kLongest).value_or(""); };
    m_present = m_shown.present = Present::Parse(read(m_needs.folder + kPresentFile));
    m_places = PlaceBook::Parse(read(m_needs.folder + kPlacesFile));
    m_places.SetTime(m_present.path, m_present.time, m_present.length);
    m_isLoaded = true;
    if (IsRemembering())
        m_rooms.transport.SetVolume(m_present.volume);
    m_needs.runInBackground([this, read, path = m_needs.folder + kListFile, alive = std::weak_ptr(m_isAlive)] {
        auto list = std::make_shared<RememberedList>(ParseList(read(path)));
        return [this, list, alive] {
            // What is in the list by now will be what is remembered.
            if (alive.expired() || m_dirt.list)
                return;
            m_last = std::move(*list);
            m_last.selected = std::min(m_present.selected, static_cast<int>(m_last.entries.size()) - 1);
            m_last.position = m_present.position;
            m_rooms.face.window->StateChanged();
            if (m_rooms.settings.ChosenWays().GoesOnByItself() && m_rooms.library.Entries().Count() == 0
                && m_rooms.library.Adding().total == 0)
                BringBack();
        };
    });
}

bool Memory::MayKeep(const std::string& path) const
{
    return IsRemembering() && !m_places.IsNeverRemembered(path)
        && (m_rooms.choices.Has(Choice::RemembersRemovable) || !m_needs.isRemovable(path));
}

void Memory::Look()
{
    if (!m_isLoaded)
        return;
    auto& entries = m_rooms.library.Entries();
    const bool isListNew = std::exchange(m_shown.revision, entries.Revision()) != entries.Revision();
    const bool isOrderNew = std::exchange(m_shown.builds, entries.Order().Builds()) != entries.Order().Builds();
    if (isListNew)
        ShowSeenFrom(m_shown.count);
    m_shown.count = entries.Count();
    m_dirt.noList = m_dirt.noList && !isListNew;
    m_dirt.list = m_dirt.list || ((isListNew || isOrderNew) && entries.Count() > 0);
    m_present.volume = std::min(m_rooms.transport.State().volume, 100);
    if (entries.Count() > 0) {
        m_present.selected = entries.List().SelectedItem();
        m_present.position = entries.Order().Position();
    }
    m_dirt.present = m_dirt.present || m_present != m_shown.present;
    if (m_dirt.IsAny())
        m_files.WriteSoon();
}

void Memory::Tick()
{
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (!m_isLoaded || engine == nullptr || m_rooms.transport.Item().kind != TransportItem::Kind::File
        || engine->State() < Engine::kPlaying || engine->Length() <= 0)
        return;
    if (std::exchange(m_item.generation, m_rooms.transport.Generation()) != m_rooms.transport.Generation()) {
        m_item = { .generation = m_item.generation };
        Begin(*engine);
    }
    if (!MayKeep(m_rooms.transport.Item().path))
        return;
    KeepPlace(*engine);
    KeepTracks(*engine);
    Look();
}

void Memory::Begin(Engine& engine)
{
    // The place of the item before has been in hand until now.
    m_dirt.places = true;
    const auto place = m_places.Find(m_rooms.transport.Item().path);
    m_item.lastPlace = place.time;
    m_item.oldest = place.time > kSecondThought ? kSecondThought : 0;
    if (place.audioTrack != Place::kNotChosen)
        engine.SetAudioTrack(place.audioTrack);
    if (place.subtitleTrack != Place::kNotChosen)
        engine.SetSubtitleTrack(place.subtitleTrack);
    if (place.audioDelay != 0)
        engine.SetAudioDelay(place.audioDelay);
    if (place.subtitleDelay != 0)
        engine.SetSubtitleDelay(place.subtitleDelay);
    m_item.audio = engine.AudioTrack();
    m_item.subtitle = engine.SubtitleTrack();
    if (const auto goTo = std::exchange(m_goTo, std::nullopt)) {
        m_rooms.transport.Seek(*goTo / engine.Length());
    } else if (m_item.lastPlace > 0 && m_rooms.settings.ChosenWays().GoesOnByItself()) {
        GoToLastPlace();
        m_rooms.face.window->ShowOffer(Words("Goes on at %1", { PlaceText(m_item.lastPlace) }), "StartOver");
    } else if (m_item.lastPlace > 0) {
        m_rooms.face.window->ShowOffer(Words("You were at %1", { PlaceText(m_item.lastPlace) }), "GoToLastPlace");
    }
}

void Memory::KeepPlace(Engine& engine)
{
    const auto& path = m_rooms.transport.Item().path;
    const double time = engine.Time();
    if (time < m_item.oldest)
        return;
    m_item.oldest = 0;
    m_present.path = path;
    m_present.length = engine.Length();
    const auto before = m_places.Find(path);
    m_places.SetTime(path, time, m_present.length);
    // The place alone is kept with what is in hand; the book is written when something else of it changes.
    const auto now = m_places.Find(path);
    m_present.time = now.time;
    m_dirt.places = m_dirt.places || before.isWatched != now.isWatched || (before.turn == 0) != (now.turn == 0);
    auto& list = m_rooms.library.Entries().List();
    list.SetSeen(list.PlayingItem(), now.Share());
}

void Memory::KeepTracks(Engine& engine)
{
    auto place = m_places.Find(m_rooms.transport.Item().path);
    const auto before = place;
    if (engine.AudioTrack() != m_item.audio)
        place.audioTrack = engine.AudioTrack();
    if (engine.SubtitleTrack() != m_item.subtitle)
        place.subtitleTrack = engine.SubtitleTrack();
    place.audioDelay = engine.AudioDelay();
    place.subtitleDelay = engine.SubtitleDelay();
    if (place == before)
        return;
    m_places.Set(m_rooms.transport.Item().path, place);
    m_dirt.places = true;
}

void Memory::ItemEnded()
{
    const auto& item = m_rooms.transport.Item();
    if (!m_isLoaded || item.kind != TransportItem::Kind::File || !MayKeep(item.path) || m_present.path != item.path)
        return;
    m_places.SetWatched(item.path, m_present.length);
    m_present.time = 0;
    m_dirt.places = true;
    // The mark of what plays has gone by now.
    auto& entries = m_rooms.library.Entries();
    entries.List().SetSeen(entries.IndexOfPath(item.path).value_or(-1), m_places.Find(item.path).Share());
    Look();
}

// Rows keep what they show, wherever they go; only those behind them can be new.
void Memory::ShowSeenFrom(int first)
{
    auto& entries = m_rooms.library.Entries();
    for (int row = first; row < entries.Count(); ++row)
        entries.List().SetSeen(row, m_places.Find(entries.PathAt(row)).Share());
}

std::string Memory::LastTime() const
{
    if (!IsRemembering() || m_last.IsEmpty())
        return {};
    auto text =
        CountedWords(static_cast<long long>(m_last.entries.size()), "Last time: %n file", "Last time: %n files");
    const auto played =
        std::ranges::find_if(m_last.entries, [&](const auto& entry) { return entry.entry.FullPath == m_present.path; });
    if (played == m_last.entries.end())
        return text;
    text += ", " + played->entry.Title;
    return m_present.time > 0 ? Words("%1 at %2", { text, PlaceText(m_present.time) }) : text;
}

void Memory::BringBack()
{
    if (!IsRemembering() || m_last.IsEmpty())
        return;
    const auto present = m_present;
    const auto last = std::exchange(m_last, {});
    auto& entries = m_rooms.library.Entries();
    Restore(last, entries, m_rooms.settings.Settings().PlayMode);
    entries.Edits().EndAdding();
    m_rooms.library.TellEntryAdded();
    if (const auto row = entries.IndexOfPath(present.path)) {
        m_goTo = present.time > 0 ? std::optional(present.time) : std::nullopt;
        m_rooms.sequencer.PlayChosen(*row, false);
    }
    Look();
}

void Memory::GoToLastPlace()
{
    auto* const engine = m_rooms.transport.LoadedEngine();
    if (engine != nullptr && m_item.lastPlace > 0 && engine->Length() > 0)
        m_rooms.transport.Seek(m_item.lastPlace / engine->Length());
}

void Memory::StartOver()
{
    m_rooms.transport.Seek(0);
}

void Memory::SetRemembering(bool on)
{
    if (!on)
        ForgetAll();
    m_rooms.choices.Set(Choice::Remembers, on);
    Look();
}

void Memory::Forget(const std::string& path)
{
    m_places.Forget(path);
    if (m_present.path == path) {
        m_present.path.clear();
        m_present.time = 0;
    }
    std::erase_if(m_last.entries, [&](const auto& entry) { return entry.entry.FullPath == path; });
    m_dirt.places = true;
    ShowSeenFrom(0);
    Look();
}

void Memory::ForgetAll()
{
    m_places.ForgetAll();
    m_last = {};
    m_present.path.clear();
    m_present.time = 0;
    ShowSeenFrom(0);
    Look();
    m_dirt = { .noList = true, .places = true, .present = true };
    m_files.WriteSoon();
    m_rooms.face.window->StateChanged();
}

void Memory::ForgetFolderOf(const std::string& path, bool never)
{
    const auto folder = path.substr(0, path.size() - FileNamePart(path, m_needs.separator).size());
    if (never)
        m_places.NeverRemember(folder);
    else
        m_places.RememberAgain(folder);
    if (m_places.IsNeverRemembered(m_present.path)) {
        m_present.path.clear();
        m_present.time = 0;
    }
    m_dirt.places = m_dirt.list = true;
    ShowSeenFrom(0);
    Look();
}

std::vector<StateFiles::File> Memory::TakeDirt()
{
    std::vector<StateFiles::File> texts;
    if (m_dirt.noList) {
        texts.push_back({ m_needs.folder + kListFile, [] { return FormatList({}); } });
    } else if (m_dirt.list) {
        const auto list = std::make_shared<RememberedList>(Remembered(m_rooms.library.Entries(),
            m_rooms.settings.Settings().PlayMode, [this](const std::string& path) { return MayKeep(path); }));
        texts.push_back({ m_needs.folder + kListFile, [list] { return FormatList(*list); } });
    }
    if (m_dirt.places)
        texts.push_back({ m_needs.folder + kPlacesFile, [places = m_places] { return places.Format(); } });
    if (m_dirt.present)
        texts.push_back({ m_needs.folder + kPresentFile, [present = m_present] { return present.Format(); } });
    m_shown.present = m_present;
    m_dirt = {};
    return texts;
}

void Memory::SaveNow()
{
    if (!m_isLoaded)
        return;
    Look();
    m_files.WriteNow();
}

} // namespace zentaro
