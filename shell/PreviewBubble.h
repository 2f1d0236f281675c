#pragma once

#include <QImage>
#include <QWidget>

#include <memory>
#include <string>

namespace zentaro {

/// What is at a place of the seek track, over that place: a picture, the time, the chapter. Never in the pointer's way.
class PreviewBubble : public QWidget {
    Q_OBJECT

public:
    explicit PreviewBubble(QWidget* parent);

    /// `above`: the point of the parent that it stands on.
    void Show(const QPoint& above, const QString& time, const QString& chapter);
    /// The bytes of a picture file; null for none. `mayCome`: room is kept for one.
    void SetPicture(const std::shared_ptr<const std::string>& bytes, bool mayCome);

    /// The largest picture, in pixels.
    static constexpr QSize kPictureRoom{ 160, 120 };

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Place();
    QSize PictureSize() const;

    std::shared_ptr<const std::string> m_bytes; // of m_picture
    QImage m_picture;
    bool m_mayCome = false;
    QPoint m_above;
    QString m_time;
    QString m_chapter;
};

} // namespace zentaro
