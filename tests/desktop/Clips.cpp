#include "tests/desktop/Clips.h"

#include "tests/desktop/Process.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <stdexcept>

namespace zentaro::desktop {

namespace {

struct Kind {
    std::vector<std::string> picture; ///< arguments of the picture's encoder; empty: sound alone
    std::vector<std::string> sound;
    std::string format;
};

const Kind& KindOf(const std::string& name)
{
    static const std::vector<std::string> h264 = { "-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p" };
    static const std::vector<std::string> mpeg4 = { "-c:v", "mpeg4", "-q:v", "5" };
    static const std::vector<std::string> aac = { "-c:a", "aac" };
    static const std::vector<std::string> vorbis = { "-c:a", "libvorbis" };
    static const std::vector<std::string> mp3 = { "-c:a", "libmp3lame" };
    static const std::map<std::string, Kind> kinds = {
        { ".mp4", { h264, aac, "mp4" } },
        { ".mkv", { h264, vorbis, "matroska" } },
        { ".avi", { mpeg4, mp3, "avi" } },
        { ".mpg", { { "-c:v", "mpeg1video" }, { "-c:a", "mp2" }, "mpeg" } },
        { ".flv", { { "-c:v", "flv" }, { "-c:a", "libmp3lame", "-ar", "44100" }, "flv" } },
        { ".wmv", { { "-c:v", "wmv2" }, { "-c:a", "wmav2" }, "asf" } },
        { ".mov", { mpeg4, aac, "mov" } },
        { ".3gp", { { "-c:v", "h263", "-s", "176x144" }, aac, "3gp" } },
        { ".ogm", { { "-c:v", "libtheora", "-q:v", "5" }, vorbis, "ogg" } },
        { ".mp3", { {}, mp3, "mp3" } },
        { ".wav", { {}, { "-c:a", "pcm_s16le" }, "wav" } },
        { ".ogg", { {}, vorbis, "ogg" } },
        { ".m4a", { {}, aac, "ipod" } },
        { ".aac", { {}, aac, "adts" } },
        { ".wma", { {}, { "-c:a", "wmav2" }, "asf" } },
        { ".mka", { {}, vorbis, "matroska" } },
    };
    return kinds.at(std::filesystem::path(name).extension().string());
}

const std::string kTestPicture = "testsrc2=size=320x240:rate=25";

// The tenths of a second as stripes, lowest digit on the left, and in the lower half their negative: what is black,
// torn or something else altogether is no time.
constexpr int kStripes = 8;
const std::string kClockPicture = "color=size=128x96:rate=25,format=gray,"
                                  "geq=lum='255*abs(mod(floor(floor(10*T+0.01)/pow(2,floor(8*X/W))),2)-gte(Y,H/2))'";

class Folder {
public:
    Folder()
    {
        auto path = (std::filesystem::temp_directory_path() / "zentaro-clips-XXXXXX").string();
        if (mkdtemp(path.data()) == nullptr)
            throw std::runtime_error("no folder for clips");
        m_path = path;
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

std::string MakeFile(const std::string& name, double seconds, const std::string& picture, bool withSound)
{
    static const Folder folder;
    const auto path = folder / name;
    if (std::filesystem::exists(path))
        return path;
    const auto& kind = KindOf(name);
    const auto duration = std::to_string(seconds);
    std::vector<std::string> arguments = { "-v", "error", "-nostdin", "-y" };
    const auto add = [&](const std::vector<std::string>& more) {
        arguments.insert(arguments.end(), more.begin(), more.end());
    };
    if (!kind.picture.empty())
        add({ "-f", "lavfi", "-t", duration, "-i", picture });
    if (withSound)
        add({ "-f", "lavfi", "-i", "sine=frequency=440:sample_rate=44100:duration=" + duration });
    add(kind.picture);
    if (withSound)
        add(kind.sound);
    add({ "-f", kind.format, path });
    Process tool({ .program = "/usr/bin/ffmpeg", .arguments = arguments, .errorFile = folder / "ffmpeg.log" });
    if (tool.WaitForEnd() != 0)
        throw std::runtime_error("cannot make " + name + ": " + tool.ErrorText());
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

std::string Clips::MakeClock(const std::string& name, double seconds)
{
    return MakeFile(name, seconds, kClockPicture, true);
}

bool Clips::IsSoundOnly(const std::string& name)
{
    return KindOf(name).picture.empty();
}

std::optional<double> ShownTime(const Picture& video)
{
    // The picture lies in the middle and keeps its shape of 4 to 3.
    const int width = std::min(video.width, video.height * 4 / 3);
    const int height = std::min(video.height, video.width * 3 / 4);
    const auto isWhite = [&](int stripe, int quarter) {
        const int x = (video.width - width) / 2 + width * (2 * stripe + 1) / (2 * kStripes);
        const int y = (video.height - height) / 2 + height * quarter / 4;
        return (video.pixels[static_cast<std::size_t>(y * video.width + x)] & 0xFF) > 128;
    };
    int tenths = 0;
    if (video.pixels.empty())
        return std::nullopt;
    for (int stripe = 0; stripe < kStripes; ++stripe) {
        if (isWhite(stripe, 1) == isWhite(stripe, 3))
            return std::nullopt;
        tenths |= isWhite(stripe, 1) << stripe;
    }
    return tenths / 10.0;
}

} // namespace zentaro::desktop
