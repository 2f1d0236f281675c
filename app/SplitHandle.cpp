#include "app/SplitHandle.h"

#include "base/Numbers.h"
#include "shell/HelpTopic.h"
#include "shell/Style.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSplitter>

namespace zentaro {

namespace {

constexpr int kStep = 16; // px

} // namespace

SplitHandle::SplitHandle(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
{
    SliderAccessible::Install();
    setObjectName("Splitter");
    setAccessibleName(tr("Divider between video and playlist"));
    SetHelpTopic(*this, "playlist");
    setFocusPolicy(Qt::TabFocus);
}

bool SplitHandle::UsesKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

double SplitHandle::Value() const
{
    return orientation() == Qt::Horizontal ? x() : y();
}

double SplitHandle::Maximum() const
{
    return orientation() == Qt::Horizontal ? splitter()->width() - width() : splitter()->height() - height();
}

double SplitHandle::Step() const
{
    return kStep;
}

void SplitHandle::ChooseValue(double value)
{
    moveSplitter(RoundHalfEven(value));
    SliderAccessible::TellValue(*this, *this);
}

void SplitHandle::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return ChooseValue(Value() - kStep);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return ChooseValue(Value() + kStep);
    case Qt::Key_Home:
        return ChooseValue(0);
    case Qt::Key_End:
        return ChooseValue(Maximum());
    default:
        QSplitterHandle::keyPressEvent(event);
    }
}

void SplitHandle::focusInEvent(QFocusEvent* event)
{
    QSplitterHandle::focusInEvent(event);
    update();
}

void SplitHandle::focusOutEvent(QFocusEvent* event)
{
    QSplitterHandle::focusOutEvent(event);
    update();
}

void SplitHandle::paintEvent(QPaintEvent* event)
{
    QSplitterHandle::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style::kLight);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

} // namespace zentaro
