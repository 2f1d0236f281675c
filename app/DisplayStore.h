#pragma once

#include "platform/Wishes.h"
#include "shell/DisplayPage.h"
#include "shell/Style.h"

namespace zentaro {

class OwnSettings;

DisplayChoices ReadDisplay(const OwnSettings& settings);
/// Writes them, too.
void KeepDisplay(OwnSettings& settings, const DisplayChoices& choices);

/// By which everything is drawn larger than the system has it.
double ScaleOf(const DisplayChoices& choices);
/// What was chosen, and the system's wishes for what was not.
style::Needs NeedsOf(const DisplayChoices& choices, const platform::Wishes& wishes);

} // namespace zentaro
