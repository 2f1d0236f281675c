#include "app/ConfigFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Whatever a file holds: it is read or refused, and what was read can be written and read again. A string that list
/// input cuts shorter each time settles after one more round.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace zentaro;
    const auto first = ParseConfigurations({ reinterpret_cast<const char*>(bytes), size });
    if (!first)
        return 0;
    const auto second = ParseConfigurations(FormatConfigurations(*first));
    if (second && second->WindowHeight != first->WindowHeight
        && first->SnapshotPath.find_first_of("\"\r\n") == std::string::npos
        && first->SnapshotPrefix.find_first_of("\"\r\n") == std::string::npos
        && first->Language.find_first_of("\"\r\n") == std::string::npos
        && first->DefaultFolder.find_first_of("\"\r\n") == std::string::npos)
        std::abort(); // a number moved to another line
    return 0;
}
