#pragma once

#include "app/PlayerFace.h"

#include <QPointer>
#include <QString>

#include <string>
#include <vector>

class QDialog;
class QFileDialog;

namespace zentaro {

struct AssociationChoice;
class Player;
class frmMain;

/// The windows that come over the main one, and the help. Each is made when it is asked for and goes when it is closed.
/// While one is open the user can do nothing else, but all else goes on: files play, and files of later starts arrive.
class Dialogs : public DialogFace {
public:
    /// `programFolder`: with a trailing separator. All three live as long as the process.
    /// `language`: of the help, as "de".
    Dialogs(frmMain& window, Player& player, std::string programFolder, std::string language);

    void ShowNotice(const Notice& notice, std::function<void()> closed) override;
    void AskForFiles(const std::string& title, const std::string& filter,
        std::function<void(std::vector<std::string>)> chosen) override;
    void AskForListName(std::function<void(std::string)> chosen) override;
    void AskForSubtitles(std::function<void(std::string)> chosen) override;
    void AskForTime(const std::string& present, std::function<void(std::string)> chosen) override;
    void ShowFolderOf(const std::string& path) override;
    void ShowOptions() override;
    void ShowAbout() override;
    void ShowCommandList() override;
    void ShowHelp() override;

    /// Appearance was chosen anew, and is kept.
    std::function<void()> onDisplayChosen = [] {};

private:
    void OpenPage(const std::string& page);
    /// `open` runs beside the window; where it fails a box shows `complaint` and what was to be opened.
    void Open(const std::string& what, const std::string& complaint, std::function<bool()> open);
    void Say(const std::string& text);
    void OpenOptions(const std::vector<AssociationChoice>& choices);
    /// True when there is a dialog already: it comes forward.
    bool IsOneOpen();
    void Open(QDialog* dialog);
    /// A dialog for files in the folder that was used last; `chosen` gets their paths, none on cancel.
    void AskForPaths(QFileDialog* dialog, std::function<void(std::vector<std::string>)> chosen);

    frmMain& m_window;
    Player& m_player;
    std::string m_programFolder;
    std::string m_language;
    QPointer<QDialog> m_dialog;
    bool m_isAwaited = false; // the options come when the types of files are read
    QString m_lastFolder;
};

} // namespace zentaro
