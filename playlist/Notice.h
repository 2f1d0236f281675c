#pragma once

#include <string>
#include <vector>

namespace zentaro {

/// The gravest last.
enum class NoticeIcon { Information, Exclamation, Critical };

/// The content of one message box. Lines end in CR LF.
struct Notice {
    std::string text;
    NoticeIcon icon = NoticeIcon::Exclamation;
    std::string title = "Zentaro";
    bool operator==(const Notice&) const = default;
};

/// One box for many: the texts in order with an empty line between them, the title they share (else the program's),
/// the gravest icon. Only for one notice or more.
Notice GatherNotices(const std::vector<Notice>& notices);

} // namespace zentaro
