#include "platform/QuitRequest.h"

namespace zentaro::platform {

// The end of a session reaches the window as a message.
void OnQuitRequest(std::function<void()>) { }

} // namespace zentaro::platform
