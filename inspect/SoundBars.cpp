#include "inspect/SoundBars.h"

#include "platform/Fourier.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

// A file that cannot be entered in the middle is read from its beginning.
constexpr RunLimit kLimit{ .total = 20s };

constexpr std::size_t kStep = kBarSoundRate / kBarPictures;
constexpr std::size_t kWindow = 2048; // samples: fine enough to tell deep tones apart, short enough for a drum
constexpr double kDeepest = 45;       // Hz
constexpr double kHighest = 10'000;   // Hz
constexpr double kRange = 62;         // dB, from the lowest bar to the highest
constexpr double kTilt = 3.6;         // dB an octave: high tones are weaker, and heard all the same
constexpr double kTiltFrom = 100;     // Hz
constexpr double kFull = 32'768;

double FrequencyOf(double bar)
{
    return kDeepest * std::pow(kHighest / kDeepest, bar / static_cast<double>(kBars));
}

double ToneAt(double frequency)
{
    return frequency * static_cast<double>(kWindow) / kBarSoundRate;
}

/// The strongest tone of a bar. Deep bars are narrower than what lies between two tones.
double Strongest(const std::array<float, kWindow / 2>& strengths, std::size_t bar)
{
    const auto from = ToneAt(FrequencyOf(static_cast<double>(bar)));
    const auto to = ToneAt(FrequencyOf(static_cast<double>(bar) + 1));
    const auto between = [&](double tone) {
        const auto below = static_cast<std::size_t>(tone);
        const auto share = tone - static_cast<double>(below);
        return (1 - share) * static_cast<double>(strengths[below]) + share * static_cast<double>(strengths[below + 1]);
    };
    double strongest = std::max(between(from), between((from + to) / 2));
    for (auto tone = static_cast<std::size_t>(std::ceil(from)); tone < static_cast<std::size_t>(to); ++tone)
        strongest = std::max(strongest, static_cast<double>(strengths[tone]));
    return strongest;
}

std::uint8_t HeightOf(double strength, std::size_t bar)
{
    // The window lets a half through, and a tone has its strength on two sides.
    const double share = strength * 4 / static_cast<double>(kWindow);
    const double octaves = std::log2(FrequencyOf(static_cast<double>(bar) + 0.5) / kTiltFrom);
    const double loudness = 20 * std::log10(std::max(share, 1e-9)) + kTilt * octaves;
    return static_cast<std::uint8_t>(std::clamp((loudness + kRange) / kRange, 0.0, 1.0) * 255);
}

std::array<float, kWindow> MakeWindow()
{
    std::array<float, kWindow> window{};
    for (std::size_t i = 0; i < kWindow; ++i)
        window[i] = static_cast<float>(
            0.5 - 0.5 * std::cos(2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(kWindow)));
    return window;
}

} // namespace

ToolCommand SoundCommand(const std::string& ffmpeg, const SoundPiece& piece, const std::string& output)
{
    ToolCommand command;
    command.program = ffmpeg;
    command.limit = kLimit;
    auto& arguments = command.arguments;
    const auto add = [&](std::initializer_list<std::string> more) { arguments.insert(arguments.end(), more); };
    add({ "-v", "quiet", "-nostdin", "-y", "-threads", "1" });
    add({ "-ss", std::to_string(piece.start), "-t", std::to_string(piece.length), "-i", "file:" + piece.path });
    add({ "-map", "0:a:0", "-ac", "1", "-ar", std::to_string(kBarSoundRate), "-c:a", "pcm_s16le", "-f", "s16le" });
    add({ output });
    return command;
}

std::vector<BarPicture> BarsOf(std::span<const std::int16_t> samples)
{
    static const auto window = MakeWindow();
    platform::Fourier fourier(kWindow);
    std::array<float, kWindow> piece{};
    std::array<float, kWindow / 2> strengths{};
    std::vector<BarPicture> pictures((samples.size() + kStep - 1) / kStep);
    for (std::size_t picture = 0; picture < pictures.size(); ++picture) {
        for (std::size_t i = 0; i < kWindow; ++i) {
            // The moment of the picture lies in the middle; before the beginning and behind the end it is silent.
            const auto at = picture * kStep + i;
            const bool isInside = at >= kWindow / 2 && at - kWindow / 2 < samples.size();
            piece[i] = isInside ? window[i] * static_cast<float>(samples[at - kWindow / 2] / kFull) : 0.0F;
        }
        fourier.Take(piece, strengths);
        for (std::size_t bar = 0; bar < kBars; ++bar)
            pictures[picture][bar] = HeightOf(Strongest(strengths, bar), bar);
    }
    return pictures;
}

} // namespace zentaro
