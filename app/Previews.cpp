#include "app/Previews.h"

#include <algorithm>
#include <cstddef>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kRest = 150ms; // after which the hand has stopped
constexpr std::size_t kMostFilms = 12;

} // namespace

Previews::Previews(PreviewRunner& runner, std::function<bool(const std::string& path)> isSpared,
    std::function<void(std::chrono::milliseconds, std::function<void()>)> after)
    : m_runner(runner)
    , m_isSpared(std::move(isSpared))
    , m_after(std::move(after))
{
}

void Previews::PointAt(const Film& film, double time, int among)
{
    if (film.path.empty() || film.length < 1)
        return Leave();
    const bool isOther = Pointed() == nullptr || m_films.front().path != film.path || m_wish.among != among;
    if (isOther)
        GoTo(film);
    m_films.front().plan.SetLength(film.length);
    m_wish.time = time;
    m_wish.among = among;
    // On a thumbnail it is enough that the hand has come to stay.
    m_wish.rests = m_wish.rests && among > 0 && !isOther;
    m_after(kRest, [this, move = ++m_moves] {
        if (!m_isPointing || move != m_moves)
            return;
        m_wish.rests = true;
        // The file may be one that is still being written.
        m_films.front().isLookedAt = false;
        GoOn();
    });
    CancelUnwanted();
    GoOn();
}

void Previews::GoTo(const Film& film)
{
    m_isPointing = true;
    m_wish.fills = !m_isSpared(film.path);
    const auto known = std::ranges::find(m_films, film.path, &Known::path);
    if (known != m_films.end())
        m_films.splice(m_films.begin(), m_films, known);
    else
        m_films.push_front({ film.path, PreviewPlan(film.length) });
    m_films.front().isLookedAt = false;
    if (m_films.size() > kMostFilms)
        m_films.pop_back();
}

void Previews::Leave()
{
    ++m_moves;
    m_isPointing = false;
    CancelUnwanted();
}

void Previews::CancelUnwanted()
{
    if (m_makingPath.empty())
        return;
    const auto* const film = Pointed();
    if (film != nullptr && film->path == m_makingPath && film->plan.IsWanted(m_making, m_wish))
        return;
    m_runner.Cancel();
    m_makingPath.clear();
}

void Previews::GoOn()
{
    auto* const film = Pointed();
    if (film == nullptr)
        return;
    if (!film->isLookedAt)
        return LookAtFile();
    const auto next = m_makingPath.empty() ? film->plan.Next(m_wish) : std::nullopt;
    if (!next)
        return;
    m_makingPath = film->path;
    m_making = *next;
    m_runner.Make(film->path, *next, [this](PreviewBytes picture) {
        if (auto* const made = Find(m_makingPath))
            made->plan.Made(m_making, std::move(picture));
        m_makingPath.clear();
        GoOn();
        onNews();
    });
}

void Previews::LookAtFile()
{
    auto& film = m_films.front();
    film.isLookedAt = true;
    const auto found = [this, path = film.path](PreviewRunner::Made made, const PreviewRunner::Stamp& stamp) {
        if (auto* const seen = Find(path)) {
            if (seen->stamp && stamp != seen->stamp)
                seen->plan.LookAgain();
            seen->stamp = stamp;
            for (auto& [place, picture] : made)
                seen->plan.Made(place, std::move(picture));
        }
        GoOn();
        onNews();
    };
    m_runner.Recall(film.path, film.plan.Missing(), found);
}

Previews::Known* Previews::Find(const std::string& path)
{
    const auto film = std::ranges::find(m_films, path, &Known::path);
    return film != m_films.end() ? &*film : nullptr;
}

PreviewBytes Previews::Picture() const
{
    return m_isPointing ? m_films.front().plan.At(m_wish) : nullptr;
}

bool Previews::MayCome() const
{
    return m_isPointing && !m_films.front().plan.IsBarren();
}

} // namespace zentaro
