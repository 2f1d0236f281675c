#include "playlist/FancyList.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QToolTip>
#include <QUrl>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

using Events = std::vector<std::string>;

QPalette GraphitePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x1B, 0x1E, 0x24));
    palette.setColor(QPalette::ButtonText, QColor(0xE8, 0xEA, 0xED));
    palette.setColor(QPalette::Button, QColor(0x2A, 0x2D, 0x33));
    palette.setColor(QPalette::Highlight, QColor(0x33, 0x38, 0x42));
    palette.setColor(QPalette::HighlightedText, QColor(0xFF, 0xFF, 0xFF));
    return palette;
}

Picture Plain(int width, int height, std::uint32_t pixel)
{
    return { width, height,
        std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel) };
}

class FancyListTest : public testing::Test {
protected:
    FancyListTest()
    {
        list.SetImageWidth(64);
        list.SetImageHeight(64);
        list.SetItemHeight(80);
        list.setPalette(GraphitePalette());
        list.resize(300, 500);
        list.show();
    }
    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
            list.AddItem("row", {});
    }
    QImage Shot() { return list.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// What lies right of the thumbnail box of a row.
    QImage TextShot(int row) { return Shot().copy(80, 80 * row, 200, 79); }
    QColor Role(QPalette::ColorRole role) const { return list.palette().color(role); }
    void Wheel(int delta)
    {
        const QPointF at(50, 50);
        QWheelEvent event(
            at, list.mapToGlobal(at), {}, { 0, delta }, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &event);
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

TEST_F(FancyListTest, AnEmptyListIsAClearedSurface)
{
    auto cleared = Shot();
    cleared.fill(Role(QPalette::Window));
    EXPECT_EQ(Shot(), cleared);
}

TEST_F(FancyListTest, ItsPropertiesMoveTheRowsAndPaintThemAnew)
{
    const FancyList& shown = list;
    list.SetImageWidth(10);
    list.SetImageHeight(20);
    list.SetPadding(3);
    list.SetItemHeight(50);
    EXPECT_EQ(list.Layout().ImageRect(1), (ListRect{ 3, 53, 13, 73 }));
    EXPECT_EQ((std::vector{ shown.ImageWidth(), shown.ImageHeight(), shown.Padding(), shown.ItemHeight() }),
        (std::vector{ 10, 20, 3, 50 }));
    list.SetRefresh(false);
    list.AddItem("a", {});
    list.AddItem("b", {});
    list.SetSelectedItem(1);
    list.RemoveItem(0);
    EXPECT_EQ(shown.SelectedItem(), 0);
    EXPECT_EQ(shown.SelectedText(), "b");
    EXPECT_FALSE(shown.Refresh());
    list.Clear();
    EXPECT_EQ(shown.Count(), 0);
}

TEST_F(FancyListTest, RowsHaveSeparatorsTheSelectedOneItsColourAndNone)
{
    for (int i = 0; i < 3; ++i)
        list.AddItem("", {});
    list.SetSelectedItem(1);
    items.SetPlayingItem(2);
    const auto shot = Shot();
    for (const int x : { 0, 150, 299 }) {
        EXPECT_EQ(shot.pixelColor(x, 78), Role(QPalette::Window));
        EXPECT_EQ(shot.pixelColor(x, 79), Role(QPalette::Button));
        EXPECT_EQ(shot.pixelColor(x, 80), Role(QPalette::Highlight));
        EXPECT_EQ(shot.pixelColor(x, 158), Role(QPalette::Highlight));
        EXPECT_EQ(shot.pixelColor(x, 159), Role(QPalette::Window));
        EXPECT_EQ(shot.pixelColor(x, 239), Role(QPalette::Button));
        EXPECT_EQ(shot.pixelColor(x, 240), Role(QPalette::Window));
    }
    EXPECT_EQ(shot.pixelColor(1, 200).rgba(), kWarmLight) << "the mark of the row being played";
}

TEST_F(FancyListTest, AThumbnailLiesFittedInItsBlackBox)
{
    list.AddItem("", Plain(640, 480, 0xFF00FF00));
    auto shot = Shot();
    EXPECT_EQ(shot.pixelColor(8, 15), QColor(Qt::black));
    EXPECT_EQ(shot.pixelColor(8, 16), QColor(Qt::green));
    EXPECT_EQ(shot.pixelColor(71, 63), QColor(Qt::green));
    EXPECT_EQ(shot.pixelColor(71, 64), QColor(Qt::black));
    EXPECT_EQ(shot.pixelColor(7, 40), Role(QPalette::Window));
    EXPECT_EQ(shot.pixelColor(72, 40), Role(QPalette::Window));
    list.SetNoThumbBlack(true);
    EXPECT_EQ(Shot().pixelColor(8, 15), Role(QPalette::Window));
    list.SetThumbnails(false);
    EXPECT_EQ(Shot().pixelColor(8, 16), Role(QPalette::Window));

    QImage surface(20, 20, QImage::Format_RGB32);
    surface.fill(Qt::white);
    QPainter painter(&surface);
    list.RenderThumb(painter, Plain(4, 2, 0xFF00FF00), 5, 5, 8, 4);
    EXPECT_EQ(surface.pixelColor(12, 8), QColor(Qt::green));
    EXPECT_EQ(surface.pixelColor(13, 8), QColor(Qt::white));
}

TEST_F(FancyListTest, TitlesOfAnyKindStayInTheirRectangle)
{
    const std::string titles[] = { std::string(10'000, 'W'), "a\nb\r\nc\rd\ne\nf\ng\nh",
        "\u05E9\u05DC\u05D5\u05DD \u200F\u0627\u0628", "\U0001F3AC\U0001F468\u200D\U0001F469\u200D\U0001F467 film",
        "Tom & Jerry && \t\x01", "odd \xFF\xFE bytes" };
    for (const auto& title : titles)
        items.AddItem(title, Plain(1, 5000, 0xFFFFFFFF), "0:10");
    const auto shot = Shot();
    for (int y = 0; y < 480; ++y) {
        ASSERT_EQ(shot.pixelColor(76, y), y % 80 == 79 ? Role(QPalette::Button) : Role(QPalette::Window)) << y;
        ASSERT_EQ(shot.pixelColor(293, y), y % 80 == 79 ? Role(QPalette::Button) : Role(QPalette::Window)) << y;
    }
}

TEST_F(FancyListTest, LinesShowWhatTheySayAsFarAsThereIsRoom)
{
    items.AddItem("a&b", {}, "0:10");
    items.AddItem("ab", {}, "0:10");
    items.AddItem("ab", {}, "0:10 \u00B7 " + std::string(80, '9'));
    items.AddItem("ab", {});
    EXPECT_NE(TextShot(0), TextShot(1)) << "an ampersand is shown as it is";
    EXPECT_EQ(TextShot(1), TextShot(2)) << "parts of the detail that have no room are left out";
    EXPECT_NE(TextShot(1), TextShot(3)) << "the detail is shown";

    list.AddItem("<b>" + std::string(100, 'W'), {});
    const auto tipAt = [&](int y) {
        QHelpEvent help(QEvent::ToolTip, { 100, y }, list.mapToGlobal(QPoint(100, y)));
        QApplication::sendEvent(&list, &help);
        return QToolTip::text().toStdString();
    };
    EXPECT_EQ(tipAt(10), "");
    EXPECT_EQ(tipAt(450), "");
    EXPECT_EQ(tipAt(330), "<p>&lt;b&gt;" + std::string(100, 'W') + "</p>") << "a title that is cut";
}

TEST_F(FancyListTest, ThePressSelectsBeforeTheEventsComeInTheirOrder)
{
    Add(20);
    Wheel(-1280);
    const auto clicked = [&](Qt::MouseButton button, int y) {
        return Recorded([&] { QTest::mouseClick(&list, button, {}, { 100, y }); });
    };
    EXPECT_EQ(clicked(Qt::LeftButton, 100), (Events{ "MouseDown 2", "Click 2" }));
    EXPECT_EQ(clicked(Qt::RightButton, 20), (Events{ "MouseDown 2" }));
    EXPECT_EQ(Recorded([&] { QTest::mouseDClick(&list, Qt::LeftButton, {}, { 100, 20 }); }).back(), "DblClick 1");
    EXPECT_EQ(Recorded([&] { QTest::keyClick(&list, Qt::Key_Down); }), (Events{ "KeyUp 1" }));
    EXPECT_EQ(Recorded([&] {
        QTest::mousePress(&list, Qt::LeftButton, {}, { 100, 20 });
        QTest::mouseRelease(&list, Qt::LeftButton, {}, { 100, 600 });
    }),
        (Events{ "MouseDown 1" }));
    while (list.Count() > 2)
        list.RemoveItem(0);
    EXPECT_EQ(clicked(Qt::LeftButton, 300), (Events{ "MouseDown -1", "Click -1" }));
}

TEST_F(FancyListTest, TheWheelScrollsAndFineStepsAddUp)
{
    Add(20);
    Wheel(-120);
    EXPECT_EQ(list.Layout().ScrollValue(), 8);
    for (int i = 0; i < 4; ++i)
        Wheel(-4);
    EXPECT_EQ(list.Layout().ScrollValue(), 9);
}

TEST_F(FancyListTest, TheScrollBarIsDraggedWithoutSelecting)
{
    Add(20);
    const auto barColor = [&] { return Shot().pixelColor(292, 250); };
    const auto idle = barColor();
    EXPECT_TRUE(Recorded([&] {
        QTest::mousePress(&list, Qt::LeftButton, {}, { 292, 5 });
        EXPECT_EQ(list.Layout().ScrollValue(), 0) << "the thumb is held where it was taken";
        QTest::mouseMove(&list, { 292, 250 });
        EXPECT_NE(barColor(), idle);
        QTest::mouseMove(&list, { 292, 499 });
        QTest::mouseRelease(&list, Qt::LeftButton, {}, { 292, 499 });
    }).empty());
    EXPECT_EQ(list.Layout().ScrollValue(), list.Layout().ScrollMax());
    EXPECT_EQ(list.SelectedItem(), FancyListItems::kNone);
    QTest::mouseMove(&list, { 100, 10 });
    EXPECT_EQ(list.Layout().ScrollValue(), list.Layout().ScrollMax()) << "let go";
}

TEST_F(FancyListTest, OnlyKeysThatBringTheFocusFrameTheList)
{
    const auto corner = [&](Qt::FocusReason reason) {
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(&list, &in);
        return Shot().pixelColor(0, 0);
    };
    EXPECT_EQ(corner(Qt::TabFocusReason).rgba(), kWarmLight);
    EXPECT_EQ(corner(Qt::MouseFocusReason), Role(QPalette::Window));
}

TEST_F(FancyListTest, DroppedNamesKeepTheirBytes)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile("/v/a b%20&\u00E4.avi"), QUrl("http://host/x.avi"),
        QUrl::fromEncoded("file:///v/odd%FF%20x.avi") });
    std::vector<std::string> dropped;
    QObject::connect(
        &list, &FancyList::OLEDragDrop, &list, [&](const QMimeData* mime) { dropped = DroppedPaths(*mime); });
    QDragEnterEvent enter({ 10, 10 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&list, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({ 10, 10 }, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&list, &drop);
    EXPECT_EQ(dropped, (std::vector<std::string>{ "/v/a b%20&\u00E4.avi", "/v/odd\xFF x.avi" }));
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "after a move the source would delete its files";
}

TEST_F(FancyListTest, TheProgressLineTakesItsRoomFromTheRowsAndCancels)
{
    list.ShowAddProgress({ 12, 340 });
    EXPECT_EQ(list.Layout().SurfaceHeight(), 464);
    QSignalSpy cancelled(&list, &FancyList::CancelAdding);
    auto* button = list.findChild<QAbstractButton*>();
    ASSERT_TRUE(button && button->isVisible());
    EXPECT_EQ(button->parentWidget()->accessibleName(), "Adding 12 of 340");
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(cancelled.count(), 1);
    list.ShowAddProgress({});
    EXPECT_EQ(list.Layout().SurfaceHeight(), 500);
}

TEST_F(FancyListTest, AScreenReaderFindsTheRows)
{
    items.AddItem("a.avi", {}, "0:10");
    list.AddItem("b.avi", {});
    list.SetSelectedItem(1);
    items.SetPlayingItem(1);
    auto* face = QAccessible::queryAccessibleInterface(&list);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->role(), QAccessible::List);
    auto* second = face->child(1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->text(QAccessible::Name), "b.avi, playing");
    EXPECT_EQ(face->child(0)->text(QAccessible::Name), "a.avi");
    EXPECT_TRUE(second->state().selected && !face->child(0)->state().selected);
    EXPECT_EQ(face->child(0)->text(QAccessible::Description), "0:10");
    EXPECT_EQ(face->indexOfChild(second), 1);
    const auto middle = list.mapToGlobal(QPoint(50, 100));
    EXPECT_EQ(face->childAt(middle.x(), middle.y()), second);
    EXPECT_EQ(Recorded([&] { face->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }),
        (Events{ "DblClick 0" }));
    list.Clear();
    EXPECT_FALSE(second->isValid());
    EXPECT_TRUE(second->text(QAccessible::Name).isEmpty());
}

TEST(ThumbCacheTest, ScaledPicturesAreKeptPerSize)
{
    ThumbCache cache;
    const auto picture = Plain(640, 480, 0xFF102030);
    const auto first = cache.Scaled(picture, { 64, 48 });
    EXPECT_EQ(cache.Scaled(picture, { 64, 48 }).cacheKey(), first.cacheKey());
    EXPECT_EQ(cache.Scaled(picture, { 128, 96 }).size(), QSize(128, 96));
    EXPECT_EQ(cache.Scaled(Plain(2, 2, 0x80FFFFFF), { 1, 1 }).pixelColor(0, 0).alpha(), 0x80);
    EXPECT_TRUE(cache.Scaled(picture, { 0, 64 }).isNull());
    EXPECT_TRUE(cache.Scaled({}, { 64, 64 }).isNull());
}

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
