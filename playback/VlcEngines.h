#pragma once

#include "playback/VlcItems.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace zentaro {

/// Makes engines that play through libVLC 3. UI thread only.
class VlcEngines final : public EngineFactory {
public:
    /// `logPath`: the file for the library's messages.
    VlcEngines(VideoFrame& frame, const std::string& logPath)
        : m_items(frame, logPath)
    {
    }

    Result<void> Prepare() override { return m_items.Prepare(); }
    void MakeReady(const MediaLocation& location, const EngineOptions& options) override
    {
        m_items.MakeReady(location, options);
    }
    void Forget() override { m_items.Forget(); }
    std::unique_ptr<Engine> Create() override;
    void OnOver(std::function<void()> hear) { m_items.OnOver(std::move(hear)); }
    void SetSubtitleScale(int percent) override { m_items.SetSubtitleScale(percent); }

private:
    VlcItems m_items;
};

} // namespace zentaro
