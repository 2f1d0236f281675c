#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace zentaro {

class ControlPanel;
class FancyList;
class ListSearch;
class MenuStrip;
class Player;

/// The keys of the window: those of the commands beside the menu strip's own, and what the part that has the focus does
/// with a key instead.
class WindowKeys : public QObject {
    Q_OBJECT

public:
    struct Parts {
        FancyList& list;
        MenuStrip& strip;
        ControlPanel& controls;
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
    /// The list has no keys of its own. False for keys that do not move its selection.
    bool MoveSelection(const QKeyEvent& event);

    Player& m_player;
    QWidget& m_window;
    Parts m_parts;
    ListSearch* m_search;
};

} // namespace zentaro
