#include "inspect/CoverPicture.h"

#include "base/Paths.h"
#include "inspect/ModPipes.h"
#include "platform/ChildProcess.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string_view>
#include <system_error>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr RunLimit kLimit{ .total = 6s };
constexpr std::size_t kMostFiles = 20'000; // of a folder that is looked through
constexpr std::array<std::string_view, 3> kNames = { "cover", "folder", "front" };
constexpr std::array<std::string_view, 3> kTypes = { ".jpg", ".jpeg", ".png" };

std::string Lower(std::string text)
{
    std::ranges::transform(
        text, text.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

/// The lower, the better; the number of all for a name of another kind.
std::size_t RankOf(const std::string& name)
{
    const auto lower = Lower(name);
    std::size_t rank = 0;
    for (const auto stem : kNames) {
        for (const auto type : kTypes) {
            if (lower.size() == stem.size() + type.size() && lower.starts_with(stem) && lower.ends_with(type))
                return rank;
            ++rank;
        }
    }
    return rank;
}

bool Write(const ToolCommand& command, const std::string& output, ToolContext& tools)
{
    const auto child =
        platform::ChildProcess::Start({ command.program, command.arguments, "", false, platform::kNormalPriority });
    if (!child)
        return false;
    std::ostringstream printed;
    return Capture(**child, printed, 0, tools, command.limit) && tools.CancelExecute == 0
        && platform::PathExists(output);
}

} // namespace

std::string CoverAmong(const std::vector<std::string>& names)
{
    const auto best = std::ranges::min_element(names, {}, &RankOf);
    return best != names.end() && RankOf(*best) < kNames.size() * kTypes.size() ? *best : std::string();
}

std::string CoverBeside(const std::string& song, char separator)
{
    const auto folder = song.substr(0, song.size() - FileNamePart(song, separator).size());
    std::error_code problem;
    std::filesystem::directory_iterator file(
        std::filesystem::path(std::u8string(folder.begin(), folder.end())), problem);
    std::vector<std::string> names;
    for (std::size_t seen = 0; !problem && file != std::filesystem::directory_iterator() && seen < kMostFiles; ++seen) {
        const auto name = file->path().filename().u8string();
        if (std::string text(name.begin(), name.end()); RankOf(text) < kNames.size() * kTypes.size())
            names.push_back(std::move(text));
        file.increment(problem);
    }
    const auto cover = CoverAmong(names);
    return cover.empty() ? cover : folder + cover;
}

ToolCommand CoverCommand(const std::string& ffmpeg, const std::string& path, const std::string& output, int side)
{
    const auto most = std::to_string(side);
    ToolCommand command;
    command.program = ffmpeg;
    command.limit = kLimit;
    auto& arguments = command.arguments;
    const auto add = [&](std::initializer_list<std::string> more) { arguments.insert(arguments.end(), more); };
    // A picture of any size can call itself a cover.
    add({ "-v", "quiet", "-nostdin", "-y", "-max_pixels", "100000000", "-i", "file:" + path, "-map", "0:v:0" });
    add({ "-frames:v", "1", "-vf",
        "scale=w='min(iw," + most + ")':h='min(ih," + most + ")':force_original_aspect_ratio=decrease,setsar=1" });
    add({ "-c:v", "mjpeg", "-pix_fmt", "yuvj420p", "-q:v", "3", "-f", "image2", "-update", "1", output });
    return command;
}

bool MakeCover(const std::string& ffmpeg, const std::string& song, char separator, const std::string& output, int side,
    ToolContext& tools)
{
    if (Write(CoverCommand(ffmpeg, song, output, side), output, tools))
        return true;
    const auto beside = tools.CancelExecute == 0 ? CoverBeside(song, separator) : std::string();
    return !beside.empty() && Write(CoverCommand(ffmpeg, beside, output, side), output, tools);
}

} // namespace zentaro
