#include "tests/playlist/FancyListWorld.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDropEvent>
#include <QImage>
#include <QSignalSpy>
#include <QUrl>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace zentaro {
namespace {

class FancyListTest : public testing::Test {
protected:
    FancyListTest()
    {
        list.setPalette(GraphitePalette());
        list.resize(300, 500);
        list.show();
    }
    QImage Shot()
    {
        auto image = list.grab().toImage();
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QColor Role(QPalette::ColorRole role) const { return list.palette().color(role); }
    void Wheel(int delta)
    {
        const QPointF at(50, 50);
        QWheelEvent event(
            at, list.mapToGlobal(at), {}, { 0, delta }, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &event);
    }
    /// The events as they come, with the selection of that moment.
    std::vector<std::string> Recorded(const std::function<void()>& act)
    {
        std::vector<std::string> events;
        QObject life;
        const auto note = [&](const char* name) { events.push_back(name + std::to_string(state.SelectedItem())); };
        QObject::connect(&list, &FancyList::Click, &life, [=] { note("Click "); });
        QObject::connect(&list, &FancyList::DblClick, &life, [=] { note("DblClick "); });
        QObject::connect(&list, &FancyList::MouseDown, &life, [=] { note("MouseDown "); });
        QObject::connect(&list, &FancyList::KeyUp, &life, [=] { note("KeyUp "); });
        act();
        return events;
    }
    FancyListState state;
    FancyList list{ PrepareList(state) };
};

TEST_F(FancyListTest, AnEmptyListIsAClearedSurface)
{
    auto cleared = Shot();
    cleared.fill(Role(QPalette::Window));
    EXPECT_EQ(Shot(), cleared);
}

TEST_F(FancyListTest, RowsHaveSeparatorsTheSelectedOneItsColourAndNone)
{
    for (int i = 0; i < 3; ++i)
        state.AddItem("", {});
    state.SetSelectedItem(1);
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
}

TEST_F(FancyListTest, AThumbnailLiesFittedInItsBlackBox)
{
    state.AddItem("", Plain(640, 480, 0xFF00FF00));
    auto shot = Shot();
    EXPECT_EQ(shot.pixelColor(8, 15), QColor(Qt::black));
    EXPECT_EQ(shot.pixelColor(8, 16), QColor(Qt::green));
    EXPECT_EQ(shot.pixelColor(71, 63), QColor(Qt::green));
    EXPECT_EQ(shot.pixelColor(71, 64), QColor(Qt::black));
    EXPECT_EQ(shot.pixelColor(7, 40), Role(QPalette::Window));
    EXPECT_EQ(shot.pixelColor(72, 40), Role(QPalette::Window));
    state.SetNoThumbBlack(true);
    EXPECT_EQ(Shot().pixelColor(8, 15), Role(QPalette::Window));
    state.SetThumbnails(false);
    EXPECT_EQ(Shot().pixelColor(8, 16), Role(QPalette::Window));
}

TEST_F(FancyListTest, TitlesOfAnyKindStayInTheirRectangle)
{
    const std::string titles[] = { std::string(10'000, 'W'), "a\nb\r\nc\rd\ne\nf\ng\nh",
        "\u05E9\u05DC\u05D5\u05DD \u200F\u0627\u0628", "\U0001F3AC\U0001F468\u200D\U0001F469\u200D\U0001F467 film",
        "Tom & Jerry && \t\x01", "odd \xFF\xFE bytes" };
    for (const auto& title : titles)
        state.AddItem(title, Plain(1, 5000, 0xFFFFFFFF), "0:10");
    state.SetSurfaceSize(300, 500);
    const auto shot = Shot();
    for (int y = 0; y < 480; ++y) {
        ASSERT_EQ(shot.pixelColor(76, y), y % 80 == 79 ? Role(QPalette::Button) : Role(QPalette::Window)) << y;
        ASSERT_EQ(shot.pixelColor(293, y), y % 80 == 79 ? Role(QPalette::Button) : Role(QPalette::Window)) << y;
    }
    EXPECT_NE(shot.copy(80, 0, 200, 79), shot.copy(80, 320, 200, 79));
}

TEST_F(FancyListTest, AnAmpersandIsShownAsItIs)
{
    state.AddItem("a&b", {});
    state.AddItem("ab", {});
    const auto shot = Shot();
    EXPECT_NE(shot.copy(80, 0, 200, 79), shot.copy(80, 80, 200, 79));
}

TEST_F(FancyListTest, ThePressSelectsBeforeTheEventsComeInTheirOrder)
{
    state.AddItem("a", {});
    state.AddItem("b", {});
    using Events = std::vector<std::string>;
    EXPECT_EQ(Recorded([&] {
        QTest::mouseClick(&list, Qt::LeftButton, {}, { 100, 100 });
    }),
        (Events{ "MouseDown 1", "Click 1" }));
    EXPECT_EQ(Recorded([&] { QTest::mouseClick(&list, Qt::RightButton, {}, { 100, 20 }); }), (Events{ "MouseDown 1" }));
    EXPECT_EQ(Recorded([&] { QTest::mouseDClick(&list, Qt::LeftButton, {}, { 100, 20 }); }).back(), "DblClick 0");
    EXPECT_EQ(Recorded([&] { QTest::keyClick(&list, Qt::Key_Down); }), (Events{ "KeyUp 0" }));
    QTest::mouseClick(&list, Qt::LeftButton, {}, { 100, 300 });
    EXPECT_EQ(state.SelectedItem(), FancyListState::kNone);
}

TEST_F(FancyListTest, TheWheelScrollsAndFineStepsAddUp)
{
    for (int i = 0; i < 20; ++i)
        state.AddItem("row", {});
    Wheel(-120);
    EXPECT_EQ(state.ScrollValue(), 8);
    for (int i = 0; i < 4; ++i)
        Wheel(-4);
    EXPECT_EQ(state.ScrollValue(), 9);
}

TEST_F(FancyListTest, TheScrollBarIsDraggedWithoutSelecting)
{
    for (int i = 0; i < 20; ++i)
        state.AddItem("row", {});
    EXPECT_TRUE(Recorded([&] {
        QTest::mousePress(&list, Qt::LeftButton, {}, { 292, 5 });
        QTest::mouseMove(&list, { 292, 499 });
        QTest::mouseRelease(&list, Qt::LeftButton, {}, { 292, 499 });
    }).empty());
    EXPECT_EQ(state.ScrollValue(), state.ScrollMax());
    EXPECT_EQ(state.SelectedItem(), FancyListState::kNone);
}

TEST_F(FancyListTest, DroppedNamesKeepTheirBytes)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile("/v/a b%20&\u00E4.avi"), QUrl("http://host/x.avi"),
        QUrl::fromEncoded("file:///v/odd%FF%20x.avi") });
    EXPECT_EQ(DroppedPaths(data), (std::vector<std::string>{ "/v/a b%20&\u00E4.avi", "/v/odd\xFF x.avi" }));
    std::vector<std::string> dropped;
    QObject::connect(
        &list, &FancyList::OLEDragDrop, &list, [&](const QMimeData* mime) { dropped = DroppedPaths(*mime); });
    QDragEnterEvent enter({ 10, 10 }, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&list, &enter);
    QDropEvent drop({ 10, 10 }, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&list, &drop);
    EXPECT_EQ(dropped.size(), 2u);
    // After a move the source would delete its files.
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
}

