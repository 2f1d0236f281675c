#include "tests/desktop/Clips.h"

#include "tests/desktop/Process.h"
#include "tests/platform/WorkingFolder.h"

#include <filesystem>
#include <map>
#include <set>
#include <stdexcept>

namespace zentaro::trial {

namespace {

std::string ExtensionOf(const std::string& name)
{
    return std::filesystem::path(name).extension().string();
}

} // namespace

std::string Clips::Make(const std::string& name, double seconds, const std::string& picture, bool withSound)
{
    // What ffmpeg does not choose by itself for a kind of file.
    static const std::map<std::string, std::string> choices = { { ".mp4", "-preset ultrafast" },
        { ".mkv", "-preset ultrafast" }, { ".mov", "-preset ultrafast" }, { ".3gp", "-s 176x144 -c:a aac" },
        { ".ogm", "-c:v libtheora -c:a libvorbis -f ogg" } };
    static const platform::WorkingFolder folder;
    const auto path = folder / name;
    if (std::filesystem::exists(path))
        return path;
    const auto duration = std::to_string(seconds);
    std::string command = "ffmpeg -v error -nostdin";
    if (!IsSoundOnly(name))
        command += " -f lavfi -t " + duration + " -i " + picture;
    if (withSound)
        command += " -f lavfi -i sine=frequency=440:sample_rate=44100:duration=" + duration;
    const auto choice = choices.find(ExtensionOf(name));
    Process tool(Words(command + " -pix_fmt yuv420p " + (choice == choices.end() ? "" : choice->second) + " " + path));
    if (tool.WaitForEnd(4 * kPatience) == 0)
        return path;
    std::filesystem::remove(path);
    throw std::runtime_error("cannot make " + name + ": " + tool.Output());
}

bool Clips::IsSoundOnly(const std::string& name)
{
    static const std::set<std::string> kinds = { ".mp3", ".wav", ".ogg", ".m4a", ".wma", ".mka" };
    return kinds.contains(ExtensionOf(name));
}

} // namespace zentaro::trial
