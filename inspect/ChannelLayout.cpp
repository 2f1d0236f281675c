#include "inspect/ChannelLayout.h"

#include "inspect/TextValues.h"

#include <algorithm>
#include <cstddef>

namespace zentaro {

namespace {

struct LayoutRow {
    std::string_view name;
    int channels;
};

constexpr LayoutRow kLayouts[] = {
    { "mono", 1 },
    { "stereo", 2 },
    { "downmix", 2 },
    { "binaural", 2 },
    { "surround", 3 },
    { "quad", 4 },
    { "5:1", 6 },
    { "hexagonal", 6 },
    { "octagonal", 8 },
    { "cube", 8 },
    { "hexadecagonal", 16 },
};

constexpr std::size_t kLongestLayout = 1000; // characters; names nest, and the reader with them
constexpr int kMostChannels = 0xFFFF;        // no container can say more

} // namespace

int ChannelsOfLayout(std::string_view name)
{
    name = Trimmed(name);
    if (name.size() > kLongestLayout)
        return 0;
    if (CutFront(name, "ambisonic ")) {
        const auto plus = name.find('+');
        const int order = std::clamp(IntegerOfText(name).value_or(0), 0, 100) + 1;
        return order * order + (plus == std::string_view::npos ? 0 : ChannelsOfLayout(name.substr(plus + 1)));
    }
    if (Contains(name, " channel"))
        return std::clamp(IntegerOfText(name).value_or(0), 0, kMostChannels);
    if (CutBack(name, "+downmix"))
        return ChannelsOfLayout(name) + 2;
    name = name.substr(0, name.find('('));
    for (const auto& row : kLayouts)
        if (name == row.name)
            return row.channels;
    int sum = 0;
    while (!name.empty()) {
        const auto digits = DigitsAt(name);
        if (digits == 0 || digits > 3)
            return 0;
        sum += IntegerOfText(name.substr(0, digits)).value_or(0);
        name.remove_prefix(digits);
        if (!name.empty() && !CutFront(name, "."))
            return 0;
    }
    return sum;
}

} // namespace zentaro
