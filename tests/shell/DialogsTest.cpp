#include "shell/MessageDialog.h"
#include "shell/frmAbout.h"
#include "shell/frmSettings.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QScreen>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <set>

namespace zentaro {
namespace {

/// What Tab reaches, by the names that are read out. Fails where there is none.
std::set<std::string> ReachedByTab(QWidget& dialog)
{
    std::set<std::string> reached;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        auto* const control = QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        const auto labels = control->relations(QAccessible::Label);
        const auto* const named = labels.empty() ? control : labels.front().first;
        const auto name = named->text(QAccessible::Name).toStdString();
        EXPECT_TRUE(!name.empty() || control->role() == QAccessible::PageTabList) << dialog.windowTitle().toStdString();
        reached.insert(name);
    }
    return reached;
}

TEST(DialogsTest, EveryOptionIsReachedByTabAndReadOut)
{
    Skin skin;
    std::vector<FileTypeRow> rows(24);
    rows[3].isDecidedElsewhere = true; // for which there is a button of its own
    frmSettings dialog({}, rows, skin, nullptr);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* const tabs = dialog.findChild<QTabWidget*>();
    const std::size_t counts[] = { 12, 10, 4 };
    for (int page = 0; page < 3; ++page) {
        tabs->setCurrentIndex(page);
        tabs->tabBar()->setFocus();
        EXPECT_GE(ReachedByTab(dialog).size(), counts[page]);
    }
    frmAbout about(skin, nullptr);
    about.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&about));
    EXPECT_EQ(ReachedByTab(about), (std::set<std::string>{ "OK", "The web page of VLC" }));
}

TEST(DialogsTest, EveryBoxSetsTheOptionThatItNames)
{
    const std::pair<const char*, bool SettingsPages::*> boxes[] = {
        { "Always on &top", &SettingsPages::alwaysOnTop },
        { "Icon in the tra&y", &SettingsPages::showInTray },
        { "Remember the posit&ion", &SettingsPages::rememberLastPos },
        { "Remember the si&ze", &SettingsPages::rememberLastSize },
        { "&Keep History of recently Opened files.", &SettingsPages::keepHistory },
        { "&Launch Files in Fullscreen.", &SettingsPages::launchFullScreen },
        { "&Use new player for each media file played.", &SettingsPages::useNewPlayer },
        { "Disable the screen sa&ver", &SettingsPages::disableScreenSaver },
        { "Show a small previe&w in the window", &SettingsPages::snapshotPreview },
    };
    for (const auto& [name, field] : boxes) {
        SettingsPages before;
        before.snapshotPath = "/snapshots";
        auto after = before;
        after.*field = true;
        Skin skin;
        frmSettings dialog(before, std::vector<FileTypeRow>(24), skin, nullptr);
        std::vector<SettingsPages> committed;
        QObject::connect(&dialog, &frmSettings::Commit, [&](const SettingsPages& shown, const SettingsPages& chosen) {
            committed.push_back(shown);
            committed.push_back(chosen);
        });
        const auto press = [&dialog](const QString& text) {
            for (auto* const button : dialog.findChildren<QAbstractButton*>()) {
                if (button->text() == text)
                    button->click();
            }
        };
        press(name);
        press("&Apply");
        press("&Apply"); // nothing is left to apply
        press(name);
        press("OK");
        EXPECT_EQ(committed, (std::vector{ before, after, after, before })) << name;
    }
}

TEST(DialogsTest, NoticesOfAnyLengthFitTheScreen)
{
    Skin skin;
    for (const auto* const part : { "x", "Cannot open file </clips/x.mp4>\r\n", "" }) {
        std::string text;
        for (int i = 0; i < 50000 && *part != 0; ++i)
            text += part;
        MessageDialog notice({ text }, skin, nullptr);
        notice.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&notice));
        EXPECT_LE(notice.height(), notice.screen()->availableSize().height() * 2 / 3);
        EXPECT_LE(notice.width(), 600);
        EXPECT_EQ(notice.findChild<QTextEdit*>()->verticalScrollBar()->isVisible(), *part != 0);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(notice.isVisible());
    }
}

} // namespace
} // namespace zentaro
