#include "app/Dialogs.h"

#include "app/Background.h"
#include "app/CommandList.h"
#include "app/Commands.h"
#include "app/DisplayStore.h"
#include "app/Player.h"
#include "app/frmMain.h"
#include "base/Paths.h"
#include "base/Words.h"
#include "platform/AssociationShell.h"
#include "platform/Files.h"
#include "playlist/OpenFiles.h"
#include "shell/HelpTopic.h"
#include "shell/KeysPage.h"
#include "shell/MessageDialog.h"
#include "shell/QtText.h"
#include "shell/WaysPage.h"
#include "shell/frmAbout.h"
#include "shell/frmSettings.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QShortcut>

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

/// "Video File (*.avi)", of which the pattern is the same in every language.
QString TypeText(const std::string& listText)
{
    const auto pattern = listText.rfind('(');
    const auto name = listText.substr(0, listText.find_last_not_of(' ', pattern - 1) + 1);
    return ToQString(Words(name) + listText.substr(name.size()));
}

std::vector<FileTypeRow> Rows(const std::vector<AssociationChoice>& choices)
{
    std::vector<FileTypeRow> rows;
    for (const auto& choice : choices)
        rows.push_back({ TypeText(choice.listText), ToIcon(choice.icon), choice.isDecidedElsewhere });
    return rows;
}

QString AllFiles()
{
    return ToQString(Words("All files")) + " (*)";
}

QString Lists()
{
    return ToQString(Words("Lists")) + " (*.m3u *.m3u8 *.pls *.xspf)";
}

KeyChoices ChoicesOf(KeyMap& map)
{
    KeyChoices choices;
    choices.keys = map.Table();
    choices.defaults = KeyMap::Defaults();
    for (const auto& command : AllCommands()) {
        if (KeyMap::IsChangeable(command))
            choices.rows.push_back({ std::string(command.id), Words(ListedName(command)) });
    }
    choices.userOf = [](const KeyTable& keys, const std::string& key, const std::string& id) {
        const auto* const user = KeyMap::UserOf(keys, key, id);
        return user != nullptr ? std::string(user->id) : std::string();
    };
    choices.take = [&map](const KeyTable& keys) { map.Take(keys); };
    return choices;
}

WayChoices ChosenWays(const Player& player)
{
    const auto has = [&](Choice choice) { return player.Choices().Has(choice); };
    return { has(Choice::FamiliarWays), has(Choice::Remembers), has(Choice::RemembersRemovable), has(Choice::LowRows) };
}

void TakeWays(Player& player, const WayChoices& chosen)
{
    if (chosen.remembers != player.Remembering().IsRemembering())
        player.Remembering().SetRemembering(chosen.remembers);
    player.Choices().Set(Choice::RemembersRemovable, chosen.remembersRemovable);
    player.Choices().Set(Choice::LowRows, chosen.lowRows);
    player.SetFamiliarWays(chosen.familiar);
}

/// From "name|patterns" pairs to what Qt wants: "name (patterns)", with blanks between the patterns.
QStringList QtFilters(const std::string& filter)
{
    QStringList filters;
    const auto parts = ToQString(filter).split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    return filters;
}

} // namespace

Dialogs::Dialogs(frmMain& window, Player& player, std::string programFolder, std::string language)
    : m_window(window)
    , m_player(player)
    , m_programFolder(std::move(programFolder))
    , m_language(std::move(language))
{
}

void Dialogs::ShowNotice(const Notice& notice, std::function<void()> closed)
{
    // Above a dialog that is open: below it nobody could answer the box.
    auto* const dialog = QApplication::activeModalWidget();
    auto* const owner = dialog != nullptr ? dialog : static_cast<QWidget*>(&m_window);
    auto* const box = new MessageDialog(notice, m_window.Pictures(), owner);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QDialog::finished, &m_window, [closed = std::move(closed)] { closed(); });
    box->setModal(true);
    box->show();
}

void Dialogs::AskForFiles(
    const std::string& title, const std::string& filter, std::function<void(std::vector<std::string>)> chosen)
{
    auto* const dialog = new QFileDialog(&m_window, ToQString(Words(title)));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters(
        m_player.Ways().TakesAllMedia() ? QtFilters(filter) << Lists() << AllFiles() : QtFilters(filter) << Lists());
    AskForPaths(dialog, [chosen = std::move(chosen)](const std::vector<std::string>& paths) {
        chosen(OpenFileResults(paths, platform::PathSeparator()));
    });
}

void Dialogs::AskForListName(std::function<void(std::string)> chosen)
{
    auto* const dialog = new QFileDialog(&m_window, ToQString(Words("Save List As")));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    const auto kind = [](const char* name, const char* patterns) {
        return ToQString(Words("%1 list", { name })) + patterns;
    };
    dialog->setNameFilters({ kind("M3U", " (*.m3u8 *.m3u)"), kind("PLS", " (*.pls)"), kind("XSPF", " (*.xspf)") });
    const auto suffix = [dialog](const QString& filter) {
        dialog->setDefaultSuffix(filter.contains("*.pls") ? "pls" : filter.contains("*.xspf") ? "xspf" : "m3u8");
    };
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, suffix);
    suffix({});
    AskForPaths(dialog, [chosen = std::move(chosen)](const std::vector<std::string>& paths) {
        chosen(paths.empty() ? std::string() : paths.front());
    });
}

