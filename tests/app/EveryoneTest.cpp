#include "app/CommandList.h"
#include "app/DisplayStore.h"
#include "app/Language.h"
#include "app/frmMain.h"
#include "base/Words.h"
#include "playback/VideoFrame.h"
#include "shell/DisplayPage.h"
#include "shell/KeysPage.h"
#include "shell/MenuText.h"
#include "shell/MessageDialog.h"
#include "shell/SeekTrack.h"
#include "shell/SkinButton.h"
#include "shell/Style.h"
#include "shell/VolumeKnob.h"
#include "shell/WaysPage.h"
#include "shell/frmAbout.h"
#include "shell/frmSettings.h"
#include "tests/app/Contrast.h"
#include "tests/app/PlayerFixture.h"
#include "tests/world/NoPreviews.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>

#include <map>

namespace zentaro {
namespace {

// What fits at this size fits at the others: texts grow with all else, but for what is rounded.
const bool isLarger = qputenv("QT_SCALE_FACTOR", "1.5");

/// Whether everyone can use the window and all dialogs: in every language, in both palettes.
class Everyone : public PlayerTest {
protected:
    explicit Everyone(const style::Needs& needs = {})
        : m_player((style::Apply(*qApp, needs), world.Make()))
        , m_programFolder(QApplication::applicationDirPath() + "/../bin/")
        , m_window(m_player, m_previews.none, new VideoFrame(m_programFolder + "Audio.JPG", nullptr), m_programFolder)
    {
        m_player.Load("", { &m_window, &world.dialogs });
        world.Settle();
    }
    ~Everyone() override { SetTranslator(nullptr); }

    /// Each dialog, as it opens, with each of its pages.
    void WithEach(const std::function<void(QWidget&)>& look)
    {
        look(m_window);
        KeyChoices keys{ {}, KeyMap::Defaults(), KeyMap::Defaults(), [](auto...) { return std::string(); },
            [](auto&) {} };
        for (const auto& command : AllCommands()) {
            if (KeyMap::IsChangeable(command))
                keys.rows.push_back({ std::string(command.id), Words(ListedName(command)) });
        }
        auto& skin = m_window.Pictures();
        frmSettings options({}, std::vector<FileTypeRow>(24, { "x", {} }), skin, nullptr,
            { new KeysPage(keys, skin), new WaysPage({}, [](auto&) {}), new DisplayPage({}, [](auto&) {}) });
        auto* const tabs = options.findChild<QTabWidget*>();
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            Show(options, look);
        }
        frmAbout about(skin, nullptr);
        Show(about, look);
        CommandList commands(m_player, skin, nullptr);
        Show(commands, look);
        QInputDialog time;
        time.setLabelText(QString::fromStdString(Words("Hours, minutes and seconds, such as 1:02:30")));
        Show(time, look);
        MessageDialog message({ Words("Please insert a valid DVD.") }, skin, nullptr);
        Show(message, look);
    }
    static void Show(QWidget& dialog, const std::function<void(QWidget&)>& look)
    {
        dialog.show();
        QApplication::processEvents();
        look(dialog);
    }
    static std::vector<QWidget*> Shown(QWidget& top)
    {
        std::vector<QWidget*> shown;
        for (auto* const widget : top.findChildren<QWidget*>()) {
            if (widget->isVisible())
                shown.push_back(widget);
        }
        return shown;
    }
    void ExpectContrast()
    {
        for (const auto* const name : { "/one.avi", "/two.mp3" })
            m_player.Entries().Append({ .Title = name, .FullPath = name, .Thumbnail = {}, .MediaInfo = {} }, "detail");
        m_player.Entries().List().SetSelectedItem(0);
        m_window.ShowNote("A note", {});
        WithEach([](QWidget& top) {
            const auto picture = top.grab().toImage();
            for (auto* const widget : Shown(top))
                ExpectContrastOf(top, *widget, picture);
        });
        for (auto* const menu : m_window.findChildren<QMenu*>()) {
            menu->ensurePolished();
            menu->resize(menu->sizeHint());
            ExpectContrastOf(*menu, *menu, menu->grab().toImage());
        }
    }

    Player& m_player;
    QString m_programFolder;
    NoPreviews m_previews;
    frmMain m_window;
};

TEST_F(Everyone, FindsANameAndARoleAtEveryControl)
{
    WithEach([](QWidget& top) {
        for (auto* const widget : Shown(top)) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->inherits("QTabBar") || widget->inherits("QTabWidget"))
                continue;
            auto* const face = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(face, nullptr);
            const bool isLabelled = !face->relations(QAccessible::Label).empty();
            EXPECT_TRUE(isLabelled || !face->text(QAccessible::Name).isEmpty()) << Where(top, *widget);
            EXPECT_NE(face->role(), QAccessible::NoRole) << Where(top, *widget);
            EXPECT_NE(face->role(), QAccessible::Client) << Where(top, *widget);
        }
    });
}

