#pragma once

#include <string_view>

namespace zentaro {

/// The number of channels of a layout's name ("5.1(side)", "4 channels (FL+FR+LFE+BC)"); 0 when it is not known.
int ChannelsOfLayout(std::string_view name);

} // namespace zentaro
