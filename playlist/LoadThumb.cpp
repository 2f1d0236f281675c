#include "playlist/LoadThumb.h"

#include "base/Numbers.h"
#include "base/Words.h"

#include <array>
#include <utility>

namespace zentaro {

namespace {

Notice DuplicateNotice(const AddRequest& request)
{
    return { Words("\"%1\" is already in your playlist", { request.title }), NoticeIcon::Information, "Media Player" };
}

std::string TwoDigits(int value)
{
    return (value < 10 ? "0" : "") + std::to_string(value);
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

} // namespace

Notice CannotOpenNotice(const std::string& path, const std::string& reason)
{
    return { Words("Cannot open file <%1>", { path }) + "\r\n" + reason };
}

std::string DurationText(double length)
{
    const int seconds = RoundHalfEven(length);
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 % 60;
    const auto tail = ":" + TwoDigits(seconds % 60);
    return hours > 0 ? std::to_string(hours) + ":" + TwoDigits(minutes) + tail : std::to_string(minutes) + tail;
}

std::string DetailText(const MediaFacts& facts)
{
    std::string text;
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : " \u00B7 ") + part; };
    if (facts.width <= 0) {
        for (const auto& part : { facts.artist, facts.album }) {
            if (!part.empty())
                add(part);
        }
    }
    if (facts.duration > 0)
        add(DurationText(facts.duration));
    if (facts.width > 0 && facts.height > 0)
        add(std::to_string(facts.width) + " \u00D7 " + std::to_string(facts.height));
    if (facts.fileSize > 0)
        add(FileSizeText(facts.fileSize));
    return text;
}

LoadThumb::LoadThumb(
    Playlist& playlist, InspectionState& inspected, AddHost& host, AddRequest request, Inspection inspection)
    : m_playlist(playlist)
    , m_inspected(inspected)
    , m_host(host)
    , m_request(std::move(request))
    , m_inspection(std::move(inspection))
{
    if (playlist.IsInPlaylist(m_request.path)) {
        m_outcome = AddOutcome::Duplicate;
        if (!host.PlaysListedInPlace())
            m_boxes.push_back(DuplicateNotice(m_request));
        return;
    }
    inspected.TakeOver(
        { m_inspection.ok, m_inspection.errorText, m_inspection.mediaInfo, m_inspection.thumbnail, {}, {} });
    m_boxes = m_inspection.notices;
    if (!m_inspection.ok) {
        m_outcome = AddOutcome::Refused;
        m_boxes.push_back(CannotOpenNotice(m_request.path, m_inspection.errorText));
    }
}

void LoadThumb::TellDecision()
{
    if (const auto tell = std::exchange(m_request.onDecided, nullptr))
        tell(m_outcome);
}

void LoadThumb::Finish()
{
    // Another way can have brought the file in while its box was open.
    if (m_outcome == AddOutcome::Added && m_playlist.IsInPlaylist(m_request.path))
        m_outcome = AddOutcome::Duplicate;
    if (m_outcome == AddOutcome::Added)
        m_entry = m_playlist.Append({ m_request.title, m_request.path, m_inspection.thumbnail, m_inspection.mediaInfo,
                                        0, m_inspection.facts, m_inspection.isPictureKept },
            DetailText(m_inspection.facts));
    if (m_outcome != AddOutcome::Refused) {
        if (m_request.playNow)
            PlayLastEntry();
        m_playlist.BuildOrder(m_host.PlayMode());
    }
    if (m_request.selectsFirst && m_playlist.List().SelectedItem() < 0)
        m_playlist.List().SetSelectedItem(0);
    if (m_outcome == AddOutcome::Added)
        m_host.EntryAdded();
    TellDecision();
}

void LoadThumb::TakePicture(Inspection inspection)
{
    m_boxes = std::move(inspection.notices);
    if (m_entry == 0 || !inspection.ok)
        return;
    m_inspected.LastStreamPicture = inspection.thumbnail;
    m_playlist.SetThumbnail(m_entry, std::move(inspection.thumbnail), inspection.isPictureKept);
    m_host.ThumbnailChanged();
}

void LoadThumb::PlayLastEntry()
{
    const auto listed = m_host.PlaysListedInPlace() ? m_playlist.IndexOfPath(m_request.path) : std::nullopt;
    const int row = listed.value_or(m_playlist.Count() - 1);
    m_playlist.List().SetSelectedItem(row);
    m_host.PlayItem(row, m_request.playFlag);
}

} // namespace zentaro
