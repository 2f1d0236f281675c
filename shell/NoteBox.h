#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <chrono>

class QPushButton;

namespace zentaro {

/// A short text, with a small picture over it at will, that lies over the window's upper left corner for a while. A
/// click sends it away.
class NoteBox : public QWidget {
    Q_OBJECT

public:
    explicit NoteBox(QWidget* parent);

    /// `area`: where it may lie, in pixels of its parent. The picture is shown at a share of its size that fits; a null
    /// one is left out.
    /// `offer`: the words of a button below it; empty for none.
    void Show(const QRect& area, const QString& text, const QImage& picture, std::chrono::milliseconds time,
        const QString& offer = {});
    /// Moves what is shown to another area.
    void Place(const QRect& area);

    /// The largest picture, in pixels.
    static constexpr QSize kPictureRoom{ 176, 99 };

signals:
    /// The button was pressed; the note has gone.
    void OfferTaken();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QString m_text;
    QString m_shownText; // what there is room for
    Qt::TextFlag m_wrapping = Qt::TextWordWrap;
    QImage m_picture;
    QSize m_pictureSize; // as shown
    QPushButton* m_offer;
    QTimer m_end;
};

} // namespace zentaro
