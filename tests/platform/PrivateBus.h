#pragma once

#include "platform/ChildProcess.h"
#include "tests/platform/PrivateUser.h"

#include <csignal>
#include <fstream>

namespace zentaro::platform {

/// What a program prints next, up to and with the text; less when that takes too long or the program ends.
inline std::string PrintedUpTo(ChildProcess& program, const std::string& text)
{
    std::string printed;
    char character = 0;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    for (std::optional<std::size_t> count = 0; count && !printed.ends_with(text);) {
        if (std::chrono::steady_clock::now() > end)
            break;
        program.HasEnded(std::chrono::milliseconds(100));
        count = program.Read({ &character, 1 });
        printed.append(count.value_or(0), character);
    }
    return printed;
}

/// A message bus of one test: its own daemon, configuration and address, on which nothing is started by itself.
class PrivateBus {
public:
    PrivateBus()
    {
        // Whoever asks for a bus without saying which, as libraries do, must find this one and start no other.
        setenv("DBUS_SESSION_BUS_ADDRESS", Address().c_str(), 1);
        setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + Folder() + "/no-bus").c_str(), 1);
        std::ofstream(m_folder / "bus.conf")
            << "<busconfig><listen>" << Address() << "</listen><auth>EXTERNAL</auth>"
            << "<policy context='default'><allow send_destination='*'/><allow receive_sender='*'/><allow own='*'/>"
            << "</policy></busconfig>";
        Start();
    }

    /// Ends the daemon and everybody's connection, and starts one at the same address.
    void Restart()
    {
        kill(m_id, SIGKILL);
        Start();
    }
    /// From now on whoever connects never hears a word.
    void FallSilent() const { kill(m_id, SIGSTOP); }

    const std::string& Folder() const { return m_folder.Path(); }
    std::string Address() const { return "unix:path=" + (m_folder / "bus"); }

    /// What a program of this session prints, and "failed" when it fails.
    std::string OutputOf(const std::string& command) const
    {
        return OutputOfShell("DBUS_SESSION_BUS_ADDRESS='" + Address() + "' timeout 20 " + command + " || echo failed");
    }

private:
    void Start()
    {
        // It complains that an ordinary user cannot raise its limits.
        const auto daemon = "exec dbus-daemon --nofork --print-pid --config-file=" + Folder() + "/bus.conf 2>/dev/null";
        m_daemon = std::move(*ChildProcess::Start({ "/bin/sh", { "-c", daemon }, "" }));
        const auto printed = PrintedUpTo(*m_daemon, "\n");
        ASSERT_TRUE(printed.ends_with('\n')) << "dbus-daemon did not start";
        m_id = std::stoi(printed);
    }

    WorkingFolder m_folder;
    std::unique_ptr<ChildProcess> m_daemon;
    pid_t m_id = 0;
};

} // namespace zentaro::platform
