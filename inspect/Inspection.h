#pragma once

#include "base/Picture.h"
#include "inspect/CodecNames.h"
#include "inspect/ToolRunner.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

/// What a directory entry tells about a file.
struct FileFacts {
    std::int64_t size = 0;     // bytes
    std::string lastModified;  // date and time as a text of the user's locale
    std::int64_t modified = 0; // the same in seconds since 1970; 0 while unknown
};

/// What keeps a file from being read, as far as its directory entry and its first byte tell.
enum class FileTrouble { None, Missing, Folder, Empty, Unreadable };

/// The files that an inspection touches.
class InspectionFiles {
public:
    virtual ~InspectionFiles() = default;
    /// The first `limit` bytes; nothing when the file cannot be read.
    virtual std::optional<std::string> Read(const std::string& path, std::size_t limit) = 0;
    virtual std::optional<FileFacts> Facts(const std::string& path) = 0;
    virtual FileTrouble Trouble(const std::string& path) = 0;
    /// A file that is not there is no failure.
    virtual void Remove(const std::string& path) = 0;
};

/// A stream of an AVI file, in the order of its headers.
struct AviStream {
    bool isAudio = false;
    std::int32_t delay = 0; // ms; -1 not found, -2 given up
};

/// Why a file is refused that is not read in time.
inline constexpr const char* kHangsText =
    "It took too long to read the file, so Zentaro gave up. The drive or the network"
    " place that holds it may not answer.";

/// All that an inspection needs from the world. Two inspections may run side by side when each has a working folder
/// and a runner of its own. What is pointed at outlives the inspection.
struct InspectionContext {
    ToolRunner* tools = nullptr;
    InspectionFiles* files = nullptr;
    /// Nothing when the file is no AVI file.
    std::function<std::optional<std::vector<AviStream>>(const std::string& path)> readAviStreams;
    /// No picture when the file cannot be decoded.
    std::function<Picture(const std::string& path)> decodePicture;
    /// The same for the bytes of such a file.
    std::function<Picture(const std::string& bytes)> decodeBytes = [](const std::string&) { return Picture(); };
    RunLimit reportLimit{ .silence = std::chrono::seconds(60), .total = std::chrono::minutes(5) };
    RunLimit pictureLimit{ .total = std::chrono::seconds(30) };
    std::string ffmpeg;        // the program: its full path
    std::string mpgtx;         // the program: its full path; empty where it is not installed
    std::string workingFolder; // private to this inspection, with a trailing separator
    char separator = '/';      // between the folders of a path
    /// How the user gets a tool of that name: a sentence.
    std::function<std::string(const std::string& tool)> installAdvice = [](const std::string&) { return ""; };
    const CodecNames* audioCodecNames = nullptr;
    const CodecNames* videoCodecNames = nullptr;
    Picture defaultVideoPicture;
    Picture defaultAudioPicture;
    /// Called when the file is known to be good and its report is written: what remains is to make its picture.
    std::function<void()> reportRead = [] {};
};

enum class MessageIcon { Information, Exclamation };

/// A box that the user is to see.
struct InspectionMessage {
    std::string text;
    MessageIcon icon = MessageIcon::Exclamation;
    std::string title = "Zentaro";
    bool operator==(const InspectionMessage&) const = default;
};

/// What an inspection leaves behind besides the streams.
struct InspectionOutcome {
    bool succeeded = false;
    std::string error;                       // why not; may be empty
    std::string report;                      // for the user to read; of a success only
    Picture lastPicture;                     // the picture given to a stream last, or an audio file's cover
    std::string lastPictureFile;             // the file that it was decoded from; empty for a default picture
    std::vector<InspectionMessage> messages; // in order
};

/// What the whole program shares about the inspection that was taken over last. Belongs to the user-interface thread;
/// an inspection that runs ahead elsewhere leaves it alone until its turn has come.
struct InspectionState {
    std::string LastSourceError;
    std::string StreamInfoText; // of the last success
    Picture LastStreamPicture;

    /// The messages are the caller's to show.
    void TakeOver(const InspectionOutcome& outcome)
    {
        LastSourceError = outcome.error;
        LastStreamPicture = outcome.lastPicture;
        if (outcome.succeeded)
            StreamInfoText = outcome.report;
    }
};

} // namespace zentaro
