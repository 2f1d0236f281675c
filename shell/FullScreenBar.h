#pragma once

#include "shell/Skin.h"

#include <QTimer>
#include <QWidget>

#include <functional>

namespace zentaro {

class SkinButton;

/// The control bar of full screen: it comes with the pointer's movement and goes after a rest. The window lends it its
/// controls and places them, so they need no twins; the bar paints the buttons' pictures under them.
class FullScreenBar : public QWidget {
    Q_OBJECT

public:
    /// `skin` must outlive the bar; `states` tells those of the borrowed buttons.
    FullScreenBar(Skin& skin, std::function<SkinButtons()> states, QWidget* parent);

    /// The one button of its own.
    SkinButton& LeaveButton() { return *m_leave; }
    /// Where it lies when it is shown, in pixels of its parent.
    void Place(const QRect& place);
    /// Full screen has begun: bar and pointer are away until the pointer moves.
    void Begin();
    /// Full screen has ended.
    void End();
    /// Comes without the pointer, for the keys; nothing outside full screen.
    void Wake();
    /// The pointer was seen at this place of the screen.
    void PointerSeen(const QPoint& global);

signals:
    void PointerWanted(bool shown);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Rest();

    Skin& m_skin;
    std::function<SkinButtons()> m_states;
    SkinButton* m_leave;
    QTimer m_rest;
    QPoint m_pointer;
    QRect m_place;
    bool m_serves = false;
};

} // namespace zentaro