TEST_F(Everyone, ComesToEveryControlByKeysAndMeetsItWithAFinger)
{
    WithEach([](QWidget& top) {
        for (auto* const widget : Shown(top)) {
            const auto* const button = qobject_cast<QAbstractButton*>(widget);
            const auto* const skinButton = qobject_cast<SkinButton*>(widget);
            const bool isOther = qobject_cast<SeekTrack*>(widget) != nullptr
                || qobject_cast<VolumeKnob*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr
                || qobject_cast<QLineEdit*>(widget) != nullptr;
            if (button == nullptr && !isOther)
                continue;
            // Of a group of choices the arrows go from one to the other, and the chosen one is reached.
            const bool isOneOfGroup = button != nullptr && button->group() != nullptr && !button->isChecked();
            const bool isInner =
                widget->parentWidget()->inherits("QTabBar") || widget->parentWidget()->inherits("QLineEdit");
            const bool hasKey = skinButton != nullptr && !skinButton->Shortcut().isEmpty();
            if (!isOneOfGroup && !isInner) {
                EXPECT_TRUE(hasKey || widget->focusPolicy() & Qt::TabFocus) << Where(top, *widget);
            }
            if (skinButton != nullptr && &top == top.window() && qobject_cast<frmMain*>(&top) != nullptr) {
                EXPECT_TRUE(hasKey) << Where(top, *widget);
            }
            EXPECT_GE(std::min(widget->width(), widget->height()), WindowLayout::kLeastPress) << Where(top, *widget);
        }
    });
}

TEST_F(Everyone, ReadsWholeTextsAndOneLetterForEachThing)
{
    for (const auto* const language : { "en", "de", "fr", "es", "ja" }) {
        SCOPED_TRACE(language);
        QObject texts;
        SpeakLanguage(*QCoreApplication::instance(), language, m_programFolder + "languages/");
        WithEach([&](QWidget& top) {
            std::map<QChar, std::string> letters;
            for (auto* const widget : Shown(top)) {
                const auto* const button = qobject_cast<QAbstractButton*>(widget);
                const auto* const label = qobject_cast<QLabel*>(widget);
                const auto text = button != nullptr ? button->text() : label != nullptr ? label->text() : QString();
                if (const auto mark = text.indexOf('&'); mark >= 0 && mark + 1 < text.size()) {
                    const auto [other, isNew] = letters.emplace(text[mark + 1].toLower(), text.toStdString());
                    EXPECT_TRUE(isNew) << text.toStdString() << " and " << other->second;
                }
                const bool wraps = label != nullptr && (label->wordWrap() || label->text().isEmpty());
                if ((button != nullptr && !text.isEmpty()) || (label != nullptr && !wraps)) {
                    EXPECT_GE(widget->width(), widget->sizeHint().width()) << Where(top, *widget) << text.toStdString();
                }
                if (const auto* const box = qobject_cast<QComboBox*>(widget)) {
                    EXPECT_GE(box->width(), box->sizeHint().width()) << Where(top, *widget);
                }
            }
        });
        SetTranslator(nullptr);
    }
}

TEST_F(Everyone, HasATextForWhateverACommandIsCalled)
{
    for (const auto* const language : { "de", "fr", "es", "ja" }) {
        SpeakLanguage(*QCoreApplication::instance(), language, m_programFolder + "languages/");
        // Where the text is the same in both languages a mark says that it was found.
        const auto expectKnown = [&](const std::string& english) {
            EXPECT_TRUE(Words(english) != english || english.size() < 12) << language << ": " << english;
        };
        for (const auto& command : AllCommands())
            expectKnown(ListedName(command));
        for (const CommandTree tree; const auto& item : tree.Items())
            expectKnown(item.caption);
        SetTranslator(nullptr);
    }
}

TEST_F(Everyone, FindsAllMenusInTheSmallestWindow)
{
    for (const auto* const language : { "en", "de", "fr", "es", "ja" }) {
        SpeakLanguage(*QCoreApplication::instance(), language, m_programFolder + "languages/");
        // Its captions are made with the window.
        frmMain window(
            m_player, m_previews.none, new VideoFrame(m_programFolder + "Audio.JPG", nullptr), m_programFolder);
        window.resize(WindowLayout::kMinimumWidth, WindowLayout::kMinimumHeight);
        window.show();
        QApplication::processEvents();
        const auto* const strip = window.findChild<QMenuBar*>();
        const auto last = strip->actionGeometry(strip->actions().last());
        EXPECT_LE(last.right(), strip->width()) << language;
        EXPECT_GE(last.width(), 20) << language;
        SetTranslator(nullptr);
    }
}

