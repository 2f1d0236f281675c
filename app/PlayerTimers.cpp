#include "app/PlayerTimers.h"

#include "app/Player.h"

#include <chrono>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kSettling = 100ms;

void Run(QTimer& timer, bool runs)
{
    if (runs != timer.isActive())
        runs ? timer.start() : timer.stop();
}

} // namespace

PlayerTimers::PlayerTimers(Player& player, QObject* parent)
    : QObject(parent)
    , m_player(player)
{
    m_tmrMovie.setInterval(500ms);
    connect(&m_tmrMovie, &QTimer::timeout, this, &PlayerTimers::OnMovie);
    m_tmrRewind.setInterval(10ms);
    m_tmrRewind.setTimerType(Qt::PreciseTimer);
    connect(&m_tmrRewind, &QTimer::timeout, this, [this] { m_player.Transporting().OnRewindTick(); });
    m_tmrCheckDVD.setInterval(1000ms);
    connect(&m_tmrCheckDVD, &QTimer::timeout, this, [this] { m_player.Discs().OnDVDTick(); });
    m_settled.setSingleShot(true);
    m_settled.setInterval(kSettling);
    connect(&m_settled, &QTimer::timeout, this, [this] { settled(); });
}

void PlayerTimers::OnMovie()
{
    m_player.OnPositionTick();
    // The last tick of an item has shown its end and let the discs be watched; there is nothing more to read.
    Run(m_tmrMovie, m_player.NeedsTicks());
    Follow();
}

void PlayerTimers::Follow()
{
    if (m_player.NeedsTicks())
        Run(m_tmrMovie, true);
    Run(m_tmrRewind, m_player.State().isRewinding);
    Run(m_tmrCheckDVD, m_player.Discs().IsPolling());
    if (!m_settled.isActive())
        m_settled.start();
}

} // namespace zentaro
