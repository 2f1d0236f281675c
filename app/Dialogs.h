#pragma once

#include <QPointer>

#include <string>

class QDialog;

namespace zentaro {

class Player;
class frmMain;

/// The main window's dialogs and the help. Each is made when it is asked for and goes when it is closed. While one is
/// open the user can do nothing else, but all else goes on: files play, and files of later starts arrive.
class Dialogs {
public:
    /// `programFolder`: with a trailing separator. All three live as long as the process.
    Dialogs(frmMain& window, Player& player, std::string programFolder);

private:
    void ShowOptions();
    void ShowAbout();
    void ShowHelp();
    void OpenPage(const std::string& address);
    /// True when there is a dialog already: it comes forward.
    bool IsOneOpen();
    /// Returns at once.
    void Open(QDialog* dialog);

    frmMain& m_window;
    Player& m_player;
    std::string m_programFolder;
    QPointer<QDialog> m_dialog;
};

} // namespace zentaro
