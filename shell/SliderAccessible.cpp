#include "shell/SliderAccessible.h"

#include <QWidget>

#include <algorithm>

namespace zentaro {

namespace {

QAccessibleInterface* MakeSlider(const QString&, QObject* object)
{
    auto* const face = dynamic_cast<SliderFace*>(object);
    return face != nullptr ? new SliderAccessible(static_cast<QWidget*>(object), *face) : nullptr;
}

} // namespace

void SliderAccessible::Install()
{
    // Qt ignores a factory that is installed already.
    QAccessible::installFactory(&MakeSlider);
}

SliderAccessible::SliderAccessible(QWidget* widget, SliderFace& face)
    : QAccessibleWidget(widget, QAccessible::Slider)
    , m_face(face)
{
}

void* SliderAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

void SliderAccessible::setCurrentValue(const QVariant& value)
{
    m_face.ChooseValue(std::clamp(value.toDouble(), 0.0, 100.0));
}

} // namespace zentaro
