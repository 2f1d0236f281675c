#include "tests/desktop/Process.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace zentaro::trial {

Process::Process(const std::vector<std::string>& command, const std::string& folder)
    : m_output(memfd_create("output", MFD_CLOEXEC))
{
    std::vector<std::string> words = { "env", "-C", folder };
    words.insert(words.end(), command.begin(), command.end());
    std::vector<char*> pointers;
    for (auto& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    m_id = fork();
    if (m_id < 0)
        throw std::runtime_error("cannot fork");
    if (m_id > 0)
        return;
    // Nothing but system calls from here: other threads may have held any lock.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    setpgid(0, 0);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(m_output, STDOUT_FILENO);
    dup2(m_output, STDERR_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    execvp(pointers[0], pointers.data());
    _exit(127);
}

Process& Process::Swap(Process& other)
{
    std::swap(m_id, other.m_id);
    std::swap(m_output, other.m_output);
    std::swap(m_result, other.m_result);
    return *this;
}

bool Process::IsRunning()
{
    int status = 0;
    if (m_id <= 0 || m_result)
        return false;
    if (waitpid(m_id, &status, WNOHANG) != m_id)
        return true;
    m_result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return false;
}

std::optional<int> Process::WaitForEnd(std::chrono::milliseconds limit)
{
    WaitUntil([this] { return !IsRunning(); }, limit);
    return m_result;
}

void Process::Signal(int signal) const
{
    if (m_id > 0 && !m_result)
        kill(m_id, signal);
}

void Process::Kill()
{
    if (IsRunning())
        kill(-m_id, SIGKILL);
    WaitForEnd();
    if (m_output >= 0)
        close(std::exchange(m_output, -1));
}

std::string Process::Output() const
{
    return ReadWholeFile("/proc/self/fd/" + std::to_string(m_output));
}

std::vector<std::string> Words(const std::string& text)
{
    std::istringstream stream(text);
    return { std::istream_iterator<std::string>(stream), {} };
}

std::string ReadWholeFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

void WriteWholeFile(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace zentaro::trial
