#pragma once

#include "shell/DisplayPage.h"

namespace zentaro {

class OwnSettings;

DisplayChoices ReadDisplay(const OwnSettings& settings);
/// Writes them, too.
void KeepDisplay(OwnSettings& settings, const DisplayChoices& choices);

} // namespace zentaro
