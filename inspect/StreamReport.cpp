#include "inspect/StreamReport.h"

#include "inspect/TextValues.h"

#include <cmath>

namespace zentaro {

namespace {

void AppendAudio(std::string& text, const StreamInfo& info)
{
    text += "\r\nChannels    : " + std::to_string(info.Channels);
    text += "\r\nSamplerate  : " + std::to_string(info.SampleRate) + " Hz";
    text += "\r\nCompression : " + info.Compression;
}

void AppendVideo(std::string& text, const StreamInfo& info)
{
    text += "\r\nWidth       : " + std::to_string(info.Width) + " pixels";
    text += "\r\nHeight      : " + std::to_string(info.Height) + " pixels";
    text += "\r\nFramerate   : " + FloatText(info.FPS);
    text += "\r\nCompression : " + info.Compression;
    text += "\r\nSource AR   : " + AspectName(info.SourceAR);
    text += "\r\nDIsplay AR  : " + AspectName(info.DisplayAR);
}

} // namespace

std::string AspectName(float aspect)
{
    if (aspect == static_cast<float>(16.0 / 9.0))
        return "Widescreen (16:9)";
    if (aspect == static_cast<float>(4.0 / 3.0))
        return "Normal (4:3)";
    if (aspect == 2.21F)
        return "Panavision (2.21:1)";
    return FloatText(static_cast<float>(std::nearbyint(static_cast<double>(aspect) * 100) / 100)) + ":1";
}

std::string StreamReport(
    const std::string& fileName, float duration, float startTime, const std::vector<StreamInfo>& streams)
{
    std::string text = "Stream information of " + fileName;
    text += "\r\nDuration  : " + FloatText(duration);
    text += "\r\nStarttime : " + FloatText(startTime);
    for (std::size_t i = 0; i < streams.size(); ++i) {
        const bool audio = streams[i].Type == kAudioStream;
        text += "\r\nStream " + std::to_string(i) + (audio ? " (Audio)" : " (Video)");
        if (audio)
            AppendAudio(text, streams[i]);
        else
            AppendVideo(text, streams[i]);
        text += "\r\nBitRate     : " + std::to_string(streams[i].BitRate) + " Kbit\\s";
    }
    return text;
}

} // namespace zentaro
