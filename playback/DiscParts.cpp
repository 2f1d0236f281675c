#include "playback/DiscParts.h"

#include "base/Numbers.h"
#include "playback/TimeText.h"

namespace zentaro {

std::vector<std::string> PartCaptions(const std::vector<DiscPart>& parts, const std::string& kind)
{
    std::vector<std::string> captions;
    int number = 0;
    for (const auto& part : parts) {
        auto caption = part.name.empty() ? kind + " " + std::to_string(++number) : part.name;
        if (const auto seconds = RoundHalfEven(part.length / 1000); seconds > 0)
            caption += " (" + TimeText(seconds) + ")";
        captions.push_back(std::move(caption));
    }
    return captions;
}

} // namespace zentaro
