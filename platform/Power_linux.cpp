#include "platform/Power_linux.h"

#include "platform/SystemBus_linux.h"

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

} // namespace zentaro::platform
