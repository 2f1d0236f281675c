#include "platform/SleepInhibitor_windows.h"

#include <utility>

namespace zentaro::platform {

WindowsSleepInhibitor::WindowsSleepInhibitor(StateFunction setState)
    : m_setState(std::move(setState))
{
}

WindowsSleepInhibitor::~WindowsSleepInhibitor()
{
    Hold(false);
}

void WindowsSleepInhibitor::Hold(bool held)
{
    if (std::exchange(m_held, held) == held)
        return;
    // Without ES_CONTINUOUS it would only start the idle clock anew.
    const EXECUTION_STATE wanted = held ? ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : 0;
    m_setState(ES_CONTINUOUS | wanted);
}

std::unique_ptr<SleepInhibitor> SleepInhibitor::Open()
{
    return std::make_unique<WindowsSleepInhibitor>(&SetThreadExecutionState);
}

} // namespace zentaro::platform
