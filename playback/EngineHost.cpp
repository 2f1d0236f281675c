#include "playback/EngineHost.h"

#include <algorithm>
#include <utility>

namespace zentaro {

EngineHost::EngineHost(EngineFactory& factory)
    : m_factory(factory)
{
}

void EngineHost::AddVLCPLayer()
{
    m_engine = m_factory.Create();
    m_expected.reset(); // the engine has taken it, or it was not meant
    m_fullScreen = false;
    if (!m_engine)
        return;
    m_engine->SetVolume(m_volume * m_boost / 100);
    m_engine->SetMute(m_muted);
}

void EngineHost::RemoveVLCPlayer()
{
    m_engine.reset();
}

void EngineHost::Expect(std::optional<ExpectedItem> item)
{
    if (item == m_expected)
        return;
    m_expected = std::move(item);
    if (m_expected)
        m_factory.MakeReady(m_expected->location, m_expected->options);
    else
        m_factory.Forget();
}

void EngineHost::SetVolume(int percent)
{
    m_volume = std::clamp(percent, 0, 100);
    // Whoever turns it down wants it softer.
    m_boost = m_volume < 100 ? 100 : m_boost;
    if (m_engine)
        m_engine->SetVolume(m_volume * m_boost / 100);
}

void EngineHost::SetBoost(int percent)
{
    m_boost = std::clamp(percent, 100, kMostBoost);
    SetVolume(m_boost > 100 ? 100 : m_volume);
}

void EngineHost::ToggleMute()
{
    // The engine's own reading lags behind or lies; the flag here is the truth.
    m_muted = !m_muted;
    if (m_engine)
        m_engine->SetMute(m_muted);
}

void EngineHost::SetFullScreen(bool fullScreen)
{
    m_fullScreen = fullScreen;
    if (onFullScreen)
        onFullScreen(fullScreen);
}

void EngineHost::ToggleFullScreen()
{
    SetFullScreen(!m_fullScreen);
}

} // namespace zentaro
