#include "app/ControlPanel.h"

#include "app/Commands.h"
#include "app/PauseMark.h"
#include "app/Player.h"
#include "base/Words.h"
#include "shell/DigitLabel.h"
#include "shell/FullScreenBar.h"
#include "shell/HelpTopic.h"
#include "shell/MenuText.h"
#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/Style.h"
#include "shell/VolumeKnob.h"

#include <QEvent>
#include <QLabel>

#include <initializer_list>
#include <utility>

namespace zentaro {

namespace {

/// A caption of a menu as the name of a button.
QString NameOf(const Command& command)
{
    return ToQString(Words(command.caption)).remove('&').remove("...");
}

} // namespace

ControlPanel::ControlPanel(Player& player, QWidget* window)
    : QObject(window)
    , m_player(player)
    , m_window(window)
    , m_time(new DigitLabel(window))
    , m_rate(new QLabel(window))
    , m_volumeNumber(new DigitLabel(window))
    , m_seek(new SeekTrack(window))
    , m_volume(new VolumeKnob(window))
    , m_pauseMark(new PauseMark(window))
{
    m_time->setObjectName("lblTime");
    m_rate->setObjectName("lblRate");
    m_rate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_volumeNumber->setObjectName("lblVolume");
    m_volumeNumber->setFont(style::SmallFont());
    // A press on the time shows what is left instead.
    m_time->installEventFilter(this);
    m_time->setCursor(Qt::PointingHandCursor);
    for (auto* const label : { m_rate, m_volumeNumber })
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (auto* const label : { m_rate, m_volumeNumber })
        label->setForegroundRole(QPalette::PlaceholderText);
    MakeSliders();
    MakeTitleButtons();
    using Row = std::pair<Button, std::string_view>;
    for (const auto& [button, command] : { Row{ Button::Play, "Play" }, { Button::Pause, "Pause" },
             { Button::Stop, "Stop" }, { Button::Previous, "Previous" }, { Button::Next, "Next" },
             { Button::Rewind, "Rewind" }, { Button::FastForward, "FastForward" }, { Button::FullScreen, "FullScreen" },
             { Button::Snapshot, "Snapshot" }, { Button::PlayList, "PlayList" }, { Button::Dvd, "Dvd" },
             { Button::SoundOn, "Mute" }, { Button::Open, "OpenFile" } })
        MakeButton(button, command);
    for (const auto& [button, widget] : m_buttons)
        SetHelpTopic(*widget, button == Button::Dvd ? "dvd" : "controls");
    for (auto* const slider : std::initializer_list<QWidget*>{ m_seek, m_volume })
        SetHelpTopic(*slider, "controls");
}

SkinButton* ControlPanel::MakeButton(Button button, std::string_view command)
{
    const auto& row = *FindCommand(command);
    auto* const made = m_buttons[button] = new SkinButton(zentaro::NameOf(row), KeyOf(command), m_window);
    m_commands[button] = command;
    if (row.release == nullptr) {
        connect(made, &SkinButton::clicked, this, [this, command] { RunCommand(m_player, command); });
        return made;
    }
    made->SetHeld();
    connect(made, &SkinButton::Stepped, this,
        [this, command] { RunCommand(m_player, command == "Rewind" ? "SeekFarBack" : "SeekFarForward"); });
    connect(made, &SkinButton::pressed, this, [this, command] { RunCommand(m_player, command); });
    connect(made, &SkinButton::released, this, [this, &row] { row.release(m_player); });
    return made;
}

QString ControlPanel::NameOf(Button button, const Command& command) const
{
    if (button == Button::Close)
        return tr("Close");
    if (button == Button::Maximize && m_window->isMaximized())
        return tr("Restore");
    if (button == Button::SoundOn && m_player.State().isMuted)
        return tr("Unmute");
    return zentaro::NameOf(command);
}

QString ControlPanel::KeyOf(std::string_view command) const
{
    return KeyName(m_player.Keys().Shown(*FindCommand(command)));
}

void ControlPanel::MakeTitleButtons()
{
    MakeButton(Button::Minimize, "Minimize");
    MakeButton(Button::Maximize, "Maximize");
    MakeButton(Button::Close, "Exit");
}

void ControlPanel::MakeSliders()
{
    auto& transport = m_player.Transporting();
    connect(m_seek, &SeekTrack::PositionChosen, this, [&transport](double position) { transport.Seek(position); });
    connect(m_volume, &VolumeKnob::VolumeChosen, this, [&transport](int percent) { transport.SetVolume(percent); });
    connect(m_volume, &VolumeKnob::Turned, this, [&transport](int eighths) { transport.TurnVolume(eighths); });
    connect(m_volume, &VolumeKnob::StepChosen, this,
        [this](int direction) { RunCommand(m_player, direction > 0 ? "Louder" : "Quieter"); });
}

bool ControlPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_time || event->type() != QEvent::MouseButtonPress)
        return false;
    RunCommand(m_player, "ShowRemaining");
    return true;
}

