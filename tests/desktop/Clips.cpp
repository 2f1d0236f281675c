#include "tests/desktop/Clips.h"

#include "tests/desktop/Process.h"
#include "tests/platform/WorkingFolder.h"

#include <filesystem>
#include <map>
#include <set>
#include <stdexcept>

namespace zentaro::trial {

namespace {

const std::string kTestPicture = "testsrc2=size=320x240:rate=25";

std::string ExtensionOf(const std::string& name)
{
    return std::filesystem::path(name).extension().string();
}

/// What ffmpeg does not choose by itself for this kind of file.
std::string ChoicesFor(const std::string& extension)
{
    static const std::map<std::string, std::string> choices = {
        { ".mp4", "-preset ultrafast" },
        { ".mkv", "-preset ultrafast" },
        { ".mov", "-preset ultrafast" },
        { ".3gp", "-s 176x144 -c:a aac" },
        { ".ogm", "-c:v libtheora -c:a libvorbis -f ogg" },
    };
    const auto found = choices.find(extension);
    return found == choices.end() ? std::string() : found->second;
}

std::string MakeFile(const std::string& name, double seconds, const std::string& picture, bool withSound)
{
    static const platform::WorkingFolder folder;
    const auto path = folder / name;
    if (std::filesystem::exists(path))
        return path;
    const auto duration = std::to_string(seconds);
    std::string command = "ffmpeg -v error -nostdin -y";
    if (!Clips::IsSoundOnly(name))
        command += " -f lavfi -t " + duration + " -i " + picture;
    if (withSound)
        command += " -f lavfi -i sine=frequency=440:sample_rate=44100:duration=" + duration;
    Process tool(Words(command + " -pix_fmt yuv420p " + ChoicesFor(ExtensionOf(name)) + " " + path));
    if (tool.WaitForEnd() != 0)
        throw std::runtime_error("cannot make " + name + ": " + tool.Output());
    return path;
}

} // namespace

std::string Clips::Make(const std::string& name, double seconds)
{
    return MakeFile(name, seconds, kTestPicture, true);
}

std::string Clips::MakeSilent(const std::string& name, double seconds)
{
    return MakeFile(name, seconds, kTestPicture, false);
}

std::string Clips::MakeOf(const std::string& picture, const std::string& name, double seconds)
{
    return MakeFile(name, seconds, picture, true);
}

bool Clips::IsSoundOnly(const std::string& name)
{
    static const std::set<std::string> kinds = { ".mp3", ".wav", ".ogg", ".m4a", ".wma", ".mka" };
    return kinds.contains(ExtensionOf(name));
}

} // namespace zentaro::trial
