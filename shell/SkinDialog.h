#pragma once

#include "shell/Skin.h"

#include <QDialog>
#include <QPushButton>
#include <QTabWidget>

class QLabel;

namespace zentaro {

class SkinButton;

/// A dialog in the main window's look: without a frame of the system, moved by its title bar, closed by its cross.
class SkinDialog : public QDialog {
    Q_OBJECT

public:
    /// The skin outlives the dialog.
    SkinDialog(const QString& title, Skin& skin, QWidget* owner);

protected:
    static constexpr int kTitleHeight = 31; // px

    Skin& Pictures() { return m_skin; }
    /// Paints all but the title bar and the outline.
    virtual void PaintBody(QPainter& painter) = 0;

    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Skin& m_skin;
    SkinButton* m_close;
};

/// A push button with the skin's face.
class SkinPushButton : public QPushButton {
public:
    SkinPushButton(const QString& text, Skin& skin, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Skin& m_skin;
};

/// Pages behind tabs with the skin's background. The bar keeps what a tab bar does for keys and for those who have it
/// read out.
class SkinTabs : public QTabWidget {
public:
    SkinTabs(Skin& skin, QWidget* parent);

private:
    void TurnPages(QKeySequence::StandardKey keys, int by);
};

/// A divider of the skin.
class SkinLine : public QWidget {
public:
    SkinLine(Qt::Orientation orientation, Skin& skin, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Qt::Orientation m_orientation;
    Skin& m_skin;
};

/// A label for what only accompanies: headings and explanations, fainter than the text.
QLabel* SecondText(const QString& text, QWidget* parent = nullptr);

} // namespace zentaro
