#include "shell/MenuStrip.h"

#include "shell/Style.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>

namespace zentaro {

namespace {

constexpr int kItemHeight = 20;     // px
constexpr double kCornerRadius = 4; // px
constexpr int kGap = 6;             // px
constexpr int kSmallestText = 10;   // px

} // namespace

MenuStrip::MenuStrip(QWidget* parent)
    : QMenuBar(parent)
{
    setObjectName("SmartMenuXP1");
    setAccessibleName(tr("Menu"));
    // Menu bars of the desktop's own would take it out of the window.
    setNativeMenuBar(false);
    setCursor(Qt::ArrowCursor);
}

void MenuStrip::OpenFirst()
{
    setActiveAction(actions().value(0));
}

void MenuStrip::Fit()
{
    auto text = QApplication::font();
    const auto take = [&](int gap) {
        m_gap = gap;
        setFont(text);
        // The gap alone would not have them measured anew.
        QEvent change(QEvent::FontChange);
        changeEvent(&change);
        return sizeHint().width() <= width();
    };
    bool fits = take(kGap) || take(0);
    for (int size = text.pixelSize() - 1; !fits && size >= kSmallestText; --size) {
        text.setPixelSize(size);
        fits = take(0);
    }
}

void MenuStrip::resizeEvent(QResizeEvent* event)
{
    Fit();
    QMenuBar::resizeEvent(event);
}

void MenuStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (auto* const action : actions()) {
        QRect place = actionGeometry(action);
        place.setTop((height() - kItemHeight) / 2);
        place.setHeight(kItemHeight);
        const bool isOpen = action->menu() != nullptr && action->menu()->isVisible();
        if (isOpen || action == activeAction()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(isOpen ? style::kSelection : style::kRaisedHigh);
            painter.drawRoundedRect(place, kCornerRadius, kCornerRadius);
        }
        painter.setPen(!isOpen ? style::kText : style::HasHighContrast() ? style::kSelected : style::kLight);
        painter.drawText(place, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, action->text());
    }
}

} // namespace zentaro
