#include "platform/ChildProcess.h"

namespace zentaro::platform {

namespace {

const char* StepText(StartStep step)
{
    switch (step) {
    case StartStep::Pipe:
        return "Could not create pipe LastError ";
    case StartStep::PipeState:
        return "Could not set pipe state LastError ";
    case StartStep::Process:
        break;
    }
    return "Could not create piped process. LastError ";
}

} // namespace

Error StartError(StartStep step, std::int64_t code)
{
    return { static_cast<std::int32_t>(step), StepText(step) + std::to_string(code) };
}

} // namespace zentaro::platform
