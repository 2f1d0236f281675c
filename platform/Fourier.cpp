#include "platform/Fourier.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <kissfft.hh>
#include <vector>

namespace zentaro::platform {

struct Fourier::Plan {
    explicit Plan(std::size_t samples)
        : transform(samples / 2, false)
        , tones(samples / 2)
    {
    }
    kissfft<float> transform; // of real values, twice as many as it is told
    std::vector<std::complex<float>> tones;
};

Fourier::Fourier(std::size_t samples)
    : m_plan(std::make_unique<Plan>(samples))
{
}

Fourier::~Fourier() = default;

void Fourier::Take(std::span<const float> piece, std::span<float> strengths)
{
    auto& tones = m_plan->tones;
    if (piece.size() < 2 * tones.size())
        return;
    m_plan->transform.transform_real(piece.data(), tones.data());
    // The first value holds two: what does not swing at all, and what swings with every sample.
    tones[0] = tones[0].real();
    for (std::size_t i = 0; i < std::min(tones.size(), strengths.size()); ++i)
        strengths[i] = std::abs(tones[i]);
}

} // namespace zentaro::platform
