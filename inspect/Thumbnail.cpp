#include "inspect/Thumbnail.h"

#include "base/Numbers.h"
#include "inspect/TextValues.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace zentaro {

namespace {

/// An argument list and the text of the same command, side by side.
class CommandBuilder {
public:
    explicit CommandBuilder(const std::string& program) { m_command.program = program; }

    CommandBuilder& Add(std::initializer_list<std::string> arguments)
    {
        for (const auto& argument : arguments)
            Append(argument, argument);
        return *this;
    }

    CommandBuilder& AddPath(const std::string& path)
    {
        Append(path, "\"" + path + "\"");
        return *this;
    }

    ToolCommand Take() { return std::move(m_command); }

private:
    void Append(const std::string& argument, const std::string& shown)
    {
        m_command.arguments.push_back(argument);
        m_command.text += (m_command.text.empty() ? "" : " ") + shown;
    }

    ToolCommand m_command;
};

constexpr std::size_t kFileLimit = 1 << 20; // bytes; far above any picture of this size

std::string SizeText(ThumbnailSize size)
{
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

std::int32_t EvenSide(double length)
{
    const auto side = RoundHalfEven(length);
    return std::max(2, side + side % 2); // a very flat picture would lose its height
}

ToolCommand ClassicCommand(const std::string& program, const ThumbnailRequest& request, const std::string& output)
{
    CommandBuilder command(program);
    if (request.seekTime)
        return command.Add({ "-vframes", "1", "-ss", FloatText(*request.seekTime), "-i" })
            .AddPath(request.fileName)
            .Add({ "-sws_flags", "fast_bilinear", "-an", "-analyzeduration", "5M", "-s", SizeText(request.size), "-f",
                "image2" })
            .AddPath(output)
            .Take();
    // The form that every build understands: the oldest ones refuse the scaler's flags.
    return command.Add({ "-y", "-i" })
        .AddPath(request.fileName)
        .Add({ "-an", "-vframes", "1", "-s", SizeText(request.size), "-f", "image2" })
        .AddPath(output)
        .Take();
}

ToolCommand CurrentCommand(const std::string& program, const ThumbnailRequest& request, const std::string& output)
{
    CommandBuilder command(program);
    command.Add({ "-y", "-nostdin" });
    if (request.seekTime)
        // Decoding up to the picture is what takes the time; frames that no other needs are left out. A clip of a few
        // frames may consist of those alone, so the try without a seek time decodes all.
        command.Add({ "-skip_frame", "noref", "-skip_loop_filter", "all", "-ss", FloatText(*request.seekTime) });
    // The prefix keeps a colon in the name from being read as a protocol.
    command.Add({ "-i" }).AddPath("file:" + request.fileName);
    if (request.stream)
        command.Add({ "-map", "0:" + std::to_string(*request.stream) });
    // Without "-update 1" a percent sign in the path would be a pattern.
    return command
        .Add({ "-an", "-sn", "-dn", "-frames:v", "1", "-s", SizeText(request.size), "-f", "image2", "-update", "1" })
        .AddPath(output)
        .Take();
}

} // namespace

double FitScale(std::int32_t SourceWidth, std::int32_t SourceHeight, std::int32_t BoxWidth, std::int32_t BoxHeight)
{
    if (SourceWidth == 0 || SourceHeight == 0)
        return 1;
    const double widths = static_cast<double>(SourceWidth) / BoxWidth;
    const double heights = static_cast<double>(SourceHeight) / BoxHeight;
    return heights >= widths ? static_cast<double>(BoxHeight) / SourceHeight
                             : static_cast<double>(BoxWidth) / SourceWidth;
}

ThumbnailSize ThumbnailSizeOf(std::int32_t width, std::int32_t height, bool lying)
{
    if (lying)
        std::swap(width, height);
    const double scale = FitScale(width, height, kThumbnailWidth, kThumbnailHeight);
    return { EvenSide(width * scale), EvenSide(height * scale) };
}

float ThumbnailTime(float duration)
{
    return duration >= 2.0F ? static_cast<float>(duration * 0.1) : 1.0F;
}

ToolCommand ThumbnailCommand(
    const std::string& program, bool classicTool, const ThumbnailRequest& request, const std::string& output)
{
    return classicTool ? ClassicCommand(program, request, output) : CurrentCommand(program, request, output);
}

Picture ThumbnailMaker::RenderThumbnail(const ThumbnailRequest& request, std::string* file) const
{
    const auto output = m_context.workingFolder + "img.jpg";
    bool hasRun = Run(request, output);
    // Not after a tool that hangs: it would do so again.
    if (hasRun && request.seekTime && !IsThere(output)) {
        auto firstPicture = request;
        firstPicture.seekTime.reset();
        hasRun = Run(firstPicture, output);
    }
    auto picture = hasRun && IsThere(output) ? m_context.decodePicture(output) : Picture();
    if (file != nullptr)
        *file = picture ? m_context.files->Read(output, kFileLimit).value_or("") : std::string();
    m_context.files->Remove(output);
    return picture;
}

bool ThumbnailMaker::Run(const ThumbnailRequest& request, const std::string& output) const
{
    m_context.files->Remove(output); // an old picture must never stand for this file
    auto command = ThumbnailCommand(m_context.ffmpeg, m_classicTool, request, output);
    command.limit = m_context.pictureLimit;
    return m_context.tools->RunAndWait(command);
}

bool ThumbnailMaker::IsThere(const std::string& output) const
{
    const auto facts = m_context.files->Facts(output);
    return facts && facts->size > 0;
}

} // namespace zentaro
