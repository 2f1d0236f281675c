#include "playlist/PreviewPlan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr int kMostPlaces = 160;
constexpr double kLeastStep = 500; // ms; nearer places have hardly another picture
constexpr double kExactStep = 200; // ms; exact enough for the eye
constexpr double kExactShare = 20; // exact places to a coarse one, more than a pointer can tell apart
constexpr int kNear = 2;           // steps within which a picture may stand for another
constexpr std::size_t kMostExact = 64;

/// One of a few: who knows the length a little better or worse than another finds the same places.
double StepFor(double length)
{
    double step = kLeastStep;
    for (bool isThird = false; length / step > kMostPlaces; isThird = !isThird)
        step *= isThird ? 4.0 / 3 : 1.5;
    return step;
}

} // namespace

PreviewPlan::PreviewPlan(double length)
    : m_length(length)
    , m_step(StepFor(length))
{
}

void PreviewPlan::SetLength(double length)
{
    m_length = length;
}

std::vector<PreviewPlace> PreviewPlan::Places() const
{
    std::vector<PreviewPlace> places;
    for (int index = 0; index < Count(); ++index)
        places.push_back({ index * m_step, false });
    return places;
}

std::vector<PreviewPlace> PreviewPlan::Missing() const
{
    auto places = Places();
    std::erase_if(
        places, [&](const PreviewPlace& place) { return IsKnown(static_cast<int>(std::lround(place.time / m_step))); });
    return places;
}

int PreviewPlan::Count() const
{
    return std::clamp(static_cast<int>(std::ceil(m_length / m_step - 1e-6)), 1, 8 * kMostPlaces);
}

int PreviewPlan::Stride(const PreviewWish& wish) const
{
    return wish.among > 0 ? std::max(Count() / wish.among, 1) : 1;
}

int PreviewPlan::IndexOf(double time, int stride) const
{
    const auto nearest = static_cast<int>(std::lround(time / m_step / stride)) * stride;
    return std::clamp(nearest, 0, (Count() - 1) / stride * stride);
}

PreviewPlace PreviewPlan::ExactPlace(double time) const
{
    const auto step = std::max(kExactStep, m_step / kExactShare);
    return { std::floor(std::max(time, 0.0) / step) * step, true };
}

std::optional<PreviewPlace> PreviewPlan::Next(const PreviewWish& wish) const
{
    if (IsBarren() || (wish.among > 0 && !wish.rests))
        return std::nullopt;
    const auto least = Stride(wish);
    const auto here = IndexOf(wish.time, least);
    const auto exact = ExactPlace(wish.time);
    if (!IsKnown(here) && m_exact.count(exact.time) == 0)
        return PreviewPlace{ here * m_step, false };
    if (wish.rests && wish.among == 0 && m_exact.count(exact.time) == 0)
        return exact;
    if (!wish.fills)
        return std::nullopt;
    // Few pictures of the whole film are worth more than many of a part.
    for (int stride = std::max(8, least); stride >= least; stride /= 2) {
        if (const auto next = NearestUnknown(here, stride))
            return PreviewPlace{ *next * m_step, false };
    }
    return std::nullopt;
}

std::optional<int> PreviewPlan::NearestUnknown(int to, int stride) const
{
    std::optional<int> nearest;
    for (int index = 0; index < Count(); index += stride) {
        if (!IsKnown(index) && (!nearest || std::abs(index - to) < std::abs(*nearest - to)))
            nearest = index;
    }
    return nearest;
}

bool PreviewPlan::IsWanted(const PreviewPlace& place, const PreviewWish& wish) const
{
    // A key frame takes a moment, and is of use wherever the pointer goes next.
    return !place.isExact || (wish.among == 0 && place == ExactPlace(wish.time));
}

void PreviewPlan::Made(const PreviewPlace& place, PreviewBytes picture)
{
    ++(picture ? m_picture : m_failed);
    if (place.isExact) {
        if (m_exact.insert_or_assign(place.time, std::move(picture)).second)
            m_exactByAge.push_back(place.time);
        DropOldExact();
    } else {
        m_coarse.insert_or_assign(static_cast<int>(std::lround(place.time / m_step)), std::move(picture));
    }
}

void PreviewPlan::LookAgain()
{
    m_failed = 0;
    std::string before;
    std::erase_if(m_coarse, [&](const auto& coarse) {
        const auto now = coarse.second ? *coarse.second : std::string();
        return now.empty() || now == std::exchange(before, now);
    });
    std::erase_if(m_exact, [](const auto& exact) { return !exact.second; });
    std::erase_if(m_exactByAge, [&](double time) { return m_exact.count(time) == 0; });
}

void PreviewPlan::DropOldExact()
{
    if (m_exactByAge.size() <= kMostExact)
        return;
    m_exact.erase(m_exactByAge.front());
    m_exactByAge.erase(m_exactByAge.begin());
}

PreviewBytes PreviewPlan::At(const PreviewWish& wish) const
{
    const auto stride = Stride(wish);
    if (wish.among == 0) {
        if (const auto exact = m_exact.find(ExactPlace(wish.time).time); exact != m_exact.end() && exact->second)
            return exact->second;
    }
    const double reach = kNear * stride * m_step;
    std::pair<double, PreviewBytes> nearest{ reach, nullptr };
    const auto consider = [&](double time, const PreviewBytes& picture) {
        if (picture && std::abs(time - wish.time) <= nearest.first)
            nearest = { std::abs(time - wish.time), picture };
    };
    for (const auto& [index, picture] : m_coarse)
        consider(index * m_step, picture);
    if (wish.among == 0) {
        for (const auto& [time, picture] : m_exact)
            consider(time, picture);
    }
    return nearest.second;
}

} // namespace zentaro
