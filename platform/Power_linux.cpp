#include "platform/Power_linux.h"

#include <algorithm>
#include <string_view>
#include <systemd/sd-bus.h>
#include <utility>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2min;
constexpr std::chrono::microseconds kLookForStop = 20ms;
constexpr int kMayAskForPassword = 1;

int OnAnswer(sd_bus_message*, void* isAnswered, sd_bus_error*)
{
    *static_cast<bool*>(isAnswered) = true;
    return 0;
}

constexpr const char* kProgram = "Zentaro";
constexpr const char* kReason = "A video is playing";
constexpr const char* kPortalRequest = "org.freedesktop.portal.Request";
constexpr std::uint32_t kSuspendAndIdle = 4 | 8; // as the portal counts

} // namespace

LoginManagerPower::LoginManagerPower(std::string busAddress, std::chrono::milliseconds patience)
    : m_busAddress(std::move(busAddress))
    , m_patience(patience)
{
}

LoginManagerPower::~LoginManagerPower() = default;

Result<void> LoginManagerPower::Ask(const char* method)
{
    if (m_isAsking.exchange(true))
        return Error{ 0, "The system has not answered the last request yet" };
    m_thread = std::jthread([this, method](const std::stop_token& stop) {
        Call(method, stop);
        m_isAsking = false;
    });
    return {};
}

void LoginManagerPower::Call(const char* method, const std::stop_token& stop) const
{
    const auto end = std::chrono::steady_clock::now() + m_patience;
    const auto bus = ConnectToBus(m_busAddress, m_patience);
    bool isAnswered = false;
    if (!bus
        || sd_bus_call_method_async(bus.get(), nullptr, "org.freedesktop.login1", "/org/freedesktop/login1",
               "org.freedesktop.login1.Manager", method, &OnAnswer, &isAnswered, "b", kMayAskForPassword)
            < 0)
        return;
    while (!isAnswered && !stop.stop_requested() && std::chrono::steady_clock::now() < end) {
        const int handled = sd_bus_process(bus.get(), nullptr);
        if (handled < 0)
            return;
        if (handled == 0)
            sd_bus_wait(bus.get(), kLookForStop.count());
    }
}

std::unique_ptr<Power> Power::Open()
{
    return std::make_unique<LoginManagerPower>(SystemBusAddress(), kPatience);
}

SessionSleepInhibitor::SessionSleepInhibitor(std::string busAddress, std::chrono::milliseconds retry)
    : m_busAddress(std::move(busAddress))
    , m_retry(retry)
    , m_ways{ Way{ "org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver" },
        Way{ "org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
            "org.freedesktop.PowerManagement.Inhibit" },
        Way{ "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Inhibit",
            true } }
{
}

SessionSleepInhibitor::~SessionSleepInhibitor()
{
    Hold(false);
    m_thread.reset();
}

void SessionSleepInhibitor::Hold(bool held)
{
    if (m_wanted.exchange(held) == held)
        return;
    if (m_thread)
        m_thread->Wake();
    else
        m_thread = std::make_unique<BusThread>(m_busAddress, static_cast<BusClient&>(*this), m_retry);
}

void SessionSleepInhibitor::Connected(sd_bus* bus)
{
    for (auto& way : m_ways) {
        const auto match = "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
                           "member='NameOwnerChanged',arg0='"
            + std::string(way.service) + "'";
        sd_bus_add_match_async(bus, nullptr, match.c_str(), &OnOwnerChanged, nullptr, &way);
    }
}

void SessionSleepInhibitor::Speak(sd_bus* bus)
{
    const bool wanted = m_wanted;
    for (auto& way : m_ways) {
        if (wanted && way.state == Way::State::Idle && IsTurnOf(way))
            Ask(bus, way);
        else if (!wanted && way.state == Way::State::Held)
            Release(bus, way);
        else if (!wanted && way.state == Way::State::Refused)
            way.state = Way::State::Idle;
    }
}

void SessionSleepInhibitor::Lost()
{
    for (auto& way : m_ways)
        way.state = Way::State::Idle;
}

bool SessionSleepInhibitor::IsTurnOf(const Way& way) const
{
    return !way.isPortal || m_ways[0].state == Way::State::Refused;
}

void SessionSleepInhibitor::Ask(sd_bus* bus, Way& way)
{
    const int sent = way.isPortal ? sd_bus_call_method_async(bus, nullptr, way.service, way.path, way.interface,
                         "Inhibit", &OnAnswer, &way, "sua{sv}", "", kSuspendAndIdle, 1, "reason", "s", kReason)
                                  : sd_bus_call_method_async(bus, nullptr, way.service, way.path, way.interface,
                                      "Inhibit", &OnAnswer, &way, "ss", kProgram, kReason);
    way.state = sent < 0 ? Way::State::Refused : Way::State::Asked;
}

void SessionSleepInhibitor::Release(sd_bus* bus, Way& way)
{
    // Nobody waits for the answer: at the program's end there is no time for one.
    if (way.isPortal)
        sd_bus_call_method_async(
            bus, nullptr, way.service, way.request.c_str(), kPortalRequest, "Close", nullptr, nullptr, "");
    else
        sd_bus_call_method_async(
            bus, nullptr, way.service, way.path, way.interface, "UnInhibit", nullptr, nullptr, "u", way.cookie);
    way.state = Way::State::Idle;
}

int SessionSleepInhibitor::OnAnswer(sd_bus_message* answer, void* asked, sd_bus_error*)
{
    auto& way = *static_cast<Way*>(asked);
    const char* request = nullptr;
    const bool isHeld = sd_bus_message_is_method_error(answer, nullptr) == 0
        && (way.isPortal ? sd_bus_message_read(answer, "o", &request) : sd_bus_message_read(answer, "u", &way.cookie))
            > 0;
    if (request != nullptr)
        way.request = request;
    way.state = isHeld ? Way::State::Held : Way::State::Refused;
    return 0;
}

int SessionSleepInhibitor::OnOwnerChanged(sd_bus_message* message, void* watched, sd_bus_error*)
{
    auto& way = *static_cast<Way*>(watched);
    const char* name = nullptr;
    const char* before = nullptr;
    const char* now = nullptr;
    // A service that our own question has started is still to answer it.
    if (way.state != Way::State::Asked && sd_bus_message_read(message, "sss", &name, &before, &now) > 0)
        way.state = std::string_view(now).empty() ? Way::State::Refused : Way::State::Idle;
    return 0;
}

std::unique_ptr<SleepInhibitor> SleepInhibitor::Open()
{
    return std::make_unique<SessionSleepInhibitor>(SessionBusAddress());
}

} // namespace zentaro::platform
