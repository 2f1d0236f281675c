#include "app/StartUp.h"

#include "base/Paths.h"
#include "playlist/ListFile.h"
#include "playlist/MediaTypes.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace zentaro {

namespace {

constexpr std::string_view kAddSuffix = "*Add";

std::string WithoutAdd(const std::string& text)
{
    if (!text.ends_with(kAddSuffix))
        return text;
    // The blank in front goes with it.
    return text.substr(0, text.size() - std::min(text.size(), kAddSuffix.size() + 1));
}

} // namespace

StartupRequest ReadCommandLine(
    const std::string& commandLine, const std::function<bool(const std::string&)>& fileExists)
{
    auto text = commandLine;
    if (text.find('"') != std::string::npos && !fileExists(WithoutAdd(text)))
        std::erase(text, '"');
    const auto path = WithoutAdd(text);
    const auto tidy = TidyPath(path);
    return { tidy, tidy + text.substr(path.size()), !text.ends_with(kAddSuffix) };
}

std::vector<std::string> NamedFiles(const std::vector<std::string>& arguments)
{
    std::vector<std::string> files;
    for (const auto& argument : arguments) {
        std::error_code error;
        const std::filesystem::path path(std::u8string(argument.begin(), argument.end()));
        if (!std::filesystem::is_regular_file(path, error))
            return {};
        const auto whole = std::filesystem::absolute(path, error).u8string();
        files.push_back(TidyPath({ whole.begin(), whole.end() }));
    }
    return files.size() > 1 ? files : std::vector<std::string>();
}

StartRole DecideRole(const StartupRequest& request, const PublishedHandles& handles, bool useNewPlayer,
    const std::function<bool(const std::string&)>& isAlive, char separator, bool takesAllMedia)
{
    using Kind = StartRole::Kind;
    if (handles.command == "-1" || useNewPlayer || !isAlive(handles.probe))
        return {};
    if (request.handOverText.empty())
        return { Kind::Messenger, handles.probe, "Hello" };
    const auto& file = request.StartupArgument;
    if (IsMediaFile(file, separator, takesAllMedia) || ListFormatOf(file, separator))
        return { Kind::Messenger, handles.command, request.handOverText };
    return { Kind::Messenger, {}, {} };
}

} // namespace zentaro
