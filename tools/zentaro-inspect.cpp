// Prints what the player knows about media files.

#include "base/Paths.h"
#include "inspect/ConsoleToolRunner.h"
#include "inspect/DiskFiles.h"
#include "inspect/QtServices.h"
#include "inspect/clsSource.h"
#include "platform/ChildProcess.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "tools/DictionaryJson.h"

#include <QCoreApplication>

#include <atomic>
#include <csignal>
#include <iostream>
#include <string>
#include <vector>

using namespace zentaro;

namespace {

constexpr std::size_t kMapLimit = 1 << 20; // bytes

std::atomic<bool> g_interrupted = false;

struct Options {
    bool json = false;
    bool help = false;
    std::vector<std::string> files;
};

Options ReadOptions(int argc, char** argv)
{
    Options options;
    bool onlyFiles = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (onlyFiles)
            options.files.push_back(argument);
        else if (argument == "--")
            onlyFiles = true;
        else if (argument == "--json")
            options.json = true;
        else if (argument == "--help")
            options.help = true;
        else
            options.files.push_back(argument);
    }
    return options;
}

CodecNames LoadCodecNames(const std::string& path)
{
    return CodecNames(platform::ReadTextFile(path, kMapLimit).value_or(""));
}

/// A folder that is gone with the program.
class WorkingFolder {
public:
    WorkingFolder() = default;
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder()
    {
        if (!m_path.empty())
            platform::RemoveFolder(m_path);
    }
    const std::string& Path() const { return m_path; }

private:
    std::string m_path = platform::MakeWorkingFolder();
};

/// Tools stop when the user interrupts the program, wherever it is waiting then.
void CancelWhenInterrupted(ToolContext& tools)
{
    if (g_interrupted) {
        tools.CancelExecute = 1;
        tools.CancelShellWait = 1;
    }
}

/// What the report leaves out, and the size of what the list would show.
Dictionary JsonForm(const clsSource& source)
{
    auto data = source.Serialize();
    data.Set("Report", source.Outcome().report);
    const auto& picture = source.Outcome().lastPicture;
    Dictionary size;
    size.Set("Width", static_cast<std::int32_t>(picture.Width()));
    size.Set("Height", static_cast<std::int32_t>(picture.Height()));
    data.Set("Thumbnail", size);
    return data;
}

/// True when the file could be read.
bool Print(clsSource& source, const std::string& file, bool json)
{
    const bool read = source.GetVideoInformation(file);
    for (const auto& message : source.Outcome().messages)
        std::cerr << message.text << "\n";
    if (!read)
        std::cerr << "Cannot open file <" << file << ">\n" << source.Outcome().error << "\n";
    else if (json)
        std::cout << JsonText(JsonForm(source)) << std::endl;
    else
        std::cout << source.Outcome().report << std::endl;
    return read;
}

int Run(const Options& options)
{
    const auto separator = platform::PathSeparator();
    const auto folder = WithTrailingSeparator(platform::ExecutableFolder(), separator);
    const WorkingFolder working;
    if (working.Path().empty()) {
        std::cerr << "No working folder can be made.\n";
        return 1;
    }
    ToolContext toolContext;
    toolContext.programFolder = folder;
    toolContext.pumpMessages = [&] { CancelWhenInterrupted(toolContext); };
    ConsoleToolRunner tools(toolContext);
    DiskFiles files(LocalDateText);
    const auto audioNames = LoadCodecNames(folder + "audiomaps.txt");
    const auto videoNames = LoadCodecNames(folder + "videomaps.txt");

    InspectionContext context;
    context.tools = &tools;
    context.files = &files;
    context.readAviStreams = ReadAviStreams;
    context.decodePicture = DecodePictureFile;
    context.ffmpeg = FindTool("ffmpeg", folder);
    context.mpgtx = platform::FindTool("mpgtx", folder).value_or("");
    context.workingFolder = WithTrailingSeparator(working.Path(), separator);
    context.installAdvice = platform::InstallAdvice;
    context.separator = separator;
    context.audioCodecNames = &audioNames;
    context.videoCodecNames = &videoNames;
    context.defaultVideoPicture = DecodePictureFile(folder + "images/DefaultVideo.png");
    context.defaultAudioPicture = DecodePictureFile(folder + "images/DefaultAudio.png");

    clsSource source(context);
    bool allRead = true;
    for (const auto& file : options.files) {
        if (g_interrupted)
            return 1;
        // The tools are given whole paths: a name alone could be taken for an option or a protocol.
        allRead = Print(source, WholePath(file), options.json) && allRead;
    }
    return allRead ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    std::signal(SIGINT, [](int) { g_interrupted = true; });
    std::signal(SIGTERM, [](int) { g_interrupted = true; });
    const auto options = ReadOptions(argc, argv);
    if (options.help || options.files.empty()) {
        (options.help ? std::cout : std::cerr)
            << "Usage: zentaro-inspect [--json] [--] FILE...\n"
               "Prints the streams of media files; --json: one object for each file.\n";
        return options.help ? 0 : 1;
    }
    return Run(options);
}
