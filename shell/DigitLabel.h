#pragma once

#include <QLabel>

namespace zentaro {

/// A line of plain text whose digits all take the same room, so that a running time does not tremble.
class DigitLabel : public QLabel {
    Q_OBJECT

public:
    explicit DigitLabel(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int WidthOf(QChar c) const;
};

} // namespace zentaro
