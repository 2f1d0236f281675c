#pragma once

#include "playback/DiscParts.h"
#include "shell/Fade.h"
#include "shell/SeekBar.h"
#include "shell/SliderAccessible.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

namespace zentaro {

/// The seek bar on the screen: a track with the played part over its left end. Painted slimmer than it takes the
/// pointer.
class SeekTrack : public QWidget, public SliderFace {
    Q_OBJECT

public:
    explicit SeekTrack(QWidget* parent);

    /// What is shown of the loaded item.
    struct Place {
        bool mediaControlsEnabled = false;   ///< it can seek
        double progress = 0;                 ///< how much is played, 0 to 1
        double length = 0;                   ///< ms; 0 or below while unknown
        std::vector<DiscPart> chapters = {}; ///< they get a notch each
        int seeks = 0;                       ///< changes whenever another place was chosen
        QString spoken = {};                 ///< the place in words
        bool takesTime = false;              ///< each place costs work: a hand that drags goes to where it rests
    };
    void Show(const Place& place);

    // In seconds; of an unknown length in hundredths.
    double Value() const override;
    double Maximum() const override;
    double Step() const override { return 5; }
    void ChooseValue(double value) override;
    QString ValueText() const override { return m_place.spoken; }

signals:
    /// The engine is to go to this position, 0.0 to 1.0.
    void PositionChosen(double position);
    /// The pointer is over a place that can be gone to: its x, its time in ms, and what there is to read of it.
    void PointedAt(double x, double time, const QString& timeText, const QString& chapter);
    /// It is over none any more.
    void PointerLeft();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FollowHand();
    void Choose(std::optional<double> position);
    /// For a hand that may go on.
    void ChooseInPassing(std::optional<double> position);
    void HandRests();
    void PointAt(double x);
    void PointNowhere();
    /// At its start where a chapter begins so near that the hand must have meant it.
    std::optional<double> ChapterMeant(double x) const;
    double TimeOf(double x) const { return x / m_bar.TrackWidth() * m_place.length; }
    void PaintNotches(QPainter& painter, const QRectF& track);

    SeekBar m_bar;
    Place m_place;
    bool m_isNear = false;
    Fade m_nearness{ *this, [this] { update(); } };
    bool m_heldOnFill = false;       // the button went down on the played part
    std::optional<double> m_passing; // where the hand is on its way, 0 to 1
    QTimer m_rest;
    std::optional<double> m_pointer; // its x, over a place that can be gone to
};

} // namespace zentaro
