#pragma once

#include <string>

namespace zentaro {

class Player;
class frmMain;

/// The main window's dialogs and the help. Each is made when it is asked for and goes when it is closed.
class Dialogs {
public:
    /// `programFolder`: with a trailing separator. All three live as long as the process.
    Dialogs(frmMain& window, Player& player, std::string programFolder);

private:
    void ShowOptions();
    void ShowAbout();
    void ShowHelp();
    void OpenPage(const std::string& address);

    frmMain& m_window;
    Player& m_player;
    std::string m_programFolder;
};

} // namespace zentaro