TEST_F(Everyone, HasTheWholeHelpInEveryLanguage)
{
    const auto parts = [&](const QString& language, const QString& name) {
        QFile file(m_programFolder + "help/" + language + '/' + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        QStringList found;
        static const QRegularExpression part("<(h1|h2|p|li|tr|td|pre|a href=[^>]*)[ >]");
        for (const auto& match : part.globalMatch(QString::fromUtf8(file.readAll())))
            found << match.captured(1);
        // Two links can change places within a sentence.
        found.sort();
        return found.join(' ').toStdString();
    };
    for (const auto& page : QDir(m_programFolder + "help/en").entryList({ "*.html" })) {
        const auto english = parts("en", page);
        for (const auto* const language : { "de", "fr", "es", "ja" })
            EXPECT_EQ(parts(language, page), english) << language << ' ' << page.toStdString();
    }
}

TEST_F(Everyone, ReadsOfEveryKeyInTheHelp)
{
    QFile page(m_programFolder + "help/en/keys.html");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const auto text = QString::fromUtf8(page.readAll());
    QSet<QString> told;
    static const QRegularExpression cell("<td class=\"key\">([^<]*)</td>");
    for (const auto& found : cell.globalMatch(text)) {
        for (const auto& key : found.captured(1).split(", "))
            told.insert(key);
    }
    for (const auto& command : AllCommands()) {
        for (const auto key : command.keys) {
            auto name = QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()));
            name.replace("PgDown", "Page Down").replace("PgUp", "Page Up").replace("Return", "Enter");
            name.replace(QRegularExpression("^Del$"), "Delete").replace(QRegularExpression("^[0-9]$"), "0 to 9");
            EXPECT_TRUE(name.isEmpty() || told.contains(name)) << command.id << ": " << name.toStdString();
        }
    }
}

TEST_F(Everyone, HearsCountsAsTheLanguageHasThem)
{
    const auto files = [](int count) { return CountedWords(count, "%n file", "%n files"); };
    const auto in = [&](const char* language) {
        SetTranslator(nullptr);
        SpeakLanguage(*QCoreApplication::instance(), language, m_programFolder + "languages/");
        return files(0) + ", " + files(1) + ", " + files(2);
    };
    EXPECT_EQ(in("en"), "0 files, 1 file, 2 files");
    EXPECT_EQ(in("de"), "0 Dateien, 1 Datei, 2 Dateien");
    EXPECT_EQ(in("fr"), "0 fichier, 1 fichier, 2 fichiers");
    EXPECT_EQ(in("ja"), "0 個のファイル, 1 個のファイル, 2 個のファイル");
    // A name from right to left takes nothing of the sentence along.
    SetTranslator(nullptr);
    EXPECT_EQ(Words("%1 at %2", { "שלום", "0:20" }), "\u2068שלום\u2069 at 0:20");
}

TEST_F(Everyone, SeesTextsAndSigns)
{
    ExpectContrast();
}

TEST_F(Everyone, SeesANewLookInWhatIsOpen)
{
    const auto lookAfter = [](QWidget& top, const style::Needs& needs) {
        style::Apply(*qApp, needs);
        QApplication::processEvents();
        return top.grab().toImage();
    };
    const style::Needs contrast{ true, false };
    std::vector<QImage> changed;
    WithEach([&](QWidget& top) {
        const auto usual = lookAfter(top, {});
        changed.push_back(lookAfter(top, contrast));
        EXPECT_NE(changed.back(), usual) << top.windowTitle().toStdString();
        EXPECT_EQ(lookAfter(top, {}), usual) << top.windowTitle().toStdString();
    });
    std::size_t i = 0;
    style::Apply(*qApp, contrast);
    WithEach([&](QWidget& top) {
        // These two keep a sign and a link, and go with the next key.
        if (const auto& other = changed[i++];
            dynamic_cast<frmAbout*>(&top) == nullptr && dynamic_cast<MessageDialog*>(&top) == nullptr) {
            EXPECT_EQ(lookAfter(top, contrast), other) << i << ' ' << top.windowTitle().toStdString();
        }
    });
}

class EveryoneWithHighContrast : public Everyone {
protected:
    EveryoneWithHighContrast()
        : Everyone({ true, true })
    {
    }
};

TEST_F(EveryoneWithHighContrast, SeesTextsAndSigns)
{
    ExpectContrast();
}

} // namespace
} // namespace zentaro
