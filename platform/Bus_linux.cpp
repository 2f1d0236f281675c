#include "platform/Bus_linux.h"

#include "platform/Files_linux.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <poll.h>
#include <string_view>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 25s;    // for an answer
constexpr int kQuickTries = 6;     // a bus that comes up takes a moment to listen
constexpr int kMostDoublings = 15; // of the wait for a bus that no folder tells of

/// Nothing while the connection waits for no answer.
std::optional<std::chrono::milliseconds> UntilTimeout(sd_bus* bus)
{
    std::uint64_t at = 0;
    if (sd_bus_get_timeout(bus, &at) < 0 || at == UINT64_MAX)
        return std::nullopt;
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const auto passed = std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
    const auto rest =
        std::chrono::ceil<std::chrono::milliseconds>(std::chrono::microseconds(static_cast<std::int64_t>(at)) - passed);
    return std::max(rest, std::chrono::milliseconds(0));
}

/// The file of a bus's address; empty when it has none, or more than one place.
std::filesystem::path SocketOf(const std::string& address)
{
    constexpr std::string_view prefix = "unix:path=";
    if (!address.starts_with(prefix) || address.find_first_of(";%") != std::string::npos)
        return {};
    return address.substr(prefix.size(), address.find(',') - prefix.size());
}

/// Tells of every name that comes into the folder, or into the next one above it that is there.
FileDescriptor WatchFolder(std::filesystem::path folder)
{
    FileDescriptor watch(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    constexpr std::uint32_t kEvents = IN_CREATE | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;
    while (inotify_add_watch(watch.Number(), folder.c_str(), kEvents) < 0) {
        if (!folder.has_relative_path())
            return FileDescriptor();
        folder = folder.parent_path();
    }
    return watch;
}

} // namespace

std::string SystemBusAddress()
{
    const char* const address = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address != nullptr && *address != '\0' ? address : "unix:path=/run/dbus/system_bus_socket";
}

void CloseBus::operator()(sd_bus* bus) const
{
    sd_bus_close_unref(bus);
}

Bus ConnectToBus(const std::string& address, std::chrono::microseconds patience)
{
    sd_bus* created = nullptr;
    if (sd_bus_new(&created) < 0)
        return nullptr;
    Bus bus(created);
    const bool isStarted = sd_bus_set_address(created, address.c_str()) >= 0 && sd_bus_set_bus_client(created, 1) >= 0
        && sd_bus_set_method_call_timeout(created, static_cast<std::uint64_t>(patience.count())) >= 0
        && sd_bus_start(created) >= 0;
    return isStarted ? std::move(bus) : nullptr;
}

std::string SessionBusAddress()
{
    if (const char* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address != nullptr && *address != '\0')
        return address;
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    return folder != nullptr && folder[0] == '/' ? std::string("unix:path=") + folder + "/bus" : std::string();
}

BusThread::BusThread(std::string address, BusClient& client, std::chrono::milliseconds retry)
    : m_address(std::move(address))
    , m_client(client)
    , m_retry(retry)
    , m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_thread([this](const std::stop_token& stop) { Run(stop); })
{
}

BusThread::~BusThread()
{
    m_thread.request_stop();
    Wake();
    m_thread.join();
    close(m_wakeUp);
}

void BusThread::Wake()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(m_wakeUp, &one, sizeof one);
}

void BusThread::Run(const std::stop_token& stop)
{
    const auto socket = SocketOf(m_address);
    for (int failures = 0; !stop.stop_requested() && !m_address.empty();) {
        // Watched before the try, so that no bus comes up unseen between the two.
        const auto folder = WatchFolder(socket.parent_path());
        failures = Serve(stop) ? 1 : failures + 1;
        std::error_code ignored;
        const bool isDue = failures <= kQuickTries && std::filesystem::exists(socket, ignored);
        if (isDue || !folder) {
            const auto again = std::chrono::steady_clock::now() + m_retry * (1 << std::min(failures, kMostDoublings));
            for (auto rest = again - std::chrono::steady_clock::now(); rest > 0s && !stop.stop_requested();
                 rest = again - std::chrono::steady_clock::now())
                Wait(-1, 0, std::chrono::ceil<std::chrono::milliseconds>(rest));
        } else {
            while (!stop.stop_requested() && !Wait(folder.Number(), POLLIN, std::nullopt)) { }
            failures = 0;
        }
    }
}

bool BusThread::Serve(const std::stop_token& stop)
{
    const auto bus = ConnectToBus(m_address, kPatience);
    bool isConnected = false;
    for (bool isLast = !bus; !isLast;) {
        // Read before the client speaks: what it was woken for before a stop is still said.
        isLast = stop.stop_requested();
        const int handled = sd_bus_process(bus.get(), nullptr);
        if (handled < 0)
            break;
        if (!isConnected && sd_bus_is_ready(bus.get()) > 0) {
            isConnected = true;
            m_client.Connected(bus.get());
        }
        if (isConnected)
            m_client.Speak(bus.get());
        if (handled == 0 && !isLast)
            Wait(sd_bus_get_fd(bus.get()), sd_bus_get_events(bus.get()), UntilTimeout(bus.get()));
    }
    if (bus)
        m_client.Lost();
    return isConnected;
}

bool BusThread::Wait(int descriptor, int events, std::optional<std::chrono::milliseconds> limit) const
{
    if (events < 0)
        return false;
    std::array<pollfd, 2> waited{ pollfd{ m_wakeUp, POLLIN, 0 }, pollfd{ descriptor, static_cast<short>(events), 0 } };
    poll(waited.data(), waited.size(), limit ? static_cast<int>(limit->count()) : -1);
    std::uint64_t ignored = 0;
    [[maybe_unused]] const auto got = read(m_wakeUp, &ignored, sizeof ignored);
    return waited[1].revents != 0;
}

} // namespace zentaro::platform
