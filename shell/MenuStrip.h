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
    /// Between two captions, in pixels.
    int Gap() const { return m_gap; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// In some languages the captions want more room than a narrow window has: they come closer, then get smaller.
    void Fit();

    int m_gap = 0;
};

} // namespace zentaro
