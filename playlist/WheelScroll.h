#pragma once

#include "playlist/FancyListLayout.h"

#include <QVariantAnimation>

class QWheelEvent;

namespace zentaro {

/// The wheel over the list: a notch goes one row on, smoothly; a touch pad moves the list as far as the fingers go.
class WheelScroll : public QObject {
    Q_OBJECT
public:
    explicit WheelScroll(FancyListLayout& layout);

    void Turn(const QWheelEvent& event);
    /// The list is moved by other hands.
    void Stop() { m_way.stop(); }

private:
    FancyListLayout& m_layout;
    QVariantAnimation m_way;
    double m_rest = 0; // px that are less than one
};

} // namespace zentaro
