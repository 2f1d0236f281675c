#include "playlist/LoadThumb.h"

#include "base/Numbers.h"

#include <array>

namespace zentaro {

namespace {

Notice DuplicateNotice(const AddRequest& request)
{
    return { "\"" + request.title + "\" is already in your playlist", NoticeIcon::Information, "Media Player" };
}

Notice CannotOpenNotice(const AddRequest& request, const std::string& reason)
{
    return { "Cannot open file <" + request.path + ">\r\n" + reason };
}

std::string TwoDigits(int value)
{
    return (value < 10 ? "0" : "") + std::to_string(value);
}

std::string DurationText(double duration)
{
    const int seconds = RoundHalfEven(duration);
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 % 60;
    const auto tail = ":" + TwoDigits(seconds % 60);
    return hours > 0 ? std::to_string(hours) + ":" + TwoDigits(minutes) + tail : std::to_string(minutes) + tail;
}

std::string FileSizeText(std::int64_t bytes)
{
    constexpr std::array units = { " bytes", " KB", " MB", " GB", " TB" };
    if (bytes < 1000)
        return std::to_string(bytes) + units[0];
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    // 999.95 would already read as 1000.0.
    while (value >= 999.95 && unit + 1 < units.size()) {
        value /= 1000;
        ++unit;
    }
    const int tenths = RoundHalfEven(value * 10);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + units[unit];
}

AddOutcome TryAppend(
    Playlist& playlist, AddHost& host, const AddRequest& request, const std::function<Inspection()>& inspect)
{
    if (playlist.IsInPlaylist(request.path)) {
        host.ShowNotice(DuplicateNotice(request));
        return AddOutcome::Duplicate;
    }
    const auto inspection = inspect();
    host.InspectionTaken(inspection);
    for (const auto& notice : inspection.notices)
        host.ShowNotice(notice);
    if (!inspection.ok) {
        host.ShowNotice(CannotOpenNotice(request, inspection.errorText));
        return AddOutcome::Refused;
    }
    playlist.Append(
        { request.title, request.path, inspection.thumbnail, inspection.mediaInfo }, DetailText(inspection.facts));
    return AddOutcome::Added;
}

void PlayLastEntry(Playlist& playlist, AddHost& host, bool playFlag)
{
    const int last = playlist.Count() - 1;
    playlist.List().SetSelectedItem(last);
    host.PlayItem(last, playFlag);
    // Starting an item pumps messages, and a click below the last row takes the selection away.
    if (playlist.List().SelectedItem() >= 0)
        return;
    playlist.List().SetSelectedItem(0);
    if (playlist.Count() <= 1)
        host.PlayItem(0, playFlag);
}

} // namespace

std::string DetailText(const MediaFacts& facts)
{
    std::string text;
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : " \u00B7 ") + part; };
    if (facts.duration > 0)
        add(DurationText(facts.duration));
    if (facts.width > 0 && facts.height > 0)
        add(std::to_string(facts.width) + " \u00D7 " + std::to_string(facts.height));
    if (facts.fileSize > 0)
        add(FileSizeText(facts.fileSize));
    return text;
}

AddOutcome LoadThumb(
    Playlist& playlist, AddHost& host, const AddRequest& request, const std::function<Inspection()>& inspect)
{
    const auto outcome = TryAppend(playlist, host, request, inspect);
    if (outcome == AddOutcome::Refused)
        return outcome;
    if (request.playNow)
        PlayLastEntry(playlist, host, request.playFlag);
    playlist.BuildOrder(host.PlayMode());
    if (outcome == AddOutcome::Added)
        host.EntryAdded();
    return outcome;
}

} // namespace zentaro
