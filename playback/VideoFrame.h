#pragma once

#include <QImage>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <mutex>

namespace zentaro {

/// Takes finished pictures from the engine's thread and shows them on the UI thread. For displays on which the engine
/// cannot draw into a window of ours.
class PictureSink {
public:
    explicit PictureSink(QWidget& surface);

    /// Engine thread: the size of the pictures to come, in pixels; false when it cannot be served.
    bool Resize(unsigned width, unsigned height);
    int BytesPerLine() const { return static_cast<int>(m_back.bytesPerLine()); }
    /// Engine thread: where the next picture is to be written.
    uchar* NextPicture() { return m_back.bits(); }
    /// Engine thread: the picture is complete.
    void Show();
    /// UI thread.
    QImage Current() const;
    /// UI thread: the surface goes; nothing more is shown.
    void Close();

private:
    mutable std::mutex m_mutex;
    QWidget* m_surface;
    QImage m_front;
    QImage m_back;
};

/// Lets the widget lie over the engine's window, and nothing of it through: it gets a window of its own, opaque. To be
/// called before the widget is first shown.
void LetCoverVideo(QWidget& widget);

/// The engine's control: the black area that one engine draws its video on.
class VideoSurface : public QWidget {
    Q_OBJECT

public:
    explicit VideoSurface(QWidget* parent);
    ~VideoSurface() override;

    /// True when the engine can be handed this window's number.
    static bool TakesWindowNumber();
    const std::shared_ptr<PictureSink>& Sink() const { return m_sink; }
    /// One that was made hidden is what the frame shows from now on.
    void Appear();
    /// Nothing of it is seen any more. The engine may draw on it until it is deleted.
    void Vanish();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::shared_ptr<PictureSink> m_sink;
};

/// The picture that stands for sound without video: "Audio.JPG", stretched over the whole area.
class VLCAudioLogo : public QWidget {
    Q_OBJECT

public:
    VLCAudioLogo(QString picturePath, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_picturePath;
    QByteArray m_file;
    QPixmap m_picture;
};

/// The frame that holds the engine's surface and, over it, the audio logo.
class VideoFrame : public QWidget {
    Q_OBJECT

public:
    VideoFrame(const QString& logoPath, QWidget* parent);

    /// A fresh surface over the whole frame, to appear later unless `isShown`. The caller lets it vanish, and deletes
    /// it.
    VideoSurface* AddSurface(bool isShown = true);
    /// The surface, one of this frame, is what is shown from now on.
    void ShowSurface(VideoSurface& surface);
    /// The surface is no longer what the frame shows.
    void Forget(const VideoSurface& surface);
    void ShowAudioLogo(bool shown);
    /// What lies over it is seen whenever it is.
    QWidget& AudioLogo() { return *m_logo; }
    /// Whether the pointer is seen over the video.
    void ShowPointer(bool shown) { ShowPointerAs(shown ? Qt::ArrowCursor : Qt::BlankCursor); }
    void ShowPointerAs(Qt::CursorShape shape);

signals:
    /// The mark that stands on the empty stage was clicked.
    void IdleMarkClicked();

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool IsOnIdleMark(const QPointF& at) const;
    /// The surface, the logo over it, and over both whatever else the window has.
    void KeepBelow();
    QRect Inner() const;
    void PlaceParts();

    QPointer<VideoSurface> m_surface;
    VLCAudioLogo* m_logo;
    Qt::CursorShape m_pointer = Qt::ArrowCursor;
};

} // namespace zentaro
