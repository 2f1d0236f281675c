#include "platform/SoundLibrary.h"

#include <dlfcn.h>

namespace zentaro::platform {

namespace {

using ErrorHandler = void (*)(const char* file, int line, const char* function, int error, const char* format, ...);

void SayNothing(const char*, int, const char*, int, const char*, ...) { }

} // namespace

void SilenceSoundLibrary()
{
    // Looked up at run time: only the engine's sound plug-in needs the library, and not on every machine.
    void* const library = dlopen("libasound.so.2", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr)
        return;
    using SetHandler = int (*)(ErrorHandler);
    if (const auto setHandler = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler")))
        setHandler(&SayNothing);
}

} // namespace zentaro::platform
