#pragma once

#include "playback/Engine.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zentaro {

/// What the engines were told, and what they answer.
struct EngineTrace {
    int alive = 0;
    int mostAlive = 0;
    std::vector<std::string> played; ///< a location in brackets
    int plays = 0;
    std::vector<DiscKey> keys;
    int title = 0;
    EngineOptions options;
    int volume = -1;
    bool muted = false;
    double rateSet = 0;
    int audioDelay = 0;
    int stops = 0;
    int state = Engine::kPlaying;
    double time = 0;
    double length = 0;
    bool hasVideo = true;
    bool isSeen = true;
    bool takesItems = true;
    std::function<bool(const std::string& file)> takeSnapshot = [](const std::string&) { return true; };
};

class FakeEngine : public Engine {
public:
    explicit FakeEngine(EngineTrace& trace)
        : m_trace(trace)
    {
        m_trace.mostAlive = std::max(m_trace.mostAlive, ++m_trace.alive);
    }
    ~FakeEngine() override { --m_trace.alive; }
    void SetVolume(int percent) override { m_trace.volume = percent; }
    void SetMute(bool muted) override { m_trace.muted = muted; }
    double Length() override { return m_trace.length; }
    double Time() override { return m_trace.time; }
    double Position() override { return m_trace.length > 0 ? m_trace.time / m_trace.length : 0; }
    void SetPosition(double position) override { m_trace.time = position * m_trace.length; }
    int AudioDelay() override { return m_trace.audioDelay; }
    void SetAudioDelay(int milliseconds) override { m_trace.audioDelay = milliseconds; }
    int State() override { return m_trace.state; }
    double Rate() override { return m_trace.rateSet > 0 ? m_trace.rateSet : 1; }
    void SetRate(double rate) override { m_trace.rateSet = rate; }
    bool HasVideoOutput() override { return m_trace.hasVideo; }
    void SetSeen(bool seen) override { m_trace.isSeen = seen; }
    bool TakeSnapshot(const std::string& file) override { return m_trace.takeSnapshot(file); }
    void Add(const MediaLocation& location, const EngineOptions& options) override
    {
        m_trace.played.push_back(location.isLocation ? "<" + location.text + ">" : location.text);
        m_trace.options = options;
        m_trace.audioDelay = 0;
        m_trace.rateSet = 0;
    }
    void Play() override
    {
        ++m_trace.plays;
        m_trace.state = m_trace.state == kPaused ? kPlaying : m_trace.state;
    }
    void Navigate(DiscKey key) override { m_trace.keys.push_back(key); }
    std::vector<DiscPart> Titles() override { return {}; }
    int Title() override { return m_trace.title; }
    void SetTitle(int) override { }
    std::vector<DiscPart> Chapters() override { return {}; }
    int Chapter() override { return -1; }
    void SetChapter(int) override { }
    void TogglePause() override { m_trace.state = m_trace.state == kPaused ? kPlaying : kPaused; }
    void SetPause(bool paused) override { m_trace.state = paused ? kPaused : kPlaying; }
    void Stop() override { ++m_trace.stops; }
    int ItemCount() override { return m_trace.takesItems ? 1 : 0; }

private:
    EngineTrace& m_trace;
};

class FakeEngines : public EngineFactory {
public:
    Result<void> Prepare() override
    {
        if (!missing.empty())
            return Error{ 126, missing };
        return {};
    }
    void MakeReady(const MediaLocation& location, const EngineOptions&) override { ready += location.text + " "; }
    void Forget() override { ready += "none "; }
    std::unique_ptr<Engine> Create() override { return std::make_unique<FakeEngine>(trace); }
    EngineTrace trace;
    std::string missing; ///< says that there is no engine
    std::string ready;   ///< what was to be made ready, one after the other
};

} // namespace zentaro
