#pragma once

#include "base/Picture.h"
#include "platform/StringStore.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zentaro {

/// Where an icon lies: a file, and its place in a file that holds several.
struct IconPlace {
    std::string file;
    std::int32_t index = 0;
    bool operator==(const IconPlace&) const = default;
};

/// Takes 'path,index' apart.
IconPlace ParseIconText(std::string_view text);

/// The pictures of the options list: each type's icon as its present owner has set it.
class ModIcons {
public:
    struct Loaders {
        /// The icon at that place of a program or library; an empty picture when there is none.
        std::function<Picture(const std::string& file, std::int32_t index)> extractIcon;
        /// A picture file, or a name of the icon theme; an empty picture when it cannot be read.
        std::function<Picture(const std::string& file)> loadPicture;
    };

    /// `programFolder` with a trailing separator.
    ModIcons(platform::StringStore& store, Loaders loaders, std::string programFolder, char separator);

    /// `extension` with its dot. The picture "Unkowen.bmp" of the program folder when the owner has none.
    Picture OwnerIcon(const std::string& extension) const;

private:
    platform::StringStore& m_store;
    Loaders m_loaders;
    std::string m_unknown;
    char m_separator;
};

} // namespace zentaro