void Dialogs::AskForSubtitles(std::function<void(std::string)> chosen)
{
    auto* const dialog = new QFileDialog(&m_window, ToQString(Words("Open Subtitles")));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(
        { ToQString(Words("Subtitles")) + " (*.srt *.sub *.ass *.ssa *.vtt *.idx *.smi *.txt *.mpl)", AllFiles() });
    AskForPaths(dialog, [chosen = std::move(chosen)](const std::vector<std::string>& paths) {
        chosen(paths.empty() ? std::string() : paths.front());
    });
}

void Dialogs::AskForPaths(QFileDialog* dialog, std::function<void(std::vector<std::string>)> chosen)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (!m_lastFolder.isEmpty())
        dialog->setDirectory(m_lastFolder);
    QObject::connect(dialog, &QDialog::finished, &m_window, [this, dialog, chosen = std::move(chosen)](int result) {
        std::vector<std::string> paths;
        if (result == QDialog::Accepted) {
            m_lastFolder = dialog->directory().path();
            for (const auto& name : dialog->selectedFiles())
                paths.push_back(ToPath(name));
        }
        chosen(std::move(paths));
    });
    dialog->open();
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
    QObject::connect(dialog, &QDialog::finished, &m_window, [this] { m_player.Window().DialogClosed(); });
    for (const auto& key : m_player.Keys().KeysOf("HelpTopics"))
        QObject::connect(new QShortcut(QKeySequence(ToQString(key)), dialog), &QShortcut::activated, &m_window,
            [this] { ShowHelp(); });
    dialog->setModal(true);
    dialog->show();
}

void Dialogs::AskForTime(const std::string& present, std::function<void(std::string)> chosen)
{
    auto* const dialog = new QInputDialog(&m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(ToQString(Words("Go to a Time")));
    dialog->setLabelText(ToQString(Words("Hours, minutes and seconds, such as 1:02:30")));
    dialog->setTextValue(ToQString(present).section(" / ", 0, 0));
    QObject::connect(dialog, &QDialog::finished, &m_window, [dialog, chosen = std::move(chosen)](int result) {
        chosen(result == QDialog::Accepted ? ToText(dialog->textValue()) : std::string());
    });
    dialog->open();
}

void Dialogs::ShowFolderOf(const std::string& path)
{
    const auto name = FileNamePart(path, platform::PathSeparator());
    const auto folder = path.substr(0, path.size() - name.size());
    if (!platform::OpenDocument(folder))
        Say(Words("There is no program that shows the folder:") + "\r\n" + folder);
}

void Dialogs::ShowOptions()
{
    if (IsOneOpen() || std::exchange(m_isAwaited, true))
        return;
    m_player.Types().Choices([this](const auto& choices) {
        m_isAwaited = false;
        if (!IsOneOpen())
            OpenOptions(choices);
    });
}

void Dialogs::OpenOptions(const std::vector<AssociationChoice>& choices)
{
    auto* const keys = new KeysPage(ChoicesOf(m_player.Keys()), m_window.Pictures());
    SetHelpTopic(*keys, "keys");
    auto* const options = new frmSettings(PagesOf(m_player.Settings()), Rows(choices), m_window.Pictures(), &m_window,
        { keys, new WaysPage(ChosenWays(m_player), [this](const WayChoices& chosen) { TakeWays(m_player, chosen); }),
            new DisplayPage(ReadDisplay(m_player.Own()), [this](const DisplayChoices& chosen) {
                KeepDisplay(m_player.Own(), chosen);
                onDisplayChosen();
            }) });
    QObject::connect(options, &frmSettings::Commit, &m_window,
        [this](const SettingsPages& shown, const SettingsPages& chosen) { m_player.CommitOptions(shown, chosen); });
    QObject::connect(
        options, &frmSettings::DefaultProgramsAsked, &m_window, [this] { OpenPage(platform::DefaultProgramsPage()); });
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

void Dialogs::ShowCommandList()
{
    if (IsOneOpen())
        return;
    auto* const list = new CommandList(m_player, m_window.Pictures(), &m_window);
    // After the list is gone, so that what the command opens does not lie under it.
    QObject::connect(
        list, &CommandList::Chosen, &m_window,
        [this](const std::string& id) {
            const bool isItem = m_player.BothMenus().SmartMenuXP1.Find(id) != nullptr;
            isItem ? m_player.RunCommand(id) : RunCommand(m_player, id);
        },
        Qt::QueuedConnection);
    Open(list);
}

void Dialogs::ShowHelp()
{
    const auto topic = HelpTopicOf(QApplication::focusWidget());
    auto help = m_programFolder + platform::HelpFile(topic, m_language);
    if (!platform::PathExists(help))
        help = m_programFolder + platform::HelpFile(topic, "en");
    if (platform::PathExists(help))
        Open(help, Words("There is no program that shows the help:"),
            [help, topic] { return bool(platform::OpenHelp(help, topic)); });
    else
        Say(Words("The help is missing. It should be here:") + "\r\n" + help);
}

void Dialogs::OpenPage(const std::string& page)
{
    Open(page, Words("There is no browser that shows this page:"),
        [page] { return bool(platform::OpenDocument(page)); });
}

void Dialogs::Open(const std::string& what, const std::string& complaint, std::function<bool()> open)
{
    const auto onWindowThread = [this](std::function<void()> work) {
        QMetaObject::invokeMethod(&m_window, std::move(work), Qt::QueuedConnection);
    };
    RunInBackground(onWindowThread, [this, text = complaint + "\r\n" + what, open = std::move(open)] {
        return [this, text, isOpen = open()] {
            if (!isOpen)
                Say(text);
        };
    });
}

void Dialogs::Say(const std::string& text)
{
    ShowNotice({ text }, [] {});
}

} // namespace zentaro
