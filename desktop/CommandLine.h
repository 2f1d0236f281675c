#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro::desktop {

/// The rest of a command line behind the program's own name, which may stand in double quotes, and the blanks after it.
std::string_view TextAfterProgramName(std::string_view commandLine);

/// The rest of a command line, as of above, whose file is passed through `absolute` without its quotes; "*Add" may
/// stand behind it. Where that changes nothing the text stays as it is.
std::string WithWholePath(const std::string& text, const std::function<std::string(const std::string&)>& absolute);

/// The arguments joined by one blank. The first one is passed through `absolute` when it stands alone or with "*Add"
/// behind it: only then is it sure to be one whole file name.
std::string JoinArguments(
    std::vector<std::string> arguments, const std::function<std::string(const std::string&)>& absolute);

} // namespace zentaro::desktop
