#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace zentaro {

/// Display names of codecs, by the short name that the tool prints.
class CodecNames {
public:
    CodecNames() = default;
    /// Reads "key,name" lines; blanks around both are dropped, lines without a comma mean nothing. A key that is a
    /// number cannot be met by any codec's name, and of a repeated key the first line counts.
    explicit CodecNames(std::string_view text);

    /// The display name, or the codec's own name when it has none. Letter case counts.
    std::string DisplayName(std::string_view codec) const;

private:
    std::map<std::string, std::string, std::less<>> m_names;
};

} // namespace zentaro
