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

void SliderAccessible::TellValue(QWidget& widget, const SliderFace& face)
{
    QAccessibleValueChangeEvent change(&widget, face.Value());
    QAccessible::updateAccessibility(&change);
    if (face.ValueText().isEmpty())
        return;
    QAccessibleEvent meaning(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&meaning);
}

SliderAccessible::SliderAccessible(QWidget* widget, SliderFace& face)
    : QAccessibleWidget(widget, face.Role())
    , m_face(face)
{
}

void* SliderAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString SliderAccessible::text(QAccessible::Text kind) const
{
    // The buses have no text for a value, so it is told as what describes the slider.
    const bool isMeaning = kind == QAccessible::Value || kind == QAccessible::Description;
    if (const auto meaning = m_face.ValueText(); isMeaning && !meaning.isEmpty())
        return meaning;
    return QAccessibleWidget::text(kind);
}

void SliderAccessible::setCurrentValue(const QVariant& value)
{
    m_face.ChooseValue(std::clamp(value.toDouble(), 0.0, m_face.Maximum()));
}

} // namespace zentaro
