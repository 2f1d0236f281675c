#include "tests/live/Replay.h"

#include <algorithm>
#include <cmath>

namespace zentaro::live {

bool Reading::IsEnd() const
{
    const auto elapsed = static_cast<long>(std::nearbyint(time / 1000));
    const auto total = static_cast<long>(std::nearbyint(length / 1000));
    return state == 6 || state == 7 || (total > 0 && elapsed >= total && elapsed < 2 * total);
}

bool Reading::IsFailure() const
{
    return state >= 6 && position <= 0 && time <= 0 && length <= 0;
}

Replay::Replay()
{
    EnableMediaControls(false);
    Enable({ "Remove", "RemoveAll", "Next", "Previous" }, true);
}

void Replay::Enable(std::initializer_list<const char*> keys, bool enable)
{
    for (const auto* const key : keys)
        items[key] = enable;
}

void Replay::EnableMediaControls(bool enable)
{
    enabled = enable;
    Enable({ "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" }, enable);
}

void Replay::PlayItem(int index)
{
    if (index < 0 || index >= Count())
        return;
    ReleaseHeld();
    played.push_back(entries[static_cast<std::size_t>(index)]);
    EnableMediaControls(true);
    rate = engineRate = 1;
}

void Replay::Play()
{
    if (entries.empty()) {
        for (std::size_t i = 0; i < chosen.size(); ++i)
            Load(chosen[i], i == 0);
        return;
    }
    if (selected < 0)
        selected = 0;
    SetPosition(selected);
    PlayItem(selected);
}

void Replay::Stop()
{
    ReleaseHeld();
    EnableMediaControls(false);
}

void Replay::ReleaseHeld()
{
    if (fastForwards)
        engineRate = 1;
    fastForwards = rewinds = false;
}

void Replay::Step(int by)
{
    if (!enabled || order.empty())
        return;
    const int last = Count() - 1;
    if (by > 0)
        position = position == last ? 0 : position + 1;
    else
        position = position <= 0 ? last : position - 1;
    selected = position;
    PlayItem(position);
}

void Replay::SetRate(double value)
{
    rate = value;
    if (enabled)
        engineRate = value;
}

void Replay::Faster()
{
    if (rate >= 16)
        return;
    SetRate(rate * 2);
    items["DecreaseSpeed"] = true;
    if (rate == 16)
        items["IncreaseSpeed"] = false;
}

void Replay::Slower()
{
    if (rate <= 0.125)
        return;
    SetRate(rate / 2);
    items["IncreaseSpeed"] = true;
    if (rate == 0.125)
        items["DecreaseSpeed"] = false;
}

void Replay::NormalSpeed()
{
    if (!enabled)
        return;
    SetRate(1);
    Enable({ "IncreaseSpeed", "DecreaseSpeed" }, true);
}

void Replay::StopItem()
{
    if (!items["Stop"])
        return;
    Stop();
    items["Stop"] = false;
}

void Replay::PlayPauseItem()
{
    if (Count() > 0)
        return;
    Play();
    items["Stop"] = true;
}

void Replay::RemoveItem()
{
    Remove();
    if (Count() == 0)
        Enable({ "RemoveAll", "Next", "Previous" }, false);
}

void Replay::RemoveAllItem()
{
    if (!items["RemoveAll"])
        return;
    RemoveAll();
    Enable({ "RemoveAll", "Next", "Previous" }, false);
}

void Replay::Load(const std::string& path, bool playNow)
{
    if (std::find(entries.begin(), entries.end(), path) == entries.end())
        entries.push_back(path);
    Enable({ "Remove", "RemoveAll", "Next", "Previous" }, true);
    if (playNow) {
        selected = Count() - 1;
        PlayItem(selected);
    }
    BuildOrder();
}

void Replay::Remove()
{
    if (selected < 0 || selected >= Count())
        return;
    entries.erase(entries.begin() + selected);
    order.erase(order.begin() + selected);
    position = std::min(position, Count() - 1);
}

void Replay::RemoveAll()
{
    entries.clear();
    order.clear();
    position = selected = -1;
}

void Replay::Select(int index)
{
    if (index >= 0 && index < Count())
        selected = index;
    if (playMode != 2)
        SetPosition(selected);
}

void Replay::DoubleClick()
{
    if (selected < 0 || selected >= Count())
        return;
    PlayItem(selected);
    SetPosition(selected);
}

void Replay::SetPlayMode(std::int32_t mode)
{
    playMode = mode;
    BuildOrder();
}

void Replay::BuildOrder()
{
    order.clear();
    for (int i = 0; i < Count(); ++i)
        order.push_back(i);
    isShuffled = playMode == 2;
    SetPosition(selected);
}

void Replay::StopAndAct()
{
    Stop();
    restarts += afterPlay == 1;
    powerOffs += afterPlay == 2;
    closes += afterPlay == 3;
}

void Replay::Tick(const Reading& reading)
{
    if (!enabled || !reading.IsEnd())
        return;
    ReleaseHeld();
    EnableMediaControls(false);
    m_failures = reading.IsFailure() ? m_failures + 1 : 0;
    if (m_failures > 0 && m_failures >= (repeatMode == 1 ? 1 : Count())) {
        m_failures = 0;
        ++notes;
        return;
    }
    const bool isLast = position == Count() - 1;
    if (repeatMode == 1) {
        Stop();
        Play();
    } else if (playMode == 0 || (isLast && repeatMode == 0)) {
        StopAndAct();
    } else {
        SetPosition(isLast ? 0 : position + 1);
        const int next = position >= 0 ? order[static_cast<std::size_t>(position)] : -1;
        if (next >= 0 && next < Count())
            selected = next;
        PlayItem(next);
    }
}

} // namespace zentaro::live
