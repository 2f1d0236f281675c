#include "shell/Skin.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/VolumeKnob.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace zentaro {
namespace {

constexpr QRgb kUnpainted = 0xFF000000;

/// A skin on the disk whose every image has one colour of its own.
class FlatSkin {
public:
    FlatSkin()
    {
        const QDir dir(folder);
        for (const auto* const state : { "Normal", "Over", "Press", "Disabel" })
            dir.mkpath(state);
        int number = 0;
        for (const auto& file : SkinLoadOrder()) {
            // Far enough apart to stay different through JPEG.
            const QColor color(40 + number % 5 * 50, 40 + number / 5 % 5 * 50, 40 + number / 25 * 50);
            ++number;
            const auto path = folder + ToQString(file.name);
            if (file.image != SkinImage::AboutBox) {
                QImage image(8, 8, QImage::Format_RGB32);
                image.fill(color);
                image.save(path, nullptr, 100);
            }
            m_colors[static_cast<std::size_t>(file.image)] = QImage(path).pixel(4, 4);
        }
    }

    QRgb Color(SkinImage image) const { return m_colors[static_cast<std::size_t>(image)]; }

    /// What a window of that size shows when the images lie as the pass says.
    QImage Expected(const std::vector<SkinDraw>& pass, const QSize& size, int scale = 1) const
    {
        QImage image(size * scale, QImage::Format_RGB32);
        image.fill(kUnpainted);
        QPainter painter(&image);
        painter.scale(scale, scale);
        for (const auto& [picture, rect] : pass) {
            if (rect.width > 0 && rect.height > 0)
                painter.fillRect(rect.left, rect.top, rect.width, rect.height, QColor(Color(picture)));
        }
        return image;
    }

private:
    QTemporaryDir m_dir;
    std::array<QRgb, kSkinImageCount> m_colors{};

public:
    QString folder = m_dir.path() + '/';
};

class SkinTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (std::size_t i = 0; i < kButtonCount; ++i)
            m_buttons.states[i] = static_cast<ButtonState>(i % kButtonStateCount);
        ASSERT_TRUE(m_skin.Load(m_flat.folder));
    }

    template <class Pass> static QImage Painted(const QSize& size, double scale, const Pass& pass)
    {
        QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        image.fill(kUnpainted);
        image.setDevicePixelRatio(scale);
        QPainter painter(&image);
        pass(painter);
        painter.end();
        image.setDevicePixelRatio(1);
        return image;
    }
    QImage Window(Skin& skin, const QSize& size, double scale = 1)
    {
        return Painted(
            size, scale, [&](QPainter& painter) { skin.Paint(painter, size.width(), size.height(), m_buttons); });
    }

    const FlatSkin m_flat;
    Skin m_skin;
    SkinButtons m_buttons; // every state on some button
};

TEST_F(SkinTest, every_pixel_belongs_to_the_image_that_lies_on_top_and_the_pointers_places_are_kept)
{
    for (const QSize size : { QSize(20, 20), QSize(360, 320), QSize(801, 600) }) {
        const int width = size.width();
        const int height = size.height();
        EXPECT_EQ(Painted(size, 1, [&](QPainter& painter) { m_skin.DrawBackGround(painter, width, height); }),
            m_flat.Expected(BackgroundPass(width, height), size));
        for (const bool isMuted : { false, true }) {
            m_buttons.isMuted = isMuted;
            const auto pass = PaintPass(width, height, m_buttons);
            EXPECT_EQ(Window(m_skin, size), m_flat.Expected(pass, size));
            EXPECT_EQ(Window(m_skin, size, 2), m_flat.Expected(pass, size, 2));
            // Both sound buttons have the place of the one that shows.
            for (std::size_t i = 0; i < kButtonCount; ++i)
                EXPECT_EQ(m_skin.Rects().buttons[i], WindowLayout(width, height).ButtonRect(static_cast<Button>(i)))
                    << i;
        }
        const auto& rects = m_skin.Rects();
        EXPECT_EQ(rects.titleBar, (Rect{ 0, 0, width, 31 }));
        EXPECT_EQ(rects.menuButtons[0], (Rect{ 18, 28, 43, 23 }));
        EXPECT_EQ(rects.menuButtons[2], (Rect{ 106, 28, 43, 23 }));
    }
}

TEST_F(SkinTest, a_fade_begins_and_ends_with_the_pictures_themselves)
{
    m_buttons.StateOf(Button::Play) = ButtonState::Over;
    const auto shot = [&](double share) {
        m_buttons.FadeOf(Button::Play) = { ButtonState::Press, share };
        return Window(m_skin, { 388, 515 }).pixelColor(200, 450);
    };
    const QColor from = m_flat.Color(ButtonImage(Button::Play, ButtonState::Press));
    const QColor to = m_flat.Color(ButtonImage(Button::Play, ButtonState::Over));
    EXPECT_EQ(shot(0), from);
    EXPECT_EQ(shot(1), to);
    EXPECT_NEAR(shot(0.25).green(), (3 * from.green() + to.green()) / 4, 2);
    EXPECT_NEAR(shot(0.25).blue(), (3 * from.blue() + to.blue()) / 4, 2);
}