TEST_F(FancyListTest, TheProgressLineTakesItsRoomFromTheRowsAndCancels)
{
    list.ShowAddProgress({ 12, 340 });
    EXPECT_LT(state.SurfaceHeight(), 500);
    QSignalSpy cancelled(&list, &FancyList::CancelAdding);
    auto* button = list.findChild<QAbstractButton*>();
    ASSERT_TRUE(button && button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(cancelled.count(), 1);
    list.ShowAddProgress({});
    EXPECT_EQ(state.SurfaceHeight(), 500);
}

TEST_F(FancyListTest, AScreenReaderFindsTheRows)
{
    state.AddItem("a.avi", {}, "0:10");
    state.AddItem("b.avi", {});
    state.SetSelectedItem(1);
    state.SetPlayingItem(1);
    auto* face = QAccessible::queryAccessibleInterface(&list);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->role(), QAccessible::List);
    auto* second = face->child(1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->text(QAccessible::Name).toStdString(), "b.avi, playing");
    EXPECT_TRUE(second->state().selected);
    EXPECT_EQ(face->child(0)->text(QAccessible::Description).toStdString(), "0:10");
    EXPECT_EQ(face->indexOfChild(second), 1);
    const auto middle = list.mapToGlobal(QPoint(50, 100));
    EXPECT_EQ(face->childAt(middle.x(), middle.y()), second);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    state.Clear();
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
