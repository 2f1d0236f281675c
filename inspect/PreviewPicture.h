#pragma once

#include "inspect/ToolCommand.h"

#include <string>

namespace zentaro {

struct ToolContext;

/// The largest preview, in px: sharp at twice the size in which it is shown.
inline constexpr int kPreviewWidth = 320;
inline constexpr int kPreviewHeight = 240;

/// One small picture of a film, in the shape in which the film is seen.
struct PreviewRequest {
    std::string path;
    double time = 0;      ///< ms
    bool isExact = false; ///< the picture of that time; else the key frame before it, which is had at once
    bool operator==(const PreviewRequest&) const = default;
};

/// The command of a current tool; it prints a JPEG file and nothing else.
ToolCommand PreviewCommand(const std::string& ffmpeg, const PreviewRequest& request);

/// The bytes of a JPEG file among what a tool has printed; empty where there is no whole one.
std::string JpegIn(const std::string& printed);

/// Runs the tool; empty when it makes no picture, takes too long, or is cancelled by the hooks of `tools`.
std::string MakePreview(const std::string& ffmpeg, const PreviewRequest& request, ToolContext& tools);

} // namespace zentaro
