#pragma once

#include "shell/SliderAccessible.h"
#include "shell/VolumeSlider.h"

#include <QWidget>

namespace zentaro {

/// The volume slider on the screen.
class VolumeKnob : public QWidget, public SliderFace {
    Q_OBJECT

public:
    explicit VolumeKnob(QWidget* parent);

    /// 0 to 100.
    void Show(int percent);

    double Value() const override { return m_slider.Volume(); }
    void ChooseValue(double value) override;

signals:
    /// 0 to 100.
    void VolumeChosen(int percent);
    /// A key makes it one step louder (1) or quieter (-1).
    void StepChosen(int direction);
    /// The wheel, in eighths of a degree.
    void Turned(int eighths);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PointAt(double x);

    VolumeSlider m_slider;
    int m_toldVolume = 100; // what is shown and read out
};

} // namespace zentaro
