#pragma once

#include <QMenuBar>

namespace zentaro {

/// The captions over the window's menu strip, whose picture shows through. They are opened and walked like any menu
/// bar.
class MenuStrip : public QMenuBar {
    Q_OBJECT

public:
    explicit MenuStrip(QWidget* parent);

    /// Opens the first menu, for the key that does so everywhere.
    void OpenFirst();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zentaro
