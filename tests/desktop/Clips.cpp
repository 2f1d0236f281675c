#include "tests/desktop/Clips.h"

#include "tests/desktop/Process.h"
#include "tests/platform/WorkingFolder.h"

#include <filesystem>
#include <map>
#include <set>
#include <stdexcept>

namespace zentaro::trial {

std::string Clips::Make(const std::string& name, double seconds, const std::string& picture)
{
    // What ffmpeg does not choose by itself for a kind of file.
    static std::map<std::string, std::string> choices = { { ".mp4", "-preset ultrafast" },
        { ".mkv", "-preset ultrafast" }, { ".mov", "-preset ultrafast" }, { ".3gp", "-s 176x144 -c:a aac" },
        { ".ogm", "-c:v libtheora -c:a libvorbis -f ogg" } };
    static const platform::WorkingFolder folder;
    const auto path = folder / name;
    if (std::filesystem::exists(path))
        return path;
    const auto duration = std::to_string(seconds);
    Process tool(
        Words("ffmpeg -v error -nostdin" + (IsSoundOnly(name) ? "" : " -f lavfi -t " + duration + " -i " + picture)
            + " -f lavfi -i sine=frequency=440:sample_rate=44100:duration=" + duration + " -pix_fmt yuv420p "
            + choices[std::filesystem::path(name).extension()] + " " + path));
    if (tool.WaitForEnd(4 * kPatience) == 0)
        return path;
    std::filesystem::remove(path);
    throw std::runtime_error("cannot make " + name + ": " + tool.Output());
}

bool Clips::IsSoundOnly(const std::string& name)
{
    static const std::set<std::string> kinds = { ".mp3", ".wav", ".ogg", ".m4a", ".aac", ".wma", ".mka" };
    return kinds.contains(std::filesystem::path(name).extension());
}

} // namespace zentaro::trial