TEST_F(SkinTest, neighbours_meet_without_a_gap_at_a_broken_scale_factor)
{
    std::set<QRgb> known;
    for (std::size_t i = 0; i < kSkinImageCount; ++i)
        known.insert(m_flat.Color(static_cast<SkinImage>(i)));
    for (const double scale : { 1.25, 1.5, 1.75 }) {
        // A size that such a screen can show to the pixel.
        const auto shot = Window(m_skin, { 388, 516 }, scale);
        for (int y = 0; y < shot.height(); ++y) {
            for (int x = 0; x < shot.width(); ++x)
                ASSERT_TRUE(known.contains(shot.pixel(x, y))) << x << ',' << y << " at " << scale;
        }
    }
}

TEST_F(SkinTest, the_middle_of_a_picture_is_that_of_what_shows)
{
    QImage sign(10, 10, QImage::Format_ARGB32);
    sign.fill(Qt::transparent);
    for (const int y : { 2, 3, 4, 5 })
        sign.setPixelColor(3, y, Qt::white);
    sign.setPixelColor(3, 9, QColor(0, 0, 0, 128)); // a faint shadow
    sign.save(m_flat.folder + "Normal/Play.png");
    Skin skin;
    ASSERT_TRUE(skin.Load(m_flat.folder));
    EXPECT_EQ(skin.Middle(ButtonImage(Button::Play, ButtonState::Normal)), 0.4);
    EXPECT_EQ(Skin().Middle(SkinImage::About), 0.5);
}

TEST_F(SkinTest, the_first_bad_file_ends_the_load_and_the_rest_draws_nothing)
{
    // Bad are one in the middle and two later ones; what is no picture counts like what is missing.
    QFile noPicture(m_flat.folder + "BGCC.jpg");
    ASSERT_TRUE(noPicture.open(QFile::WriteOnly | QFile::Truncate));
    noPicture.write("no picture");
    noPicture.close();
    QFile::remove(m_flat.folder + "BGCR.jpg");
    QFile::remove(m_flat.folder + "Normal/Play.png");
    auto pass = PaintPass(388, 515, m_buttons);
    const std::set<SkinImage> loaded{ SkinImage::BGCL, SkinImage::BGDC, SkinImage::BGDL, SkinImage::BGDR };
    std::erase_if(pass, [&](const SkinDraw& draw) { return !loaded.contains(draw.image); });
    // Often enough for the threads to show an order of their own.
    for (int i = 0; i < 20; ++i) {
        Skin skin;
        const auto failed = skin.Load(m_flat.folder);
        ASSERT_FALSE(failed);
        EXPECT_TRUE(failed.error().text.ends_with("/BGCC.jpg")) << failed.error().text;
        EXPECT_EQ(Window(skin, { 388, 515 }), m_flat.Expected(pass, { 388, 515 }));
    }
}

TEST(Sliders, are_sliders_to_a_screen_reader)
{
    SeekTrack track(nullptr);
    track.setAttribute(Qt::WA_DontShowOnScreen);
    track.resize(200, 16);
    track.show();
    track.Show({ false, 0.4, 0 });
    VolumeKnob knob(nullptr);
    double position = -1;
    int volume = -1;
    QObject::connect(&track, &SeekTrack::PositionChosen, [&](double chosen) { position = chosen; });
    QObject::connect(&knob, &VolumeKnob::VolumeChosen, [&](int chosen) { volume = chosen; });

    auto* const face = QAccessible::queryAccessibleInterface(&track);
    EXPECT_EQ(face->role(), QAccessible::Slider);
    EXPECT_EQ(face->valueInterface()->currentValue(), 40);
    face->valueInterface()->setCurrentValue(75);
    EXPECT_EQ(position, -1); // nothing is loaded
    // Of a known length they are seconds, and words say which.
    track.Show({ .mediaControlsEnabled = true, .progress = 0.4, .length = 120'000, .spoken = "0:48 of 2:00" });
    EXPECT_EQ(face->valueInterface()->currentValue(), 48);
    EXPECT_EQ(face->text(QAccessible::Description), "0:48 of 2:00");
    face->valueInterface()->setCurrentValue(90);
    EXPECT_EQ(position, 0.75);
    QAccessible::queryAccessibleInterface(&knob)->valueInterface()->setCurrentValue(30);
    EXPECT_EQ(volume, 30);
}

TEST(Sliders, a_press_beside_a_chapters_notch_means_its_start)
{
    SeekTrack track(nullptr);
    track.setAttribute(Qt::WA_DontShowOnScreen);
    track.resize(200, 16);
    track.show();
    track.Show({ true, 0, 1000, { { "Dawn" }, { "Dusk", 0, 250 } } });
    double position = -1;
    QObject::connect(&track, &SeekTrack::PositionChosen, [&](double chosen) { position = chosen; });
    for (const auto& [x, chosen] : { std::pair{ 46.0, 0.25 }, { 54.0, 0.25 }, { 60.0, 0.3 } }) {
        QMouseEvent press(QEvent::MouseButtonPress, { x, 8 }, { x, 8 }, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&track, &press);
        EXPECT_EQ(position, chosen) << x;
    }
}

} // namespace
} // namespace zentaro
