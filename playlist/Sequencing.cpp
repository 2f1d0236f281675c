#include "playlist/Sequencing.h"

namespace zentaro {

std::optional<int> NextPosition(const PlayOrder& order)
{
    if (order.Count() == 0)
        return std::nullopt;
    return order.Position() >= order.Count() - 1 ? 0 : order.Position() + 1;
}

std::optional<int> PreviousPosition(const PlayOrder& order)
{
    if (order.Count() == 0)
        return std::nullopt;
    return order.Position() <= 0 ? order.Count() - 1 : order.Position() - 1;
}

EndOfItem DecideEndOfItem(std::int32_t playMode, std::int32_t repeatMode, PlayOrder& order)
{
    if (repeatMode == kRepeatSingle)
        return { .action = EndOfItem::Action::RestartSame };
    if (playMode == kPlayNormal)
        return { .action = EndOfItem::Action::StopAndAfterPlay };
    const bool last = order.Position() == order.Count() - 1;
    if (last && repeatMode == kNoRepeat)
        return { .action = EndOfItem::Action::StopAndAfterPlay };
    order.SetPosition(last ? 0 : order.Position() + 1);
    return { EndOfItem::Action::Play, order.Position(), order.At(order.Position()) };
}

} // namespace zentaro
