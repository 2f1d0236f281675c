#include "app/PlaceBook.h"

#include "app/StateText.h"
#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr std::string_view kHeader = "Zentaro places 1";
constexpr double kBeginning = 10'000; // ms: nobody misses those

} // namespace

bool Place::IsEmpty() const
{
    return time <= 0 && !isWatched && audioTrack == kNotChosen && subtitleTrack == kNotChosen && audioDelay == 0
        && subtitleDelay == 0;
}

Place PlaceBook::Find(const std::string& path) const
{
    const auto at = m_places.find(path);
    return at == m_places.end() ? Place() : at->second;
}

void PlaceBook::SetTime(const std::string& path, double time, double length)
{
    if (length < kShortest)
        return;
    auto place = Find(path);
    place.isWatched = place.isWatched || time >= length * kWatched;
    place.time = time >= length * kWatched || time < kBeginning ? 0 : time;
    place.length = length;
    Set(path, place);
}

void PlaceBook::SetWatched(const std::string& path, double length)
{
    SetTime(path, length, length);
}

void PlaceBook::Set(const std::string& path, Place place)
{
    if (path.empty() || IsNeverRemembered(path))
        return;
    if (place.IsEmpty()) {
        Forget(path);
        return;
    }
    place.turn = ++m_turn;
    m_places[path] = place;
    DropOldest();
}

void PlaceBook::Forget(const std::string& path)
{
    m_places.erase(path);
}

void PlaceBook::DropOldest()
{
    if (m_places.size() <= kMost)
        return;
    const auto older = [](const auto& a, const auto& b) { return a.second.turn < b.second.turn; };
    m_places.erase(std::min_element(m_places.begin(), m_places.end(), older));
}

void PlaceBook::NeverRemember(const std::string& folder)
{
    if (folder.empty() || std::find(m_never.begin(), m_never.end(), folder) != m_never.end())
        return;
    m_never.push_back(folder);
    std::erase_if(m_places, [&](const auto& place) { return place.first.starts_with(folder); });
}

void PlaceBook::RememberAgain(const std::string& folder)
{
    std::erase(m_never, folder);
}

bool PlaceBook::IsNeverRemembered(const std::string& path) const
{
    return std::any_of(
        m_never.begin(), m_never.end(), [&](const std::string& folder) { return path.starts_with(folder); });
}

std::string PlaceBook::Format() const
{
    StateWriter writer(kHeader);
    for (const auto& folder : m_never)
        writer.Row("never").Field(folder);
    for (const auto& [path, place] : m_places) {
        writer.Row("place").Field(path).Number(place.time).Number(place.length).Number(place.isWatched ? 1 : 0);
        writer.Number(place.audioTrack).Number(place.subtitleTrack).Number(place.audioDelay);
        writer.Number(place.subtitleDelay).Number(static_cast<double>(place.turn));
    }
    return writer.Take();
}

PlaceBook PlaceBook::Parse(std::string_view text)
{
    PlaceBook book;
    for (const auto& row : ReadState(text, kHeader)) {
        if (row[0] == "never" && !TextAt(row, 1).empty())
            book.m_never.push_back(row[1]);
        if (row[0] != "place" || row.size() < 10)
            continue;
        Place place;
        place.length = std::max(0.0, NumberAt(row, 3));
        place.time = std::clamp(NumberAt(row, 2), 0.0, place.length);
        place.isWatched = NumberAt(row, 4) != 0;
        place.audioTrack = RoundHalfEven(NumberAt(row, 5));
        place.subtitleTrack = RoundHalfEven(NumberAt(row, 6));
        place.audioDelay = RoundHalfEven(NumberAt(row, 7));
        place.subtitleDelay = RoundHalfEven(NumberAt(row, 8));
        place.turn = static_cast<std::uint64_t>(std::clamp(NumberAt(row, 9), 0.0, 1e15));
        if (place.IsEmpty())
            continue;
        book.m_places[row[1]] = place;
        book.m_turn = std::max(book.m_turn, place.turn);
        book.DropOldest();
    }
    std::erase_if(book.m_places, [&](const auto& place) { return book.IsNeverRemembered(place.first); });
    return book;
}

} // namespace zentaro
