#pragma once

#include "platform/Bus_linux.h"
#include "platform/Power.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>

namespace zentaro::platform {

/// Power over the login manager (org.freedesktop.login1) of the bus at an address. The bus is first spoken to when
/// something is asked; a thread waits for the answer, so that the window goes on.
class LoginManagerPower : public Power {
public:
    /// `patience`: how long an answer may take. The system may have to ask the user for a password.
    LoginManagerPower(std::string busAddress, std::chrono::milliseconds patience);
    /// Withdraws a request that has no answer yet.
    ~LoginManagerPower() override;

    /// The login manager itself decides who may.
    void EnableShutdownPrivilege() override { }
    Result<void> Restart() override { return Ask("Reboot"); }
    Result<void> PowerOff() override { return Ask("PowerOff"); }

private:
    /// Fails while an earlier request waits for its answer: one question to the user is enough.
    Result<void> Ask(const char* method);
    void Call(const char* method, const std::stop_token& stop) const;

    std::string m_busAddress;
    std::chrono::milliseconds m_patience;
    std::atomic<bool> m_isAsking = false;
    std::jthread m_thread;
};

/// Asks the session's services for the screen saver and for the computer's sleep; where there is no service for the
/// screen saver, the desktop portal. The bus is first spoken to when something is to be held off.
class SessionSleepInhibitor : public SleepInhibitor, private BusClient {
public:
    explicit SessionSleepInhibitor(std::string busAddress,
        std::chrono::milliseconds retry = kBusRetry); ///< after a bus that was lost
    ~SessionSleepInhibitor() override;

    void Hold(bool held) override;

private:
    /// One service that can be asked.
    struct Way {
        enum class State { Idle, Asked, Held, Refused };

        const char* service;
        const char* path;
        const char* interface;
        bool isPortal = false;
        State state = State::Idle;
        std::uint32_t cookie = 0; ///< what the service calls our inhibition
        std::string request = {}; ///< what the portal calls it
    };

    void Connected(sd_bus* bus) override;
    void Speak(sd_bus* bus) override;
    void Lost() override;
    bool IsTurnOf(const Way& way) const;
    static void Ask(sd_bus* bus, Way& way);
    static void Release(sd_bus* bus, Way& way);
    static int OnAnswer(sd_bus_message* answer, void* asked, sd_bus_error*);
    static int OnOwnerChanged(sd_bus_message* message, void* watched, sd_bus_error*);

    std::string m_busAddress;
    std::chrono::milliseconds m_retry;
    std::atomic<bool> m_wanted = false;
    std::array<Way, 3> m_ways; // only for the bus's thread
    std::unique_ptr<BusThread> m_thread;
};

} // namespace zentaro::platform
