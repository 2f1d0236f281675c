#include "inspect/clsSource.h"

#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace zentaro {

namespace {

/// Visits what is kept of a stream, in the order of its dictionary.
void VisitStream(auto& info, auto&& visit)
{
    visit("Type", info.Type);
    visit("Index", info.Index);
    visit("Compression", info.Compression);
    visit("BitRate", info.BitRate);
    visit("FPS", info.FPS);
    visit("Width", info.Width);
    visit("Height", info.Height);
    visit("Channels", info.Channels);
    visit("SampleRate", info.SampleRate);
    visit("Delay", info.Delay);
    visit("SourceAR", info.SourceAR);
    visit("DisplayAR", info.DisplayAR);
    visit("Interlaced", info.Interlaced);
}

} // namespace

Dictionary clsSource::Serialize() const
{
    Dictionary data;
    data.Set("FileName", m_fileName);
    data.Set("Duration", m_duration);
    data.Set("StartTime", m_startTime);
    data.Set("TimeStamp", m_timeStamp);
    data.Set("IsAVI", m_isAvi);
    for (std::size_t i = 0; i < m_streams.size(); ++i) {
        Dictionary stream;
        VisitStream(m_streams[i], [&](std::string_view key, const auto& value) { stream.Set(key, value); });
        data.Set("Stream" + std::to_string(i), std::move(stream));
    }
    return data;
}

void clsSource::UnSerialize(const Dictionary& Data)
{
    *this = clsSource(std::move(m_context));
    m_fileName = Data.Get<std::string>("FileName");
    m_duration = Data.Get<float>("Duration");
    m_timeStamp = Data.Get<std::string>("TimeStamp");
    m_isAvi = Data.Get<bool>("IsAVI");
    for (const auto& [key, value] : Data.Entries()) {
        const auto* const stream = std::get_if<Dictionary>(&value);
        if (!key.starts_with("Stream") || !stream)
            continue;
        auto& info = m_streams.emplace_back();
        VisitStream(info, [&](std::string_view name, auto& field) {
            field = stream->Get<std::remove_reference_t<decltype(field)>>(name);
        });
    }
    m_hints.resize(m_streams.size());
}

} // namespace zentaro
