#include "platform/SystemBus_linux.h"

#include <cstdint>
#include <cstdlib>
#include <systemd/sd-bus.h>
#include <utility>

namespace zentaro::platform {

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

} // namespace zentaro::platform
