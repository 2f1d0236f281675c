#include "tests/desktop/Picture.h"

#include "tests/desktop/Process.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <unistd.h>

namespace zentaro::desktop {

namespace {

int Part(std::uint32_t pixel, int shift)
{
    return static_cast<int>(pixel >> shift & 0xFF);
}

} // namespace

double Colour::Brightest() const
{
    return std::max({ red, green, blue });
}

Picture Picture::FromFile(const std::string& path, int width, int height)
{
    const auto size = std::to_string(width) + ":" + std::to_string(height);
    auto raw = (std::filesystem::temp_directory_path() / "zentaro-picture-XXXXXX").string();
    close(mkstemp(raw.data()));
    Process tool({ .program = "/usr/bin/ffmpeg",
        .arguments = {
            "-v", "error", "-y", "-i", path, "-vf", "scale=" + size, "-f", "rawvideo", "-pix_fmt", "bgr0", raw } });
    tool.WaitForEnd();
    const auto bytes = ReadWholeFile(raw);
    std::filesystem::remove(raw);
    Picture picture{ width, height, std::vector<std::uint32_t>(bytes.size() / sizeof(std::uint32_t)) };
    std::memcpy(picture.pixels.data(), bytes.data(), picture.pixels.size() * sizeof(std::uint32_t));
    for (auto& pixel : picture.pixels)
        pixel &= 0xFFFFFF;
    return picture;
}

Colour Picture::Mean() const
{
    Colour sum;
    for (const auto pixel : pixels) {
        sum.red += Part(pixel, 16);
        sum.green += Part(pixel, 8);
        sum.blue += Part(pixel, 0);
    }
    const auto count = static_cast<double>(std::max<std::size_t>(pixels.size(), 1));
    return { sum.red / count, sum.green / count, sum.blue / count };
}

Picture Picture::Blocks(int count) const
{
    Picture blocks{ count, count, {} };
    for (int at = 0; at < count * count; ++at) {
        const int left = at % count * width / count;
        const int right = (at % count + 1) * width / count;
        Picture block;
        for (int y = at / count * height / count; y < (at / count + 1) * height / count; ++y)
            block.pixels.insert(
                block.pixels.end(), pixels.begin() + y * width + left, pixels.begin() + y * width + right);
        const auto mean = block.Mean();
        const auto part = [](double value, int shift) { return static_cast<std::uint32_t>(value) << shift; };
        blocks.pixels.push_back(part(mean.red, 16) | part(mean.green, 8) | part(mean.blue, 0));
    }
    return blocks;
}

void Picture::SavePng(const std::string& path) const
{
    auto bytes = "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
    for (const auto pixel : pixels) {
        for (const int shift : { 16, 8, 0 })
            bytes += static_cast<char>(Part(pixel, shift));
    }
    const auto raw = path + ".ppm";
    WriteWholeFile(raw, bytes);
    Process tool({ .program = "/usr/bin/ffmpeg", .arguments = { "-v", "error", "-y", "-i", raw, path } });
    tool.WaitForEnd();
    std::filesystem::remove(raw);
}

double ShareThatDiffers(const Picture& a, const Picture& b, int tolerance)
{
    if (a.pixels.empty() || a.width != b.width || a.pixels.size() != b.pixels.size())
        return 1;
    std::size_t different = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) {
        const auto differs = [&](int shift) {
            return std::abs(Part(a.pixels[i], shift) - Part(b.pixels[i], shift)) > tolerance;
        };
        if (differs(16) || differs(8) || differs(0))
            ++different;
    }
    return static_cast<double>(different) / static_cast<double>(a.pixels.size());
}

} // namespace zentaro::desktop
