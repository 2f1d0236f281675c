#pragma once

#include "inspect/Inspection.h"
#include "inspect/ModPipes.h"
#include "inspect/ToolRunner.h"

#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// Runs the real tools, hidden and at normal priority.
class ConsoleToolRunner : public ToolRunner {
public:
    /// The context outlives the runner; its hooks cancel what runs here.
    explicit ConsoleToolRunner(ToolContext& context = DefaultToolContext)
        : m_context(context)
    {
    }

    Result<void> Capture(const ToolCommand& command, const std::string& logFile) override;
    bool RunAndWait(const ToolCommand& command) override;

private:
    ToolContext& m_context;
};

/// The streams of an AVI file; nothing for a file that is none or that is damaged where it has to be read.
std::optional<std::vector<AviStream>> ReadAviStreams(const std::string& path);

} // namespace zentaro
