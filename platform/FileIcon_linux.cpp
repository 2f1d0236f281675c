#include "platform/FileIcon.h"

namespace zentaro::platform {

Picture IconInFile(const std::string&, std::int32_t)
{
    return {};
}

} // namespace zentaro::platform
