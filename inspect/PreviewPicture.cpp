#include "inspect/PreviewPicture.h"

#include "inspect/ModPipes.h"
#include "platform/ChildProcess.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <sstream>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

// A film that cannot be entered in the middle is read from its beginning; that is not worth a preview.
constexpr RunLimit kLimit{ .total = 6s };

/// In a film without an index, or not written so far yet, the tool comes out at another place. Times are s from the
/// place that was asked for; a picture without one is let through.
const std::string kNearFilter = "select=not(lt(t\\,-10)),";

/// As seen: pixels need not be square. At the time 0, because what lies before the place that was asked for is dropped.
std::string FittingFilter()
{
    const auto width = std::to_string(kPreviewWidth);
    const auto height = std::to_string(kPreviewHeight);
    return "scale=w='max(2,trunc(min(" + width + "," + height + "*dar)/2)*2)':h='max(2,trunc(min(" + height + ","
        + width + "/dar)/2)*2)':flags=fast_bilinear,setsar=1,setpts=0";
}

std::string SecondsText(double time)
{
    const auto whole = static_cast<std::int64_t>(std::llround(std::max(time, 0.0)));
    char text[32];
    std::snprintf(text, sizeof text, "%lld.%03d", static_cast<long long>(whole / 1000), static_cast<int>(whole % 1000));
    return text;
}

} // namespace

ToolCommand PreviewCommand(const std::string& ffmpeg, const PreviewRequest& request)
{
    ToolCommand command;
    command.program = ffmpeg;
    command.limit = kLimit;
    auto& arguments = command.arguments;
    const auto add = [&](std::initializer_list<std::string> more) { arguments.insert(arguments.end(), more); };
    // What it has to say would come between the bytes of the picture.
    add({ "-v", "quiet", "-nostdin" });
    if (request.isExact)
        add({ "-threads", "2", "-skip_frame", "noref", "-skip_loop_filter", "all" });
    else
        // More threads would each want a picture before the first one comes out.
        add({ "-threads", "1", "-skip_frame", "nokey", "-noaccurate_seek" });
    add({ "-ss", SecondsText(request.time), "-i", "file:" + request.path });
    // Not a cover, which is a film of one picture to the tool.
    add({ "-map", "0:V:0", "-frames:v", "1", "-vf", (request.isExact ? "" : kNearFilter) + FittingFilter() });
    add({ "-c:v", "mjpeg", "-pix_fmt", "yuvj420p", "-q:v", "4", "-f", "image2pipe", "pipe:1" });
    return command;
}

std::string JpegIn(const std::string& printed)
{
    const auto begin = printed.find("\xFF\xD8\xFF");
    const auto end = printed.rfind("\xFF\xD9");
    if (begin == std::string::npos || end == std::string::npos || end < begin)
        return {};
    return printed.substr(begin, end + 2 - begin);
}

std::string MakePreview(const std::string& ffmpeg, const PreviewRequest& request, ToolContext& tools)
{
    const auto command = PreviewCommand(ffmpeg, request);
    const auto child =
        platform::ChildProcess::Start({ command.program, command.arguments, "", false, platform::kNormalPriority });
    if (!child)
        return {};
    std::ostringstream printed;
    if (!Capture(**child, printed, 0, tools, command.limit) || tools.CancelExecute != 0)
        return {};
    return JpegIn(printed.str());
}

} // namespace zentaro
