#include "platform/Drives_linux.h"

#include "platform/Bus_linux.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdint>
#include <dirent.h>
#include <dvdread/dvd_reader.h>
#include <dvdread/dvd_udf.h>
#include <string_view>
#include <strings.h>
#include <sys/stat.h>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <utility>
#include <variant>

namespace zentaro::platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 30s;
constexpr const char* kVideoFolder = "VIDEO_TS";

using Texts = std::vector<std::string>;
using Value = std::variant<std::monostate, std::string, Texts, std::uint64_t>;
/// Properties by "Interface.Name", the interface without "org.freedesktop.UDisks2.".
using Properties = std::map<std::string, Value>;

struct FreeMessage {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, FreeMessage>;

std::string ReadText(sd_bus_message* message)
{
    const char* text = nullptr;
    return sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &text) > 0 ? text : "";
}

std::string ReadPath(sd_bus_message* message)
{
    const char* path = nullptr;
    return sd_bus_message_read_basic(message, SD_BUS_TYPE_OBJECT_PATH, &path) > 0 ? path : "";
}

/// File names are bytes with a NUL at the end.
std::string ReadBytes(sd_bus_message* message)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    if (sd_bus_message_read_array(message, SD_BUS_TYPE_BYTE, &bytes, &size) < 0)
        return {};
    const std::string_view text(static_cast<const char*>(bytes), size);
    return std::string(text.substr(0, text.find('\0')));
}

Texts ReadList(sd_bus_message* message, const char* element, std::string (*readOne)(sd_bus_message*))
{
    Texts texts;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, element) <= 0)
        return texts;
    while (sd_bus_message_at_end(message, 0) == 0)
        texts.push_back(readOne(message));
    sd_bus_message_exit_container(message);
    return texts;
}

/// The variant that comes next; nothing of it when its type is none that matters here.
Value ReadValue(sd_bus_message* message)
{
    const char* type = nullptr;
    if (sd_bus_message_peek_type(message, nullptr, &type) <= 0)
        return {};
    const std::string_view name(type);
    Value value;
    if (name != "s" && name != "ay" && name != "as" && name != "aay" && name != "t" && name != "o") {
        sd_bus_message_skip(message, "v");
        return value;
    }
    sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, type);
    if (name == "s") {
        value = ReadText(message);
    } else if (name == "o") {
        value = ReadPath(message);
    } else if (name == "ay") {
        value = ReadBytes(message);
    } else if (name == "t") {
        std::uint64_t number = 0;
        sd_bus_message_read_basic(message, SD_BUS_TYPE_UINT64, &number);
        value = number;
    } else {
        value = name == "as" ? ReadList(message, "s", &ReadText) : ReadList(message, "ay", &ReadBytes);
    }
    sd_bus_message_exit_container(message);
    return value;
}

/// Enters each entry of the array of `entry` that comes next, and leaves it after `read`.
template <typename Read> void ForEachEntry(sd_bus_message* message, const char* entry, const Read& read)
{
    const std::string dictionary = std::string("{") + entry + "}";
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, dictionary.c_str()) <= 0)
        return;
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, entry) > 0) {
        read();
        sd_bus_message_exit_container(message);
    }
    sd_bus_message_exit_container(message);
}

Properties ReadObject(sd_bus_message* message)
{
    Properties object;
    ForEachEntry(message, "sa{sv}", [&] {
        constexpr std::string_view common = "org.freedesktop.UDisks2.";
        auto interface = ReadText(message);
        if (interface.starts_with(common))
            interface.erase(0, common.size());
        object[interface];
        ForEachEntry(message, "sv", [&] {
            const auto name = ReadText(message);
            object[interface + "." + name] = ReadValue(message);
        });
    });
    return object;
}

std::map<std::string, Properties> ReadObjects(sd_bus_message* message)
{
    std::map<std::string, Properties> objects;
    ForEachEntry(message, "oa{sa{sv}}", [&] {
        const auto path = ReadPath(message);
        objects[path] = ReadObject(message);
    });
    return objects;
}

/// The property, or an empty one when it is missing or of another type.
template <typename T> T Get(const Properties& object, const char* name)
{
    const auto at = object.find(name);
    const auto* const value = at != object.end() ? std::get_if<T>(&at->second) : nullptr;
    return value != nullptr ? *value : T{};
}

bool IsOptical(const Properties& drive)
{
    const auto media = Get<Texts>(drive, "Drive.MediaCompatibility");
    return std::any_of(media.begin(), media.end(), [](const auto& kind) { return kind.starts_with("optical"); });
}

/// In any letter case: a mounted disc shows its names as the kernel likes them.
bool IsVideoFolderIn(const std::string& folder)
{
    auto* const directory = opendir(folder.c_str());
    if (directory == nullptr)
        return false;
    bool isFound = false;
    while (const auto* const entry = readdir(directory)) {
        struct stat status { };
        isFound = isFound
            || (strcasecmp(entry->d_name, kVideoFolder) == 0
                && stat((folder + "/" + entry->d_name).c_str(), &status) == 0 && S_ISDIR(status.st_mode));
    }
    closedir(directory);
    return isFound;
}

/// The device is read as the engine reads it, so that what is found can be played.
bool IsVideoFolderOn(const std::string& device)
{
    if (access(device.c_str(), R_OK) != 0)
        return false; // the library would say so on the terminal
    const dvd_logger_cb silence = { [](void*, dvd_logger_level_t, const char*, va_list) {} };
    auto* const disc = DVDOpen2(nullptr, &silence, device.c_str());
    if (disc == nullptr)
        return false;
    std::uint32_t size = 0;
    const bool isFound = UDFFindFile(disc, (std::string("/") + kVideoFolder).c_str(), &size) != 0;
    DVDClose(disc);
    return isFound;
}

