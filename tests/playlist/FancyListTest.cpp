#include "playlist/FancyList.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QUrl>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

using Events = std::vector<std::string>;

constexpr QRgb kWindow = 0xFF202020;
constexpr QRgb kLine = 0xFF303030;
constexpr QRgb kSelected = 0xFF404040;
constexpr QRgb kGreen = 0xFF00FF00;

Picture Plain(int width, int height, QRgb color)
{
    return { width, height,
        std::vector<QRgb>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), color) };
}

class FancyListTest : public testing::Test {
protected:
    FancyListTest()
    {
        QPalette palette(Qt::white, QColor(kLine), {}, {}, {}, Qt::white, Qt::white, {}, QColor(kWindow));
        palette.setColor(QPalette::Highlight, QColor(kSelected));
        list.SetImageWidth(64);
        list.SetImageHeight(64);
        list.SetItemHeight(80);
        list.setPalette(palette);
        list.resize(300, 500);
        list.show();
    }
    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
            list.AddItem("row " + std::to_string(i), {});
    }
    QImage Shot() { return list.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// The colours of a column of the surface, from the top.
    std::vector<QRgb> Column(int x, const std::vector<int>& ys)
    {
        std::vector<QRgb> colors;
        std::transform(
            ys.begin(), ys.end(), std::back_inserter(colors), [&, shot = Shot()](int y) { return shot.pixel(x, y); });
        return colors;
    }
    /// The events as they come, with the selection of that moment.
    Events Recorded(const std::function<void()>& act)
    {
        Events events;
        QObject life;
        const auto note = [&](const char* name) { events.push_back(name + std::to_string(items.SelectedItem())); };
        QObject::connect(&list, &FancyList::Click, &life, [=] { note("Click "); });
        QObject::connect(&list, &FancyList::DblClick, &life, [=] { note("DblClick "); });
        QObject::connect(&list, &FancyList::MouseDown, &life, [=] { note("MouseDown "); });
        QObject::connect(&list, &FancyList::KeyUp, &life, [=] { note("KeyUp "); });
        act();
        return events;
    }
    FancyListItems items;
    FancyList list{ items };
};

