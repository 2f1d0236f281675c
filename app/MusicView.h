#pragma once

#include "inspect/CoverTone.h"
#include "shell/BarMotion.h"
#include "shell/MusicLayout.h"

#include <QImage>
#include <QPixmap>
#include <QStringList>
#include <QWidget>

namespace zentaro {

struct Song;

/// A song to look at, over all of its parent: the cover, or art in its place, its name, and bars that can move.
class MusicView : public QWidget {
    Q_OBJECT

public:
    /// `artPath`: the picture whose middle stands for a cover that is missing.
    MusicView(QString artPath, QWidget* parent);

    /// Null: nothing is seen of it.
    void Show(const Song* song);
    /// `target`: as BarMotion::Go.
    void MoveBars(const BarPicture* target, double seconds);
    /// There are none any more, or they lie down.
    void ResetBars();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintScene();
    void PaintRoom(QPainter& painter, const QRect& cover) const;
    void PaintCover(QPainter& painter, const QRect& cover) const;
    void PaintText(QPainter& painter, const MusicLayout& layout) const;
    void PaintBars(QPainter& painter) const;
    QImage Art() const;
    MusicLayout Layout() const;
    QRect BarsPlace() const;

    QString m_artPath;
    QImage m_cover;
    CoverTone m_tone;
    QString m_title;
    QStringList m_lines;
    QPixmap m_scene; // all but the bars; none while it is to be painted anew
    BarMotion m_motion;
    bool m_hasBars = false; // those of this song are known
};

} // namespace zentaro
