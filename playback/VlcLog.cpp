#include "playback/VlcLog.h"

#include <vlc/vlc.h>

#include <cstdarg>
#include <cstring>

namespace zentaro {

namespace {

constexpr long kLogLimit = 1'000'000; // bytes

void OnLogMessage(void* log, int level, const libvlc_log_t*, const char* format, va_list arguments)
{
    if (level < LIBVLC_WARNING)
        return;
    char text[1024];
    std::vsnprintf(text, sizeof text, format, arguments);
    static_cast<VlcLog*>(log)->Write(level, text);
}

} // namespace

VlcLog::VlcLog(const std::string& path)
    : m_file(path.empty() ? nullptr : std::fopen(path.c_str(), "w"))
    , m_room(kLogLimit)
{
}

VlcLog::~VlcLog()
{
    if (m_file != nullptr)
        std::fclose(m_file);
}

void VlcLog::Attach(libvlc_instance_t* instance)
{
    libvlc_log_set(instance, &OnLogMessage, this);
}

void VlcLog::Write(int level, const char* text)
{
    if (std::strstr(text, "failed to create audio output") != nullptr)
        m_soundFailed = true;
    const std::lock_guard lock(m_mutex);
    if (m_file == nullptr || m_room <= 0)
        return;
    m_room -= std::fprintf(m_file, "%s: %s\n", level == LIBVLC_ERROR ? "error" : "warning", text);
    std::fflush(m_file);
}

} // namespace zentaro