TEST_F(FancyListTest, RowsHaveSeparatorsTheSelectedOneItsColourAndNone)
{
    auto cleared = Shot();
    cleared.fill(kWindow);
    EXPECT_EQ(Shot(), cleared);
    list.SetHint("Drop files here, or press Ctrl+O");
    EXPECT_NE(Shot(), cleared);
    for (int i = 0; i < 3; ++i)
        list.AddItem("", {});
    list.SetSelectedItem(1);
    for (const int x : { 0, 150, 299 })
        EXPECT_EQ(Column(x, { 78, 79, 80, 158, 159, 239, 240 }),
            (std::vector{ kWindow, kLine, kSelected, kSelected, kWindow, kLine, kWindow }));
    items.SetPlayingItem(2);
    EXPECT_EQ(Column(1, { 120, 200 }), (std::vector{ kSelected, kWarmLight }));
    QFocusEvent byKey(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&list, &byKey);
    EXPECT_EQ(Shot().pixel(0, 0), kWarmLight);
    QFocusEvent byClick(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(&list, &byClick);
    EXPECT_EQ(Shot().pixel(0, 0), kWindow) << "the pointer shows where a click went";
}

TEST_F(FancyListTest, AThumbnailLiesFittedInItsBlackBox)
{
    list.AddItem("", Plain(640, 480, kGreen));
    EXPECT_EQ(Column(8, { 7, 8, 15, 16, 63, 64 }),
        (std::vector{ kWindow, 0xFF000000, 0xFF000000, kGreen, kGreen, 0xFF000000 }));
    EXPECT_EQ(Column(71, { 16 }), (std::vector{ kGreen }));
    EXPECT_EQ(Column(7, { 16 }), (std::vector{ kWindow }));
    EXPECT_EQ(Column(72, { 16 }), (std::vector{ kWindow }));
    list.SetNoThumbBlack(true);
    EXPECT_EQ(Column(8, { 15, 16 }), (std::vector{ kWindow, kGreen }));
    list.SetThumbnails(false);
    EXPECT_EQ(Column(8, { 16 }), (std::vector{ kWindow }));
}

TEST_F(FancyListTest, TitlesOfAnyKindStayInTheirRectangle)
{
    list.SetItemHeight(70);
    for (const auto* const title : { "\u05E9\u05DC\u05D5\u05DD \u200F\u0627\u0628", "odd \xFF\xFE bytes \t\x01",
             "\U0001F3AC\U0001F468\u200D\U0001F469", "a\nb\nc\nd\ne\nf" })
        items.AddItem(title + std::string(10'000, 'W'), Plain(1, 5000, 0xFFFFFFFF), "0:10");
    items.AddItem("__\n__\n__\n__", {});
    const auto shot = Shot();
    for (int y = 0; y < 500; ++y) {
        for (const int x : y < 350 ? std::vector{ 76, 293 } : std::vector{ 82, 86, 90, 94 })
            ASSERT_EQ(shot.pixel(x, y), y < 350 && y % 70 == 69 ? kLine : kWindow) << x << ", " << y;
    }
}

TEST_F(FancyListTest, LinesShowWhatTheySayAsFarAsThereIsRoom)
{
    const auto shown = [&](const std::string& title, const std::string& detail = {}) {
        list.Clear();
        items.AddItem(title, {}, detail);
        return Shot().copy(80, 0, 200, 79);
    };
    EXPECT_NE(shown("a&b"), shown("ab")) << "an ampersand is shown as it is";
    EXPECT_NE(shown("a", "0:10"), shown("a"));
    EXPECT_EQ(shown("a", "0:10"), shown("a", "0:10 \u00B7 " + std::string(80, '9'))) << "a part without room goes";
    EXPECT_NE(shown("\nb"), shown("b"));
    EXPECT_EQ(shown("a\nb"), shown("a\r\nb"));
    EXPECT_EQ(shown("a\nb"), shown("a\rb"));
    EXPECT_EQ(shown("a\tb"), shown("a b"));
    // A name that is read from the right is cut at the left; its letters may all look the same here.
    const auto alephs = [](int count) {
        std::string text;
        while (count-- > 0)
            text += "\u05D0";
        return text;
    };
    EXPECT_NE(shown(alephs(121)), shown("\u05D0" + std::string(20, ' ') + alephs(100)));
    list.Clear();
    items.AddItem("a\tb", {});
    list.AddItem("<b>" + std::string(100, 'W'), {});
    const auto tipAt = [&](int y) {
        QHelpEvent help(QEvent::ToolTip, { 100, y }, list.mapToGlobal(QPoint(100, y)));
        QApplication::sendEvent(&list, &help);
        return QToolTip::text().toStdString();
    };
    EXPECT_EQ(tipAt(10) + tipAt(450), "");
    EXPECT_EQ(tipAt(90), "<p>&lt;b&gt;" + std::string(100, 'W') + "</p>") << "a title that is cut";
}

TEST_F(FancyListTest, ThePressSelectsBeforeTheEventsComeInTheirOrder)
{
    Add(20);
    list.Scroll(-1280);
    const auto clicked = [&](Qt::MouseButton button, int x, int y) {
        return Recorded([&] { QTest::mouseClick(&list, button, {}, { x, y }); });
    };
    EXPECT_EQ(clicked(Qt::LeftButton, 100, 100), (Events{ "MouseDown 2", "Click 2" }));
    EXPECT_EQ(clicked(Qt::RightButton, 100, 20), (Events{ "MouseDown 2" }));
    EXPECT_EQ(Recorded([&] { QTest::mouseDClick(&list, Qt::LeftButton, {}, { 100, 20 }); }).back(), "DblClick 1");
    EXPECT_EQ(Recorded([&] { QTest::keyClick(&list, Qt::Key_Down); }), (Events{ "KeyUp 1" }));
    const auto leave = [&] {
        QTest::mousePress(&list, Qt::LeftButton, {}, { 100, 20 });
        QTest::mouseRelease(&list, Qt::LeftButton, {}, { 100, 600 });
    };
    EXPECT_EQ(Recorded(leave), (Events{ "MouseDown 1" }));
    while (list.Count() > 2)
        list.RemoveItem(0);
    EXPECT_EQ(clicked(Qt::LeftButton, 295, 300), (Events{ "MouseDown -1", "Click -1" })) << "here is no scroll bar now";
}

TEST_F(FancyListTest, TheScrollBarIsDraggedWithoutSelectingAndFineStepsOfTheWheelAddUp)
{
    Add(20);
    const auto& layout = list.Layout();
    const auto drag = [&] {
        QTest::mousePress(&list, Qt::LeftButton, {}, { 292, 5 });
        EXPECT_EQ(layout.ScrollValue(), 0) << "the thumb is held where it was taken";
        QTest::mouseMove(&list, { 292, 105 });
        EXPECT_EQ(layout.ScrollValue(), layout.ScrollValueForThumb(layout.ScrollBar(8).top + 100));
        QTest::mouseMove(&list, { 292, 499 });
        QTest::mouseRelease(&list, Qt::LeftButton, {}, { 292, 499 });
        QTest::mouseMove(&list, { 100, 10 });
    };
    EXPECT_EQ(Recorded(drag), Events{});
    EXPECT_EQ(layout.ScrollValue(), layout.ScrollMax());
    for (int i = 0; i < 4; ++i) {
        QWheelEvent fine({}, {}, {}, { 0, 4 }, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &fine);
    }
    EXPECT_EQ(layout.ScrollValue(), layout.ScrollMax() - 10);
}

TEST_F(FancyListTest, DroppedNamesKeepTheirBytes)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile("/v/a b%20&\u00E4.avi"), QUrl("http://host/x.avi"),
        QUrl::fromEncoded("file:///v/odd%FF%20x.avi") });
    Events dropped;
    QObject::connect(
        &list, &FancyList::OLEDragDrop, &list, [&](const QMimeData* mime) { dropped = DroppedPaths(*mime); });
    QDragEnterEvent enter({ 10, 10 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&list, &enter);
    QDropEvent drop({ 10, 10 }, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&list, &drop);
    EXPECT_EQ(dropped, (Events{ "/v/a b%20&\u00E4.avi", "/v/odd\xFF x.avi" }));
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "after a move the source would delete its files";
}

TEST_F(FancyListTest, TheProgressLineTakesItsRoomFromTheRowsAndCancels)
{
    list.ShowAddProgress({ 6, 10 });
    EXPECT_EQ(list.Layout().SurfaceHeight(), 464);
    EXPECT_TRUE(Shot().pixel(149, 464) == kWarmLight && Shot().pixel(150, 464) != kWarmLight) << "five are done";
    QSignalSpy cancelled(&list, &FancyList::CancelAdding);
    const auto buttons = list.findChildren<QAbstractButton*>();
    auto* const button = *std::ranges::find(buttons, QString("Cancel"), &QAbstractButton::text);
    EXPECT_EQ(button->parentWidget()->accessibleName(), "Adding 6 of 10");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(cancelled.count(), 1);
    list.ShowAddProgress({});
    EXPECT_EQ(list.Layout().SurfaceHeight(), 500);
}

TEST_F(FancyListTest, AScreenReaderFindsTheRowsAndThenTheWidgets)
{
    items.AddItem("a.avi", {}, "0:10");
    Add(19);
    list.SetSelectedItem(1);
    items.SetPlayingItem(1);
    list.ShowAddProgress({ 1, 2 });
    list.Scroll(-1600);
    auto& face = *QAccessible::queryAccessibleInterface(&list);
    const auto at = [&](int y) {
        const auto place = list.mapToGlobal(QPoint(50, y));
        return face.indexOfChild(face.childAt(place.x(), place.y()));
    };
    auto& first = *face.child(0);
    auto& second = *face.child(1);
    EXPECT_EQ(face.role(), QAccessible::List);
    EXPECT_GT(face.childCount(), 20);
    EXPECT_EQ((std::vector{ at(50), at(70), at(490) }), (std::vector{ 1, 2, 20 }));
    EXPECT_EQ(first.text(QAccessible::Name) + first.text(QAccessible::Description), "a.avi0:10");
    EXPECT_EQ(second.text(QAccessible::Name), "row 0, playing");
    EXPECT_EQ(second.rect().topLeft(), list.mapToGlobal(QPoint(0, -20)));
    EXPECT_TRUE(first.state().offscreen && !first.state().selected);
    EXPECT_TRUE(second.state().selected && !second.state().offscreen && face.child(19)->state().offscreen);
    const auto press = [&] {
        first.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QApplication::processEvents();
    };
    EXPECT_EQ(Recorded(press), (Events{ "DblClick 0" }));
    list.Clear();
    EXPECT_EQ(at(50), -1);
    EXPECT_FALSE(second.isValid());
    EXPECT_TRUE(second.text(QAccessible::Name).isEmpty());
}

} // namespace
} // namespace zentaro
