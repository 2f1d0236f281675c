#include "desktop/CommandLine.h"

namespace zentaro::desktop {

std::string_view TextAfterProgramName(std::string_view commandLine)
{
    const bool isQuoted = commandLine.substr(0, 1) == "\"";
    const auto end = isQuoted ? commandLine.find('"', 1) : commandLine.find_first_of(" \t");
    if (end == std::string_view::npos)
        return {};
    const auto start = commandLine.find_first_not_of(" \t", isQuoted ? end + 1 : end);
    return start == std::string_view::npos ? std::string_view() : commandLine.substr(start);
}

std::string WithWholePath(const std::string& text, const std::function<std::string(const std::string&)>& absolute)
{
    auto plain = text;
    std::erase(plain, '"');
    constexpr std::string_view add = " *Add";
    const std::string end(plain.ends_with(add) ? add : std::string_view());
    plain.resize(plain.size() - end.size());
    const auto whole = absolute(plain);
    return whole == plain ? text : whole + end;
}

std::string JoinArguments(
    std::vector<std::string> arguments, const std::function<std::string(const std::string&)>& absolute)
{
    if (arguments.size() == 1 || (arguments.size() == 2 && arguments[1] == "*Add"))
        arguments[0] = absolute(arguments[0]);
    std::string text;
    for (std::size_t i = 0; i < arguments.size(); ++i)
        text += (i == 0 ? "" : " ") + arguments[i];
    return text;
}

} // namespace zentaro::desktop
