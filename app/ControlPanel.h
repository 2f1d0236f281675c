#pragma once

#include "shell/SkinPasses.h"
#include "shell/WindowLayout.h"

#include <QObject>
#include <QRect>
#include <QString>

#include <map>
#include <string_view>

class QLabel;
class QWidget;

namespace zentaro {

class FullScreenBar;
class PauseMark;
class Player;
struct Command;
class SeekTrack;
class SkinButton;
class VolumeKnob;

/// The window's buttons, labels and sliders: what they show follows from the player's state, what they do is a command.
/// They lie on the window, or some of them on the bar of full screen.
class ControlPanel : public QObject {
    Q_OBJECT

public:
    ControlPanel(Player& player, QWidget* window);

    /// Shows the player's present state.
    void Show();
    /// Puts all of them in their places on the window.
    void PlaceOnWindow(const WindowLayout& layout);
    /// Lends the bar what it has room for; the rest is hidden, where no key may go either.
    void PlaceOnBar(FullScreenBar& bar, int width);
    /// The order in which Tab goes through them, from `first` on.
    void OrderFocus(QWidget* first);

    /// What the buttons' pictures are drawn from.
    SkinButtons ButtonStates() const;
    SkinButton& At(Button button) const { return *m_buttons.at(button); }
    SeekTrack& Seek() const { return *m_seek; }
    /// Whether the control uses this key itself while it has the focus.
    bool UsesKey(const QWidget* control, int key) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A button that runs a command; its name and key are the command's.
    SkinButton* MakeButton(Button button, std::string_view command);
    QString NameOf(Button button, const Command& command) const;
    QString KeyOf(std::string_view command) const;
    void MakeTitleButtons();
    void MakeSliders();
    void Place(QWidget* control, QWidget* home, const Rect& rect);
    void PlaceClose();
    template <typename Layout> void PlaceSliders(QWidget* home, const Layout& layout);

    Player& m_player;
    QWidget* m_window;
    std::map<Button, SkinButton*> m_buttons;
    std::map<Button, std::string_view> m_commands;
    QLabel* m_time;
    QLabel* m_rate;
    QLabel* m_volumeNumber;
    SeekTrack* m_seek;
    VolumeKnob* m_volume;
    PauseMark* m_pauseMark;
    QRect m_closePlace; // while the window is not maximised
};

} // namespace zentaro
