#pragma once

#include "platform/Power.h"

#include <atomic>
#include <chrono>
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

} // namespace zentaro::platform
