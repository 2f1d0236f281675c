#include "app/FocusAreas.h"

#include "app/ContentPane.h"
#include "app/ControlPanel.h"
#include "app/WindowFrame.h"
#include "playback/VideoFrame.h"
#include "playlist/FancyList.h"
#include "shell/FullScreenBar.h"
#include "shell/SkinButton.h"

#include <QApplication>
#include <QFocusEvent>

#include <utility>

namespace zentaro {

namespace {

constexpr int kAreas = 4;

bool IsByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

FocusAreas::FocusAreas(const Parts& parts)
    : QObject(&parts.window)
    , m_parts(parts)
{
    for (auto* const part : std::initializer_list<QWidget*>{ &parts.video, &parts.window })
        part->installEventFilter(this);
}

QWidget* FocusAreas::EntryOf(Area area) const
{
    const auto seen = [](QWidget& widget) { return widget.isVisible() && widget.isEnabled() ? &widget : nullptr; };
    const bool fills = m_parts.window.FillsScreen();
    switch (area) {
    case Area::Video:
        return seen(m_parts.video);
    case Area::List:
        return fills ? nullptr : seen(m_parts.list);
    case Area::Controls:
        return seen(m_parts.controls.At(Button::Play));
    case Area::TitleButtons:
        return fills ? nullptr : seen(m_parts.controls.At(Button::Minimize));
    }
    return nullptr;
}

FocusAreas::Area FocusAreas::AreaOfFocus() const
{
    const auto* const focus = QApplication::focusWidget();
    if (focus == &m_parts.list || (focus != nullptr && m_parts.list.isAncestorOf(focus)))
        return Area::List;
    if (focus == nullptr || focus == &m_parts.video || focus == &m_parts.window)
        return Area::Video;
    for (const auto button : { Button::Minimize, Button::Maximize, Button::Close }) {
        if (focus == &m_parts.controls.At(button))
            return Area::TitleButtons;
    }
    return Area::Controls;
}

void FocusAreas::Step(int direction)
{
    if (m_parts.window.FillsScreen())
        m_parts.bar.Wake();
    auto area = static_cast<int>(AreaOfFocus());
    for (int i = 0; i < kAreas; ++i) {
        area = (area + direction + kAreas) % kAreas;
        if (auto* const entry = EntryOf(static_cast<Area>(area))) {
            entry->setFocus(direction > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}

void FocusAreas::GoHome()
{
    QWidget* const home = m_parts.video.isVisible() ? static_cast<QWidget*>(&m_parts.video) : &m_parts.list;
    if (home->isVisible())
        home->setFocus(Qt::OtherFocusReason);
}

void FocusAreas::Order()
{
    m_parts.controls.OrderFocus(m_parts.content.OrderFocus());
}

bool FocusAreas::eventFilter(QObject* watched, QEvent* event)
{
    const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (!isFocus)
        return false;
    if (watched == &m_parts.window) {
        if (event->type() == QEvent::FocusIn)
            QMetaObject::invokeMethod(this, &FocusAreas::GoHome, Qt::QueuedConnection);
        return false;
    }
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // A menu or another window takes the focus only for a while.
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason || reason == Qt::MenuBarFocusReason)
        return false;
    const bool isMarked = event->type() == QEvent::FocusIn && IsByKey(reason);
    if (std::exchange(m_isVideoMarked, isMarked) != isMarked)
        m_parts.window.update();
    return false;
}

} // namespace zentaro
