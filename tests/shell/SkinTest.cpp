#include "shell/Skin.h"
#include "shell/QtText.h"
#include "shell/SeekTrack.h"
#include "shell/VolumeKnob.h"
#include "tests/shell/SkinTable.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
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

    /// What a window of that size shows when the images lie as the table says.
    QImage Expected(const std::vector<SkinDraw>& table, int width, int height, int scale = 1) const
    {
        QImage image(width * scale, height * scale, QImage::Format_RGB32);
        image.fill(kUnpainted);
        QPainter painter(&image);
        painter.scale(scale, scale);
        for (const auto& [picture, rect] : table) {
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

template <class Pass> QImage Painted(int width, int height, double scale, const Pass& pass)
{
    QImage image(qRound(width * scale), qRound(height * scale), QImage::Format_RGB32);
    image.fill(kUnpainted);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    pass(painter);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

QImage PaintedWindow(Skin& skin, const TestSize& size, const SkinButtons& buttons, double scale = 1)
{
    return Painted(size.width, size.height, scale,
        [&](QPainter& painter) { skin.Paint(painter, size.width, size.height, buttons); });
}

QImage PaintedBackground(Skin& skin, const TestSize& size)
{
    return Painted(
        size.width, size.height, 1, [&](QPainter& painter) { skin.DrawBackGround(painter, size.width, size.height); });
}

TEST(Skin, every_pixel_belongs_to_the_image_that_lies_on_top)
{
    const FlatSkin flat;
    Skin skin;
    ASSERT_TRUE(skin.Load(flat.folder));
    auto buttons = MixedButtons();
    for (const auto& size : kTestSizes) {
        EXPECT_EQ(PaintedBackground(skin, size),
            flat.Expected(BackgroundTable(size.width, size.height), size.width, size.height));
        for (const auto sound : { Button::SoundOn, Button::SoundOff }) {
            buttons.isMuted = sound == Button::SoundOff;
            const auto table = PaintTable(size, buttons, sound);
            EXPECT_EQ(PaintedWindow(skin, size, buttons), flat.Expected(table, size.width, size.height));
            EXPECT_EQ(PaintedWindow(skin, size, buttons, 2), flat.Expected(table, size.width, size.height, 2));
        }
    }
}

TEST(Skin, a_fade_begins_and_ends_with_the_pictures_themselves)
{
    const FlatSkin flat;
    Skin skin;
    ASSERT_TRUE(skin.Load(flat.folder));
    auto buttons = MixedButtons();
    buttons.StateOf(Button::Play) = ButtonState::Over;
    const auto shot = [&](double share) {
        buttons.FadeOf(Button::Play) = { ButtonState::Press, share };
        return PaintedWindow(skin, kTestSizes[0], buttons).pixelColor(200, 450);
    };
    const QColor from = flat.Color(ButtonImage(Button::Play, ButtonState::Press));
    const QColor to = flat.Color(ButtonImage(Button::Play, ButtonState::Over));
    EXPECT_EQ(shot(0), from);
    EXPECT_EQ(shot(1), to);
    EXPECT_NEAR(shot(0.5).green(), (from.green() + to.green()) / 2, 1);
    EXPECT_NEAR(shot(0.5).blue(), (from.blue() + to.blue()) / 2, 1);
}

TEST(Skin, neighbours_meet_without_a_gap_at_a_broken_scale_factor)
{
    const FlatSkin flat;
    Skin skin;
    ASSERT_TRUE(skin.Load(flat.folder));
    std::set<QRgb> known;
    for (std::size_t i = 0; i < kSkinImageCount; ++i)
        known.insert(flat.Color(static_cast<SkinImage>(i)));
    for (const double scale : { 1.25, 1.5, 1.75 }) {
        // Sizes that such a screen can show to the pixel.
        const auto shot = PaintedWindow(skin, { 388, 516, 160 }, MixedButtons(), scale);
        for (int y = 0; y < shot.height(); ++y) {
            for (int x = 0; x < shot.width(); ++x)
                ASSERT_TRUE(known.contains(shot.pixel(x, y))) << x << ',' << y << " at " << scale;
        }
    }
}

TEST(Skin, a_rectangle_without_area_draws_nothing_and_comes_back)
{
    const FlatSkin flat;
    Skin skin;
    ASSERT_TRUE(skin.Load(flat.folder));
    const auto shot = Painted(20, 20, 1, [&](QPainter& painter) {
        for (const Rect& rect : { Rect{ 9, 9, -5, 4 }, Rect{ 9, 9, 4, -5 }, Rect{ 9, 9, 0, 4 } })
            EXPECT_EQ(skin.Draw(painter, SkinImage::TitleBar, rect), rect);
    });
    EXPECT_EQ(shot, flat.Expected({}, 20, 20));
}

TEST(Skin, the_first_bad_file_ends_the_load_and_the_rest_draws_nothing)
{
    const FlatSkin flat;
    // Bad are one in the middle and two later ones; what is no picture counts like what is missing.
    QFile noPicture(flat.folder + "BGCC.jpg");
    ASSERT_TRUE(noPicture.open(QFile::WriteOnly));
    noPicture.write("no picture");
    noPicture.close();
    QFile::remove(flat.folder + "BGCR.jpg");
    QFile::remove(flat.folder + "Normal/Play.png");
    const auto size = kTestSizes[0];
    auto table = PaintTable(size, {}, Button::SoundOn);
    std::erase_if(table, [](const SkinDraw& draw) {
        return draw.image != SkinImage::BGCL && draw.image != SkinImage::BGDC && draw.image != SkinImage::BGDL
            && draw.image != SkinImage::BGDR;
    });
    // Often enough for the threads to show an order of their own.
    for (int i = 0; i < 20; ++i) {
        Skin skin;
        const auto loaded = skin.Load(flat.folder);
        ASSERT_FALSE(loaded);
        EXPECT_TRUE(loaded.error().text.ends_with("/BGCC.jpg")) << loaded.error().text;
        EXPECT_EQ(PaintedWindow(skin, size, {}), flat.Expected(table, size.width, size.height));
    }
}

TEST(Sliders, are_sliders_to_a_screen_reader)
{
    SeekBar bar;
    SeekTrack track(bar, nullptr);
    track.resize(200, 16);
    bar.SetTrackWidth(200);
    bar.SetProgress(40);
    VolumeSlider slider;
    VolumeKnob knob(slider, nullptr);
    double position = -1;
    int volume = -1;
    QObject::connect(&track, &SeekTrack::PositionChosen, [&](double chosen) { position = chosen; });
    QObject::connect(&knob, &VolumeKnob::VolumeChosen, [&](int chosen) { volume = chosen; });

    auto* const face = QAccessible::queryAccessibleInterface(&track);
    EXPECT_EQ(face->role(), QAccessible::Slider);
    EXPECT_EQ(face->valueInterface()->currentValue(), 40);
    face->valueInterface()->setCurrentValue(75);
    EXPECT_EQ(position, -1); // nothing is loaded
    track.SetItem(true, 1000);
    face->valueInterface()->setCurrentValue(75);
    EXPECT_EQ(position, 0.75);
    QAccessible::queryAccessibleInterface(&knob)->valueInterface()->setCurrentValue(30);
    EXPECT_EQ(volume, 30);
    EXPECT_EQ(slider.Volume(), 30);
}

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
