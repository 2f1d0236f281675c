#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zentaro::desktop {

inline constexpr std::string_view kDefaultApplications = "Default Applications";
inline constexpr std::string_view kAddedAssociations = "Added Associations";
inline constexpr std::string_view kRemovedAssociations = "Removed Associations";
inline constexpr std::string_view kMimeCache = "MIME Cache";

/// The text of a desktop's file of defaults ("mimeapps.list", "mimeinfo.cache"): groups of lines
/// "type=program;program;". Whatever else the text holds stays as it is.
class MimeApps {
public:
    explicit MimeApps(const std::string& text);

    /// In their order of preference; of a type that is named twice, those of both lines.
    std::vector<std::string> Programs(std::string_view group, std::string_view type) const;
    /// The programs, in this order, before all others of the type.
    void PutFirst(std::string_view group, std::string_view type, const std::vector<std::string>& programs);
    /// A line that names no other program goes with it.
    void Remove(std::string_view group, std::string_view type, const std::string& program);

    std::string Text() const;

private:
    std::vector<std::size_t> LinesOf(std::string_view group, std::string_view type) const;
    std::size_t StartOf(std::string_view group);

    std::vector<std::string> m_lines; // the last one without a line end
};

} // namespace zentaro::desktop
