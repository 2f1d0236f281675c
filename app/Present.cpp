#include "app/Present.h"

#include "app/StateText.h"
#include "base/Numbers.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr std::string_view kHeader = "Zentaro present 1";

} // namespace

std::string Present::Format() const
{
    StateWriter writer(kHeader);
    writer.Row("now").Field(path).Number(time).Number(length);
    writer.Row("volume").Number(volume);
    writer.Row("list").Number(selected).Number(position);
    return writer.Take();
}

Present Present::Parse(std::string_view text)
{
    Present present;
    for (const auto& row : ReadState(text, kHeader)) {
        if (row[0] == "now") {
            present.path = TextAt(row, 1);
            present.time = std::max(0.0, NumberAt(row, 2));
            present.length = std::max(0.0, NumberAt(row, 3));
        } else if (row[0] == "volume") {
            present.volume = std::clamp(RoundHalfEven(NumberAt(row, 1)), 0, 100);
        } else if (row[0] == "list") {
            present.selected = RoundHalfEven(NumberAt(row, 1));
            present.position = RoundHalfEven(NumberAt(row, 2));
        }
    }
    return present;
}

} // namespace zentaro
