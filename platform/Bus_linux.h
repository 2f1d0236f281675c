#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <systemd/sd-bus.h>
#include <thread>

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

/// Where the session's message bus listens; empty when there is none.
std::string SessionBusAddress();

/// Who speaks on a bus. All calls come from the bus's thread.
class BusClient {
public:
    virtual ~BusClient() = default;
    /// A new connection stands.
    virtual void Connected(sd_bus* bus) = 0;
    /// Time to say what is to be said: after Connected, after every message, and after a wake-up.
    virtual void Speak(sd_bus* bus) = 0;
    /// The connection is gone, and with it what was said on it.
    virtual void Lost() = 0;
};

/// The first wait after a bus that was lost or refused; each further one is twice as long.
inline constexpr std::chrono::milliseconds kBusRetry{ 100 };

/// A connection to a message bus on a thread of its own, so that nobody waits for a bus that hangs. A connection that
/// is lost or refused is tried again for some seconds, and then whenever something happens in the folder where the bus
/// was: a thread that has nothing to say sleeps for good.
class BusThread {
public:
    /// `client` outlives the object.
    BusThread(std::string address, BusClient& client, std::chrono::milliseconds retry = kBusRetry);
    /// The client may speak once more; then the connection goes.
    ~BusThread();

    /// Calls the client's Speak soon, once it is connected.
    void Wake();

private:
    void Run(const std::stop_token& stop);
    /// True when a connection stood and is gone.
    bool Serve(const std::stop_token& stop);
    /// Sleeps until the descriptor has one of the events (true), somebody wakes the thread, or the time is over.
    bool Wait(int descriptor, int events, std::optional<std::chrono::milliseconds> limit) const;

    std::string m_address;
    BusClient& m_client;
    std::chrono::milliseconds m_retry;
    int m_wakeUp;
    std::jthread m_thread;
};

} // namespace zentaro::platform
