#pragma once

#include "playback/VolumeSlider.h"
#include "shell/SliderAccessible.h"

#include <QWidget>

namespace zentaro {

/// The volume slider on the screen.
class VolumeKnob : public QWidget, public SliderFace {
    Q_OBJECT

public:
    /// The slider must outlive the widget.
    VolumeKnob(VolumeSlider& slider, QWidget* parent);

    /// The wheel was turned, here or over something that is part of the same volume; in eighths of a degree.
    void Turn(int eighths);

    double Value() const override { return m_slider.Volume(); }
    void ChooseValue(double value) override;

signals:
    /// 0 to 100.
    void VolumeChosen(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose(std::optional<int> percent);

    VolumeSlider& m_slider;
};

} // namespace zentaro
