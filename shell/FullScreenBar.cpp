#include "shell/FullScreenBar.h"

#include "shell/SkinButton.h"
#include "shell/Style.h"

#include <QApplication>
#include <QCursor>
#include <QPainter>

#include <chrono>
#include <utility>

namespace zentaro {

namespace {

using namespace std::chrono_literals;

constexpr auto kRest = 2s;

} // namespace

FullScreenBar::FullScreenBar(Skin& skin, std::function<SkinButtons()> states, QWidget* parent)
    : QWidget(parent)
    , m_skin(skin)
    , m_states(std::move(states))
    , m_leave(new SkinButton(tr("Leave Full Screen"), tr("Esc"), this))
{
    setObjectName("FullScreenBar");
    setAccessibleName(tr("Full screen controls"));
    setCursor(Qt::ArrowCursor);
    m_rest.setSingleShot(true);
    m_rest.setInterval(kRest);
    connect(&m_rest, &QTimer::timeout, this, &FullScreenBar::Rest);
    hide();
}

void FullScreenBar::Begin()
{
    m_serves = true;
    m_pointer = QCursor::pos();
    emit PointerWanted(false);
}

void FullScreenBar::End()
{
    m_serves = false;
    m_rest.stop();
    hide();
    emit PointerWanted(true);
}

void FullScreenBar::Place(const QRect& place)
{
    m_place = place;
    setGeometry(place);
}

void FullScreenBar::PointerSeen(const QPoint& global)
{
    // Windows that come and go under a still pointer are told of it, too.
    const bool moved = std::exchange(m_pointer, global) != global;
    if (moved || isVisible())
        Wake();
}

void FullScreenBar::Wake()
{
    if (!m_serves)
        return;
    if (!isVisible()) {
        show();
        // A window that was never shown forgets a size that it was given.
        setGeometry(m_place);
        raise();
        emit PointerWanted(true);
    }
    m_rest.start();
}

void FullScreenBar::Rest()
{
    // Only keys give the focus to something on it: who has brought it there is not done.
    const auto* const focus = QApplication::focusWidget();
    const bool isUsed = rect().contains(mapFromGlobal(QCursor::pos())) || QApplication::mouseButtons() != Qt::NoButton
        || (focus != nullptr && isAncestorOf(focus));
    if (isUsed) {
        m_rest.start();
        return;
    }
    hide();
    m_pointer = QCursor::pos();
    emit PointerWanted(false);
}

void FullScreenBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient shade(0, 0, 0, height());
    shade.setColorAt(0, style::kBaseLight);
    shade.setColorAt(1, style::kBase);
    painter.fillRect(rect(), shade);
    painter.fillRect(0, 0, width(), 1, style::kHairline);
    const BarLayout layout(width());
    auto buttons = m_states();
    buttons.StateOf(Button::FullScreen) = m_leave->State();
    buttons.FadeOf(Button::FullScreen) = m_leave->StateFade();
    const auto hidden = buttons.isMuted ? Button::SoundOn : Button::SoundOff;
    for (std::size_t i = 0; i < kButtonCount; ++i) {
        const auto button = static_cast<Button>(i);
        if (button == hidden || layout.ButtonRect(button).width <= 0)
            continue;
        const auto middle = m_skin.Middle(ButtonImage(button, ButtonState::Normal));
        m_skin.DrawButton(painter, button, buttons, layout.PictureRect(button, middle));
    }
}

} // namespace zentaro
