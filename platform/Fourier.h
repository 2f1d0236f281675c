#pragma once

#include <cstddef>
#include <memory>
#include <span>

namespace zentaro::platform {

/// Takes pieces of sound apart into their tones.
class Fourier {
public:
    /// `samples`: the length of a piece, even, 4 or more.
    explicit Fourier(std::size_t samples);
    ~Fourier();
    Fourier(const Fourier&) = delete;
    Fourier& operator=(const Fourier&) = delete;

    /// How strong each tone of `piece` is: `strengths[i]` of the tone that swings i times within it, below half its
    /// length. A tone that swings between -1 and 1 all the time has half that length.
    void Take(std::span<const float> piece, std::span<float> strengths);

private:
    struct Plan;
    std::unique_ptr<Plan> m_plan;
};

} // namespace zentaro::platform
