#pragma once

#include "playlist/AddQueue.h"

#include <QAbstractButton>
#include <QWidget>

namespace zentaro {

/// A quiet text button: faint until the pointer or the focus is on it.
class QuietButton : public QAbstractButton {
public:
    QuietButton(const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The slim line at the bottom of the list while files are being added: how far it is, and a way to stop it.
class AddProgressLine : public QWidget {
    Q_OBJECT
public:
    explicit AddProgressLine(QWidget* parent);

    void SetProgress(const AddProgress& progress);
    QSize sizeHint() const override;

signals:
    void Cancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    AddProgress m_progress;
    QuietButton* m_cancel;
};

} // namespace zentaro