void ControlPanel::Show()
{
    const auto& state = m_player.State();
    for (const auto& [button, id] : m_commands) {
        const auto& command = *FindCommand(id);
        m_buttons[button]->setEnabled(command.isAvailable == nullptr || command.isAvailable(m_player));
        m_buttons[button]->SetName(NameOf(button, command), KeyOf(id));
    }
    m_time->setText(ToQString(Words(m_player.Tools().TimeText())));
    m_rate->setText(ToQString(Words(state.rateText)));
    m_volumeNumber->setText(QString::number(state.boost > 100 ? state.boost : state.volume));
    m_seek->Show({ state.mediaControlsEnabled, state.progress, state.length, state.chapters, state.seeks,
        state.mediaControlsEnabled ? ToQString(PlaceText(state)) : QString(), state.hasVideoOutput });
    m_volume->Show(state.volume);
    m_pauseMark->Show(state.isPaused && state.mediaControlsEnabled);
    PlaceClose();
}

void ControlPanel::Place(QWidget* control, QWidget* home, const Rect& rect)
{
    if (control->parentWidget() != home)
        control->setParent(home);
    control->setGeometry(ToQt(rect));
    control->setVisible(rect.width > 0);
}

template <typename Layout> void ControlPanel::PlaceSliders(QWidget* home, const Layout& layout)
{
    Place(m_time, home, layout.TimeLabel());
    Place(m_seek, home, layout.SeekTrack());
    Place(m_volume, home, layout.VolumeSlider());
    Place(m_volumeNumber, home, layout.VolumeNumber());
}

void ControlPanel::PlaceOnWindow(const WindowLayout& layout)
{
    PlaceSliders(m_window, layout);
    m_rate->setGeometry(ToQt(layout.RateLabel()));
    for (const auto& [button, widget] : m_buttons)
        Place(widget, m_window, layout.PressRect(button));
    m_closePlace = At(Button::Close).geometry();
    PlaceClose();
    Place(m_pauseMark, m_window, layout.Icon());
}

void ControlPanel::PlaceClose()
{
    // The corner of a maximised window is met without aiming.
    const QRect corner(m_window->width() - 1, 0, 1, 1);
    At(Button::Close).setGeometry(m_window->isMaximized() ? m_closePlace.united(corner) : m_closePlace);
}

void ControlPanel::PlaceOnBar(FullScreenBar& bar, int width)
{
    const BarLayout layout(width);
    bar.LeaveButton().setGeometry(ToQt(layout.ButtonRect(Button::FullScreen)));
    PlaceSliders(&bar, layout);
    for (const auto& [button, widget] : m_buttons) {
        // Its place is taken by the bar's own button, which leaves full screen.
        if (const auto rect = layout.ButtonRect(button); button != Button::FullScreen && rect.width > 0)
            Place(widget, &bar, rect);
        else
            widget->hide();
    }
}

void ControlPanel::OrderFocus(QWidget* first)
{
    auto* last = first;
    const auto follow = [&](std::initializer_list<QWidget*> widgets) {
        for (auto* const next : widgets)
            QWidget::setTabOrder(std::exchange(last, next), next);
    };
    const auto followButtons = [&](std::initializer_list<Button> buttons) {
        for (const auto button : buttons)
            follow({ m_buttons.at(button) });
    };
    followButtons({ Button::Snapshot });
    follow({ m_seek });
    followButtons({ Button::FullScreen, Button::Previous, Button::Rewind, Button::Stop, Button::Play, Button::Pause,
        Button::FastForward, Button::Next, Button::PlayList, Button::Dvd, Button::Open, Button::SoundOn });
    follow({ m_volume });
    followButtons({ Button::Minimize, Button::Maximize, Button::Close });
}

SkinButtons ControlPanel::ButtonStates() const
{
    SkinButtons buttons;
    buttons.states.fill(ButtonState::Disabled);
    for (const auto& [button, widget] : m_buttons) {
        buttons.StateOf(button) = widget->State();
        buttons.FadeOf(button) = widget->StateFade();
    }
    buttons.FadeOf(Button::SoundOff) = buttons.FadeOf(Button::SoundOn);
    buttons.StateOf(Button::SoundOff) = buttons.StateOf(Button::SoundOn);
    buttons.isMuted = m_player.State().isMuted;
    return buttons;
}

bool ControlPanel::UsesKey(const QWidget* control, int key) const
{
    if (control == m_volume)
        return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down
            || key == Qt::Key_Home || key == Qt::Key_End;
    if (control == m_seek)
        return key == Qt::Key_Home || key == Qt::Key_End;
    return key == Qt::Key_Space && qobject_cast<const QAbstractButton*>(control) != nullptr;
}

} // namespace zentaro
