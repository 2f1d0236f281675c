#pragma once

#include "tests/platform/WorkingFolder.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zentaro::platform {

/// A message bus of one test: its own daemon, configuration and address, on which nothing is started by itself.
class PrivateBus {
public:
    PrivateBus()
    {
        // Whoever asks for a bus without saying which, as libraries do, must find this one and start no other.
        setenv("DBUS_SESSION_BUS_ADDRESS", Address().c_str(), 1);
        setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + Folder() + "/no-bus").c_str(), 1);
        const auto configuration = m_folder / "bus.conf";
        std::ofstream(configuration)
            << "<busconfig><listen>" << Address() << "</listen><auth>EXTERNAL</auth>"
            << "<policy context='default'><allow send_destination='*'/><allow receive_sender='*'/><allow own='*'/>"
            << "</policy></busconfig>";
        Start();
    }
    PrivateBus(const PrivateBus&) = delete;
    ~PrivateBus() { Stop(); }

    /// Ends the daemon and everybody's connection, and starts one at the same address.
    void Restart()
    {
        Stop();
        Start();
    }

    const std::string& Folder() const { return m_folder.Path(); }
    std::string Address() const { return "unix:path=" + (m_folder / "bus"); }

    /// What a program of this session prints, and "failed" when it fails.
    std::string OutputOf(const std::string& command) const
    {
        const auto line = "DBUS_SESSION_BUS_ADDRESS='" + Address() + "' timeout 20 " + command + " 2>&1 || echo failed";
        std::string text;
        auto* const output = popen(line.c_str(), "re");
        for (int character = std::fgetc(output); character != EOF; character = std::fgetc(output))
            text += static_cast<char>(character);
        pclose(output);
        return text.substr(0, text.find_last_not_of('\n') + 1);
    }

private:
    void Start()
    {
        std::array<int, 2> ready{};
        EXPECT_EQ(pipe2(ready.data(), O_CLOEXEC), 0);
        const auto argument = "--config-file=" + (m_folder / "bus.conf");
        m_daemon = fork();
        if (m_daemon == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            dup2(ready[1], STDOUT_FILENO);
            // It complains that an ordinary user cannot raise its limits.
            dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
            execlp("dbus-daemon", "dbus-daemon", argument.c_str(), "--nofork", "--print-address", nullptr);
            _exit(127);
        }
        close(ready[1]);
        char first = 0;
        EXPECT_EQ(read(ready[0], &first, 1), 1) << "dbus-daemon did not start";
        close(ready[0]);
    }
    void Stop()
    {
        kill(m_daemon, SIGKILL);
        waitpid(m_daemon, nullptr, 0);
    }

    WorkingFolder m_folder;
    pid_t m_daemon = -1;
};

/// Where a bus should be, somebody listens who never says a word.
class DeafBus {
public:
    /// `path`: a short one, of a file that is not there.
    explicit DeafBus(std::string path)
        : m_path(std::move(path))
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        m_path.copy(place.sun_path, sizeof place.sun_path - 1);
        EXPECT_EQ(bind(m_socket, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        EXPECT_EQ(listen(m_socket, 1), 0);
    }
    DeafBus(const DeafBus&) = delete;
    ~DeafBus() { close(m_socket); }

    std::string Address() const { return "unix:path=" + m_path; }

private:
    std::string m_path;
    int m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

} // namespace zentaro::platform
