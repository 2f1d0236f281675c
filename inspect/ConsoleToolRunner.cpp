#include "inspect/ConsoleToolRunner.h"

#include "inspect/clsAVIDelay.h"

namespace zentaro {

namespace {

constexpr std::int32_t kNoConversion = 0;
constexpr std::int32_t kNormalPriority = 2;
constexpr std::int32_t kHidden = 0;

} // namespace

Result<void> ConsoleToolRunner::Capture(const ToolCommand& command, const std::string& logFile)
{
    return ExecuteAndCapture(command, logFile, kNoConversion, false, kNormalPriority, "", m_context);
}

bool ConsoleToolRunner::RunAndWait(const ToolCommand& command)
{
    auto completed = command;
    return ShellExecuteAndWait(completed, kHidden, true, true, m_context);
}

std::optional<std::vector<AviStream>> ReadAviStreams(const std::string& path)
{
    clsAVIDelay avi;
    if (!avi.OpenFile(path))
        return std::nullopt;
    std::vector<AviStream> streams;
    for (std::int32_t i = 0; i < avi.StreamCount(); ++i)
        streams.push_back({ avi.StreamIsAudio(i), avi.StreamDelay(i) });
    return streams;
}

} // namespace zentaro