/// The object that a property of another one names; an empty one when there is none.
const Properties& Named(const std::map<std::string, Properties>& objects, const std::string& path)
{
    static const Properties none;
    const auto at = objects.find(path);
    return at != objects.end() ? at->second : none;
}

OpticalDrive ReadDrive(const Properties& block, const Properties& drive)
{
    OpticalDrive read{ Get<std::string>(block, "Block.Device"), {}, false, {} };
    if (Get<std::string>(block, "Block.IdUsage") != "filesystem")
        return read;
    read.label = Get<std::string>(block, "Block.IdLabel");
    read.disc = Get<std::string>(block, "Block.IdUUID") + " "
        + std::to_string(Get<std::uint64_t>(drive, "Drive.TimeMediaDetected"));
    return read;
}

/// Empty while the disc is not mounted.
std::string MountPoint(const Properties& block)
{
    const auto all = Get<Texts>(block, "Filesystem.MountPoints");
    return all.empty() ? std::string() : all.front();
}

} // namespace

DiskServiceWatch::DiskServiceWatch(
    std::string busAddress, std::function<void()> onChange, std::chrono::milliseconds retry)
    : m_onChange(std::move(onChange))
    , m_thread(std::move(busAddress), static_cast<BusClient&>(*this), retry)
{
}

DiskServiceWatch::~DiskServiceWatch() = default;

void DiskServiceWatch::Connected(sd_bus* bus)
{
    // The service also tells of jobs and of a hard disk's health; nobody here is to be woken for that.
    static constexpr std::array kRules = {
        "type='signal',sender='org.freedesktop.UDisks2',interface='org.freedesktop.DBus.ObjectManager',"
        "arg0path='/org/freedesktop/UDisks2/block_devices/'",
        "type='signal',sender='org.freedesktop.UDisks2',interface='org.freedesktop.DBus.ObjectManager',"
        "arg0path='/org/freedesktop/UDisks2/drives/'",
        "type='signal',sender='org.freedesktop.UDisks2',interface='org.freedesktop.DBus.Properties',"
        "arg0='org.freedesktop.UDisks2.Block'",
        "type='signal',sender='org.freedesktop.UDisks2',interface='org.freedesktop.DBus.Properties',"
        "arg0='org.freedesktop.UDisks2.Drive'",
        "type='signal',sender='org.freedesktop.UDisks2',interface='org.freedesktop.DBus.Properties',"
        "arg0='org.freedesktop.UDisks2.Filesystem'",
        "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',member='NameOwnerChanged',"
        "arg0='org.freedesktop.UDisks2'",
    };
    // Once all rules hold, whoever asks then misses nothing any more.
    for (const auto* const rule : kRules)
        sd_bus_add_match_async(bus, nullptr, rule, &OnSignal, rule == kRules.back() ? &OnSignal : &OnRuleHolds, this);
}

void DiskServiceWatch::Lost()
{
    m_onChange();
}

int DiskServiceWatch::OnRuleHolds(sd_bus_message*, void*, sd_bus_error*)
{
    return 0;
}

int DiskServiceWatch::OnSignal(sd_bus_message*, void* watch, sd_bus_error*)
{
    static_cast<DiskServiceWatch*>(watch)->m_onChange();
    return 0;
}

DiskServiceDrives::DiskServiceDrives(std::string busAddress, std::chrono::milliseconds patience)
    : m_busAddress(std::move(busAddress))
    , m_patience(patience)
{
}

std::vector<OpticalDrive> DiskServiceDrives::Find()
{
    const auto bus = ConnectToBus(m_busAddress, m_patience);
    sd_bus_message* answer = nullptr;
    if (!bus
        || sd_bus_call_method(bus.get(), "org.freedesktop.UDisks2", "/org/freedesktop/UDisks2",
               "org.freedesktop.DBus.ObjectManager", "GetManagedObjects", nullptr, &answer, "")
            < 0)
        return {};
    const Message message(answer);
    const auto objects = ReadObjects(answer);
    std::vector<OpticalDrive> drives;
    Answers answers;
    for (const auto& [path, block] : objects) {
        const auto& drive = Named(objects, Get<std::string>(block, "Block.Drive"));
        if (!IsOptical(drive) || block.contains("Partition"))
            continue;
        drives.push_back(ReadDrive(block, drive));
        if (drives.back().label)
            drives.back().hasVideoFolder = HasVideoFolder(drives.back(), MountPoint(block), answers);
    }
    m_answers = std::move(answers);
    // "/dev/sr10" comes after "/dev/sr9".
    std::sort(drives.begin(), drives.end(), [](const auto& left, const auto& right) {
        return std::pair(left.name.size(), left.name) < std::pair(right.name.size(), right.name);
    });
    return drives;
}

bool DiskServiceDrives::Watch(std::function<void()> onChange)
{
    m_watch = std::make_unique<DiskServiceWatch>(m_busAddress, std::move(onChange));
    return true;
}

bool DiskServiceDrives::HasVideoFolder(const OpticalDrive& drive, const std::string& mountPoint, Answers& answers) const
{
    const auto question = drive.name + " " + drive.disc + " " + mountPoint;
    const auto known = m_answers.find(question);
    if (known != m_answers.end())
        return answers[question] = known->second;
    return answers[question] = mountPoint.empty() ? IsVideoFolderOn(drive.name) : IsVideoFolderIn(mountPoint);
}

std::unique_ptr<Drives> Drives::Open()
{
    return std::make_unique<DiskServiceDrives>(SystemBusAddress(), kPatience);
}

} // namespace zentaro::platform
