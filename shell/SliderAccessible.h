#pragma once

#include <QAccessibleWidget>

namespace zentaro {

/// A widget that is used as a slider.
class SliderFace {
public:
    virtual double Value() const = 0;
    /// As if the user had chosen it.
    virtual void ChooseValue(double value) = 0;
    /// Values begin at 0.
    virtual double Maximum() const { return 100; }
    virtual double Step() const { return 1; }
    /// What the value means, where the number alone does not say it.
    virtual QString ValueText() const { return {}; }
    virtual QAccessible::Role Role() const { return QAccessible::Slider; }

protected:
    ~SliderFace() = default;
};

/// The slider as a screen reader meets it.
class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Makes the tool kit ask us for every SliderFace. Calling it again changes nothing.
    static void Install();
    /// The value was changed, and not by time alone.
    static void TellValue(QWidget& widget, const SliderFace& face);

    SliderAccessible(QWidget* widget, SliderFace& face);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QVariant currentValue() const override { return m_face.Value(); }
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return m_face.Maximum(); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return m_face.Step(); }

private:
    SliderFace& m_face;
};

} // namespace zentaro
