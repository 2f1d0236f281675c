#pragma once

#include "tests/platform/WorkingFolder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zentaro::platform {

/// Home, data and runtime folders of a test's own and no message bus, so that it never meets those of whoever runs it.
class PrivateUser : public testing::Test {
protected:
    PrivateUser()
    {
        for (const auto* name : { "HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR" }) {
            const auto path = folder / name;
            std::filesystem::create_directory(path);
            std::filesystem::permissions(path, std::filesystem::perms::owner_all);
            setenv(name, path.c_str(), 1);
        }
        // With no address at all, libraries start a bus of their own where they can.
        for (const auto* kind : { "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS" })
            setenv(kind, ("unix:path=" + (folder / "no-bus")).c_str(), 1);
    }

    std::string InRuntimeFolder(const std::string& name) const { return folder / "XDG_RUNTIME_DIR/zentaro/" + name; }

    WorkingFolder folder;
};

/// What shell text prints on both streams, without the last line's end.
inline std::string OutputOfShell(const std::string& text)
{
    std::string output;
    auto* const pipe = popen(("{ " + text + "; } 2>&1").c_str(), "re");
    for (int character = std::fgetc(pipe); character != EOF; character = std::fgetc(pipe))
        output += static_cast<char>(character);
    pclose(pipe);
    return output.substr(0, output.find_last_not_of('\n') + 1);
}

/// Runs the function in a process of its own.
template <class Function> pid_t StartProcess(Function function)
{
    const pid_t child = fork();
    if (child == 0) {
        function();
        _exit(0);
    }
    return child;
}

inline int WaitForProcess(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

} // namespace zentaro::platform
