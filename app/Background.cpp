#include "app/Background.h"

#include <system_error>
#include <thread>
#include <utility>

namespace zentaro {

void RunInBackground(const Post& post, std::function<std::function<void()>()> work)
{
    try {
        std::thread([post, work] { post(work()); }).detach();
    } catch (const std::system_error&) {
        // The system has no thread to give: better late than never.
        post([work] { work()(); });
    }
}

} // namespace zentaro
