#pragma once

#include <QVariantAnimation>

#include <functional>

class QWidget;

namespace zentaro {

/// A share from 0 to 1 that follows where it is sent in less than a tenth of a second: at once while its widget is
/// hidden, and where the desktop wants nothing to move.
class Fade {
public:
    /// Both must outlive it. `changed` runs with every step.
    Fade(QWidget& widget, std::function<void()> changed);

    void Go(double from, double to);
    double Share() const { return m_share; }

private:
    void Show(double share);

    QWidget& m_widget;
    std::function<void()> m_changed;
    QVariantAnimation m_motion;
    double m_share = 0;
};

} // namespace zentaro
