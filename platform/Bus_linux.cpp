#include "platform/Bus_linux.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <poll.h>
#include <sys/eventfd.h>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <utility>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 25s;
constexpr auto kLongWait = 1h;

std::chrono::milliseconds UntilTimeout(sd_bus* bus, std::chrono::milliseconds limit)
{
    std::uint64_t at = 0;
    if (sd_bus_get_timeout(bus, &at) < 0 || at == UINT64_MAX)
        return limit;
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const auto passed = std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
    const auto rest =
        std::chrono::ceil<std::chrono::milliseconds>(std::chrono::microseconds(static_cast<std::int64_t>(at)) - passed);
    return std::clamp(rest, std::chrono::milliseconds(0), limit);
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
    while (!stop.stop_requested() && !m_address.empty()) {
        if (const auto bus = ConnectToBus(m_address, kPatience)) {
            Serve(bus.get(), stop);
            m_client.Lost();
        }
        const auto again = std::chrono::steady_clock::now() + m_retry;
        for (auto now = again - m_retry; now < again && !stop.stop_requested(); now = std::chrono::steady_clock::now())
            Wait(nullptr, std::chrono::ceil<std::chrono::milliseconds>(again - now));
    }
}

void BusThread::Serve(sd_bus* bus, const std::stop_token& stop)
{
    bool isConnected = false;
    for (;;) {
        // Read before the client speaks: what it was woken for before a stop is still said.
        const bool isLast = stop.stop_requested();
        const int handled = sd_bus_process(bus, nullptr);
        if (handled < 0)
            return;
        if (!isConnected && sd_bus_is_ready(bus) > 0) {
            isConnected = true;
            m_client.Connected(bus);
        }
        if (isConnected)
            m_client.Speak(bus);
        if (isLast)
            return;
        if (handled == 0)
            Wait(bus, kLongWait);
    }
}

void BusThread::Wait(sd_bus* bus, std::chrono::milliseconds limit)
{
    std::array<pollfd, 2> waited{ pollfd{ m_wakeUp, POLLIN, 0 }, pollfd{ -1, 0, 0 } };
    if (bus != nullptr) {
        const int events = sd_bus_get_events(bus);
        if (events < 0)
            return;
        waited[1] = { sd_bus_get_fd(bus), static_cast<short>(events), 0 };
        limit = UntilTimeout(bus, limit);
    }
    poll(waited.data(), waited.size(), static_cast<int>(limit.count()));
    std::uint64_t ignored = 0;
    [[maybe_unused]] const auto got = read(m_wakeUp, &ignored, sizeof ignored);
}

} // namespace zentaro::platform
