#pragma once

#include "base/Picture.h"
#include "inspect/Inspection.h"

#include <cstdint>
#include <optional>
#include <string>

namespace zentaro {

inline constexpr std::int32_t kThumbnailWidth = 90;  // px
inline constexpr std::int32_t kThumbnailHeight = 72; // px

/// The factor that fits a source into a box of the given size; 1 when a side of the source is 0. Sizes in px.
double FitScale(std::int32_t SourceWidth, std::int32_t SourceHeight, std::int32_t BoxWidth, std::int32_t BoxHeight);

struct ThumbnailSize {
    std::int32_t width = 0;  // px, even
    std::int32_t height = 0; // px, even
    bool operator==(const ThumbnailSize&) const = default;
};

/// The thumbnail of a picture of that size (px); `lying` when the tool turns the picture by a quarter first.
ThumbnailSize ThumbnailSizeOf(std::int32_t width, std::int32_t height, bool lying);

/// Where in a film of that duration the picture is taken; both in seconds.
float ThumbnailTime(float duration);

/// One picture to make.
struct ThumbnailRequest {
    std::string fileName;
    ThumbnailSize size;
    std::optional<float> seekTime;      // s; nothing: the first picture
    std::optional<std::int32_t> stream; // the tool's number of the film to take; nothing: the tool's own choice
};

/// The command for a tool of the classic time or for a current one; writes the JPEG file `output`.
ToolCommand ThumbnailCommand(
    const std::string& program, bool classicTool, const ThumbnailRequest& request, const std::string& output);

/// Makes thumbnails of one file with the tool that inspected it.
class ThumbnailMaker {
public:
    ThumbnailMaker(const InspectionContext& context, bool classicTool)
        : m_context(context)
        , m_classicTool(classicTool)
    {
    }

    /// No picture when the tool made none or hangs. A clip that is too short for the seek time gets its first picture.
    /// `file` takes the bytes of the file that the tool wrote; empty where there is no picture.
    Picture RenderThumbnail(const ThumbnailRequest& request, std::string* file = nullptr) const;

private:
    bool Run(const ThumbnailRequest& request, const std::string& output) const;
    bool IsThere(const std::string& output) const;

    const InspectionContext& m_context;
    bool m_classicTool;
};

} // namespace zentaro
