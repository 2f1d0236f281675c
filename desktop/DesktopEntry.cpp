#include "desktop/DesktopEntry.h"

#include <cctype>
#include <map>

namespace zentaro::desktop {
namespace {

std::string Joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const auto& part : parts)
        text += part + ";";
    return text;
}

/// As a value of a desktop entry.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '\\')
            escaped += "\\\\";
        else if (c == '\n')
            escaped += "\\n";
        else if (c == '\r')
            escaped += "\\r";
        else if (c == '\t')
            escaped += "\\t";
        else
            escaped += c;
    }
    return escaped;
}

/// Some readers look for the command's first word as it stands, quotes included: then another program comes first.
std::string Command(const std::string& program, const std::string& arguments)
{
    const auto* starter = program.starts_with('"') ? "env " : "";
    return starter + Escaped(program + " " + arguments);
}

std::string TryExec(const std::string& program)
{
    return "\nTryExec=" + Escaped(PathInExec(program));
}

constexpr const char* kAddName = "Add To Playlist";
constexpr const char* kAddComment = "Add to the playlist of Zentaro";
constexpr const char* kAddArguments = "%F"; // all at once, so that they keep their order

} // namespace

std::vector<std::string> MimeTypesOf(std::string_view extension)
{
    static const std::map<std::string, std::vector<std::string>, std::less<>> types = {
        { ".wav", { "audio/x-wav", "audio/vnd.wave", "audio/wav" } },
        { ".flv", { "video/x-flv" } },
        { ".mka", { "audio/x-matroska", "audio/matroska" } },
        { ".mkv", { "video/x-matroska", "video/matroska" } },
        { ".mp3", { "audio/mpeg", "audio/mp3" } },
        { ".mpg", { "video/mpeg" } },
        { ".mpe", { "video/mpeg" } },
        { ".mpeg", { "video/mpeg" } },
        { ".aac", { "audio/aac" } },
        { ".mp4", { "video/mp4" } },
        { ".m4v", { "video/mp4", "video/x-m4v" } },
        { ".m4a", { "audio/mp4", "audio/x-m4a" } },
        { ".ogm", { "video/x-ogm+ogg", "video/x-ogm" } },
        { ".ogg",
            { "audio/ogg", "audio/x-vorbis+ogg", "audio/x-flac+ogg", "audio/x-speex+ogg", "video/ogg",
                "video/x-theora+ogg" } },
        { ".mov", { "video/quicktime" } },
        { ".hdmov", { "video/quicktime" } },
        { ".qt", { "video/quicktime" } },
        { ".3gp", { "video/3gpp", "audio/3gpp" } },
        { ".3gpp", { "video/3gpp", "audio/3gpp" } },
        { ".3g2", { "video/3gpp2", "audio/3gpp2" } },
        { ".avi", { "video/x-msvideo", "video/vnd.avi", "video/avi" } },
        { ".wma", { "audio/x-ms-wma" } },
        { ".wmv", { "video/x-ms-wmv" } },
        { ".asf", { "application/vnd.ms-asf", "video/x-ms-asf" } },
    };
    const auto found = types.find(extension);
    return found == types.end() ? std::vector<std::string>() : found->second;
}

std::string ExecQuoted(const std::string& path)
{
    bool isPlain = true;
    std::string quoted;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        isPlain = isPlain
            && (byte >= 0x80 || std::isalnum(byte) || std::string_view("/._-+:@,").find(c) != std::string_view::npos);
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos)
            quoted += '\\';
        quoted += c == '%' ? "%%" : std::string(1, c);
    }
    return isPlain ? path : "\"" + quoted + "\"";
}

std::string PathInExec(std::string_view quoted)
{
    const bool isQuoted = quoted.size() >= 2 && quoted.front() == '"';
    std::string path;
    for (std::size_t at = isQuoted ? 1 : 0; at + (isQuoted ? 1 : 0) < quoted.size(); ++at) {
        const bool isDoubled = quoted[at] == '\\' || quoted.substr(at, 2) == "%%";
        path += quoted[isQuoted && isDoubled ? ++at : at];
    }
    return path;
}

std::string OpenEntryText(const DesktopEntryFacts& facts)
{
    return "[Desktop Entry]\nType=Application\nVersion=1.0\nName=Zentaro\nGenericName=Media Player\n"
           "Comment=Play films and music\nKeywords=video;film;movie;audio;music;sound;playlist;\nExec="
        + Command(facts.program, "%f") + TryExec(facts.program) + "\nIcon=" + Escaped(facts.icon)
        + "\nTerminal=false\nStartupNotify=false\nStartupWMClass=Quorvane Zentaro\n"
          "Categories=AudioVideo;Audio;Video;Player;Qt;\nMimeType="
        + Joined(facts.mimeTypes) + "\n";
}

std::string AddEntryText(const DesktopEntryFacts& facts)
{
    return std::string("[Desktop Entry]\nType=Application\nVersion=1.0\nName=") + kAddName + "\nComment=" + kAddComment
        + "\nExec=" + Command(facts.adder, kAddArguments) + TryExec(facts.program) + "\nIcon=" + Escaped(facts.icon)
        + "\nTerminal=false\nStartupNotify=false\nNoDisplay=true\nMimeType=" + Joined(facts.mimeTypes) + "\n";
}

std::string AddServiceMenuText(const DesktopEntryFacts& facts)
{
    return "[Desktop Entry]\nType=Service\nServiceTypes=KonqPopupMenu/Plugin\nMimeType=" + Joined(facts.mimeTypes)
        + TryExec(facts.program)
        + "\nActions=AddToPlaylist;\nX-KDE-Priority=TopLevel\n\n[Desktop Action AddToPlaylist]\nName=" + kAddName
        + "\nIcon=" + Escaped(facts.icon) + "\nExec=" + Command(facts.adder, kAddArguments) + "\n";
}

std::string AddNemoActionText(const DesktopEntryFacts& facts)
{
    std::string names;
    for (const auto& extension : facts.extensions)
        names += extension.substr(1) + ";";
    return std::string("[Nemo Action]\nActive=true\nName=") + kAddName + "\nComment=" + kAddComment
        + "\nExec=" + Command(facts.adder, kAddArguments) + "\nIcon-Name=" + Escaped(facts.icon)
        + "\nSelection=notnone\nQuote=double\nExtensions=" + names
        + "\nDependencies=" + Escaped(PathInExec(facts.program)) + ";\n";
}

std::string MimePackageText(const std::vector<MimeAddition>& additions)
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n";
    for (const auto& addition : additions) {
        text += "  <mime-type type=\"" + addition.type + "\">\n";
        if (!addition.icon.empty())
            text += "    <icon name=\"" + addition.icon + "\"/>\n";
        for (const auto& extension : addition.extensions)
            text += "    <glob pattern=\"*" + extension + "\"/>\n";
        text += "  </mime-type>\n";
    }
    return text + "</mime-info>\n";
}

} // namespace zentaro::desktop
