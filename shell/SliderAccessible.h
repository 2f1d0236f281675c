#pragma once

#include <QAccessibleWidget>

namespace zentaro {

/// A widget that is used as a slider.
class SliderFace {
public:
    virtual double Value() const = 0; ///< 0 to 100
    /// As if the user had chosen it.
    virtual void ChooseValue(double value) = 0;

protected:
    ~SliderFace() = default;
};

/// The slider as a screen reader meets it.
class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Makes the tool kit ask us for every SliderFace. Calling it again changes nothing.
    static void Install();

    SliderAccessible(QWidget* widget, SliderFace& face);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override { return m_face.Value(); }
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    SliderFace& m_face;
};

} // namespace zentaro
