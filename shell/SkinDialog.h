#pragma once

#include "shell/Skin.h"

#include <QDialog>
#include <QPushButton>
#include <QScrollArea>
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
    /// What the screen has for the dialog, in logical pixels.
    QSize Room() const;
    /// The size that it can have, with room for the scroll bar of content that is higher than the screen.
    QSize Fitting(QSize wanted) const;
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

/// What a dialog holds beside its buttons. It wants room for all of it and scrolls where the screen has less.
class SkinScroll : public QScrollArea {
public:
    /// Takes the content over.
    SkinScroll(QWidget* content, QWidget* parent);
    QSize sizeHint() const override;
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
