#include "platform/Graphics.h"

#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <xcb/xcb.h>

namespace zentaro::platform {

bool HasGraphicsCard()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    if (xcb_connection_has_error(display.get()) != 0)
        return false;
    // A server without a card offers none of the ways in which a client hands it finished card memory.
    for (const char* const name : { "DRI3", "DRI2", "NV-GLX" }) {
        const auto cookie = xcb_query_extension(display.get(), static_cast<std::uint16_t>(std::strlen(name)), name);
        const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> reply(
            xcb_query_extension_reply(display.get(), cookie, nullptr), &std::free);
        if (reply && reply->present != 0)
            return true;
    }
    return false;
}

} // namespace zentaro::platform
