#pragma once

#include <chrono>
#include <memory>
#include <string>

struct sd_bus;

namespace zentaro::platform {

/// Where the system's message bus listens: DBUS_SYSTEM_BUS_ADDRESS, else the usual place.
std::string SystemBusAddress();

struct CloseBus {
    void operator()(sd_bus* bus) const;
};
/// A connection of its own that goes with the value: a service drops a question whose asker has left.
using Bus = std::unique_ptr<sd_bus, CloseBus>;

/// Only begins to connect; the rest goes on when the bus is used, so that nothing here waits for a bus that hangs.
/// `patience`: how long the answer to a call may take. Null when the address is no good.
Bus ConnectToBus(const std::string& address, std::chrono::microseconds patience);

} // namespace zentaro::platform
