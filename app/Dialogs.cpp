#include "app/Dialogs.h"

#include "app/Player.h"
#include "app/frmMain.h"
#include "platform/AssociationShell.h"
#include "platform/Files.h"
#include "shell/QtText.h"
#include "shell/frmAbout.h"
#include "shell/frmSettings.h"

#include <utility>

namespace zentaro {

namespace {

QIcon ToIcon(const Picture& picture)
{
    if (picture.IsEmpty())
        return {};
    const QImage pixels(reinterpret_cast<const uchar*>(picture.Pixels()), picture.Width(), picture.Height(),
        4 * static_cast<qsizetype>(picture.Width()), QImage::Format_ARGB32);
    return QIcon(QPixmap::fromImage(pixels));
}

std::vector<FileTypeRow> Rows(const std::vector<AssociationChoice>& choices)
{
    std::vector<FileTypeRow> rows;
    for (const auto& choice : choices)
        rows.push_back({ ToQString(choice.listText), ToIcon(choice.icon) });
    return rows;
}

} // namespace

Dialogs::Dialogs(frmMain& window, Player& player, std::string programFolder)
    : m_window(window)
    , m_player(player)
    , m_programFolder(std::move(programFolder))
{
    window.onShowOptions = [this] { ShowOptions(); };
    window.onShowAbout = [this] { ShowAbout(); };
    window.onShowHelp = [this] { ShowHelp(); };
}

bool Dialogs::IsOneOpen()
{
    if (m_dialog)
        m_dialog->activateWindow();
    return m_dialog;
}

void Dialogs::Open(QDialog* dialog)
{
    m_dialog = dialog;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::finished, &m_window, [this] { m_player.DialogClosed(); });
    // No loop of its own: it would hold up what it was opened in, such as a file that is just being loaded.
    dialog->setModal(true);
    dialog->show();
}

void Dialogs::ShowOptions()
{
    if (IsOneOpen())
        return;
    auto* const options = new frmSettings(
        PagesOf(m_player.Settings()), Rows(m_player.AssociationChoices()), m_window.Pictures(), &m_window);
    QObject::connect(options, &frmSettings::Commit, &m_window,
        [this](const SettingsPages& pages) { m_player.CommitOptions(pages); });
    Open(options);
}

void Dialogs::ShowAbout()
{
    if (IsOneOpen())
        return;
    auto* const about = new frmAbout(m_window.Pictures(), &m_window);
    QObject::connect(
        about, &frmAbout::LinkChosen, &m_window, [this](const QString& address) { OpenPage(ToText(address)); });
    Open(about);
}

void Dialogs::ShowHelp()
{
    const auto help = m_programFolder + platform::HelpFile();
    if (!platform::PathExists(help))
        m_window.ShowNotice({ "The help is missing. It should be here:\r\n" + help });
    else if (!platform::OpenDocument(help))
        m_window.ShowNotice({ "There is no program that shows the help:\r\n" + help });
}

void Dialogs::OpenPage(const std::string& address)
{
    if (!platform::OpenDocument(address))
        m_window.ShowNotice({ "There is no browser that shows this page:\r\n" + address });
}

} // namespace zentaro
