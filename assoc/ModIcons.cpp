#include "assoc/ModIcons.h"

#include "base/Paths.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace zentaro {

IconPlace ParseIconText(std::string_view text)
{
    IconPlace place{ std::string(text), 0 };
    // A comma may belong to the name: only a number behind the last one is an index.
    if (const auto comma = text.rfind(','); comma != std::string_view::npos) {
        auto number = text.substr(comma + 1);
        number.remove_prefix(std::min(number.find_first_not_of(' '), number.size()));
        std::int32_t index = 0;
        const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), index);
        if (error == std::errc() && end == number.data() + number.size())
            place = { std::string(text.substr(0, comma)), index };
    }
    if (place.file.size() > 1 && place.file.front() == '"' && place.file.back() == '"')
        place.file = place.file.substr(1, place.file.size() - 2);
    return place;
}

ModIcons::ModIcons(platform::StringStore& store, Loaders loaders, std::string programFolder, char separator)
    : m_store(store)
    , m_loaders(std::move(loaders))
    , m_unknown(std::move(programFolder) + "icons" + separator + "Unkowen.bmp")
    , m_separator(separator)
{
}

Picture ModIcons::OwnerIcon(const std::string& extension) const
{
    const auto read = [&](const std::string& key) {
        return m_store.Read(platform::StringStore::Root::ClassesRoot, key, "", "");
    };
    const auto owner = read(extension);
    const auto place = ParseIconText(owner.empty() ? "" : read(owner + "\\DefaultIcon"));
    Picture icon;
    if (const auto kind = LowerExtension(place.file, m_separator); kind == "dll" || kind == "exe")
        icon = m_loaders.extractIcon(place.file, place.index);
    else if (!place.file.empty())
        icon = m_loaders.loadPicture(place.file);
    return icon ? icon : m_loaders.loadPicture(m_unknown);
}

} // namespace zentaro
