#pragma once

#include <QIcon>
#include <QWidget>

namespace zentaro {

/// The sign of being paused: over the icon of the window that it lies on, and on the icon that the taskbar shows.
class PauseMark : public QWidget {
    Q_OBJECT

public:
    explicit PauseMark(QWidget* window);

    void Show(bool isPaused);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isPaused = false;
    QIcon m_icon; // the window's own
};

} // namespace zentaro
