#include "playlist/Notice.h"

#include <algorithm>

namespace zentaro {

Notice GatherNotices(const std::vector<Notice>& notices)
{
    Notice all = notices.front();
    for (std::size_t i = 1; i < notices.size(); ++i) {
        all.text += "\r\n\r\n" + notices[i].text;
        if (notices[i].title != all.title)
            all.title = Notice().title;
        all.icon = std::max(all.icon, notices[i].icon);
    }
    return all;
}

} // namespace zentaro
