#pragma once

#include <QObject>

#include <vector>

class QKeyEvent;
class QShortcut;
class QWidget;

namespace zentaro {

class ControlPanel;
class FancyList;
class ListSearch;
class MenuStrip;
class Player;
class VideoFrame;
enum class KeyPlace;
struct Command;

/// The keys of the window: those of the commands beside the menu strip's own, and what the part that has the focus does
/// with a key instead.
class WindowKeys : public QObject {
    Q_OBJECT

public:
    struct Parts {
        FancyList& list;
        MenuStrip& strip;
        ControlPanel& controls;
        VideoFrame& video;
    };
    /// `window` owns it.
    WindowKeys(Player& player, QWidget& window, Parts parts);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeShortcuts();
    /// Enter, while the empty list offers something.
    bool TakesCard(const QKeyEvent& event) const;
    bool ListKeyPressed(const QKeyEvent& event);
    bool FocusUsesKey(const QKeyEvent& event) const;
    /// What no control has taken: Enter on a button, the keys of the video.
    bool PressLeftOver(const QKeyEvent& event);
    /// Runs the command that has this key there.
    bool RunAt(KeyPlace place, const QKeyEvent& event);
    /// The list has no keys of its own. False for keys that do not move its selection.
    bool MoveSelection(const QKeyEvent& event);
    void Run(const Command& command, int which);
    bool Release(const QKeyEvent& event);

    Player& m_player;
    QWidget& m_window;
    Parts m_parts;
    ListSearch* m_search;
    std::vector<QShortcut*> m_shortcuts;
    const Command* m_held = nullptr; // lasts until its key is released
};

} // namespace zentaro
