#include "shell/QtGeometry.h"
#include "shell/QtText.h"
#include "shell/Skin.h"
#include "shell/Style.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

// What the rendered pictures look like, measured.
namespace zentaro {
namespace {

constexpr double kTextContrast = 4.5;
constexpr double kSignContrast = 3;

QString ProgramFolder()
{
    return QCoreApplication::applicationDirPath() + "/../bin/";
}

/// As the accessibility guidelines define it, 0 to 1.
double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double Contrast(const QColor& a, const QColor& b)
{
    return Contrast(Luminance(a), Luminance(b));
}

std::vector<double> SortedLuminances(const QImage& image)
{
    std::vector<double> all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            all.push_back(Luminance(image.pixelColor(x, y)));
    }
    std::ranges::sort(all);
    return all;
}

/// How much two pictures of one size differ, as the share of pixels that the eye can tell apart, in percent.
double Difference(const QImage& a, const QImage& b)
{
    constexpr int kVisible = 12;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) >= kVisible;
    }
    return 100.0 * count / (a.width() * a.height());
}

class Art : public testing::Test {
protected:
    static constexpr int kWidth = WindowLayout::kFirstWidth;
    static constexpr int kHeight = WindowLayout::kFirstHeight;

    void SetUp() override
    {
        const auto loaded = m_skin.Load(ProgramFolder() + "images/");
        ASSERT_TRUE(loaded) << loaded.error().text;
    }

    /// The window with all its buttons in one state, as the eye sees it.
    QImage Window(ButtonState state, bool isMuted = false)
    {
        SkinButtons buttons;
        buttons.states.fill(state);
        buttons.isMuted = isMuted;
        QImage image(kWidth, kHeight, QImage::Format_RGB32);
        QPainter painter(&image);
        m_skin.Paint(painter, kWidth, kHeight, buttons);
        return image;
    }

    Skin m_skin;
};

TEST_F(Art, no_two_of_a_button_s_states_and_no_two_buttons_look_alike)
{
    std::map<std::string, QImage> normal;
    std::map<std::string, std::vector<QImage>> states;
    for (const auto& [image, name] : SkinLoadOrder()) {
        const auto slash = name.find('/');
        if (slash == std::string::npos)
            continue;
        QImage look(48, 48, QImage::Format_RGB32);
        look.fill(style::kBaseLight);
        QPainter painter(&look);
        m_skin.Draw(painter, image, { 0, 0, 48, 48 });
        painter.end();
        const auto button = name.substr(slash);
        for (const auto& other : states[button])
            EXPECT_GE(Difference(look, other), 2) << name;
        states[button].push_back(look);
        if (!name.starts_with("Normal/"))
            continue;
        for (const auto& [otherName, other] : normal)
            EXPECT_GE(Difference(look, other), 2) << name << " and " << otherName;
        normal[name] = look;
    }
    EXPECT_EQ(states.size(), kButtonCount);
}

TEST_F(Art, every_sign_stands_out_from_its_button)
{
    const WindowLayout layout(kWidth, kHeight);
    for (const auto state : { ButtonState::Normal, ButtonState::Over, ButtonState::Press }) {
        for (int i = 0; i < static_cast<int>(Button::PushButton); ++i) {
            const auto button = static_cast<Button>(i);
            const auto place = ToQt(layout.ButtonRect(button));
            const auto lights = SortedLuminances(Window(state, button == Button::SoundOff).copy(place));
            // Most of a button is its face, and the brightest of it is the sign, be it a single line.
            const auto contrast = Contrast(lights[lights.size() / 2], lights[lights.size() - lights.size() / 80]);
            EXPECT_GE(contrast, kSignContrast) << "button " << i << ", state " << static_cast<int>(state);
        }
    }
}

TEST_F(Art, texts_are_readable_wherever_they_stand)
{
    const auto window = Window(ButtonState::Normal);
    const WindowLayout layout(kWidth, kHeight);
    for (const auto& place : { layout.Caption(), layout.TimeLabel(), layout.RateLabel(), layout.VolumeNumber() }) {
        const auto lights = SortedLuminances(window.copy(ToQt(place)));
        EXPECT_GE(Contrast(Luminance(style::kText), lights.back()), kTextContrast);
        if (place != layout.Caption()) {
            EXPECT_GE(Contrast(Luminance(style::kSecondText), lights.back()), kTextContrast);
        }
    }
    for (const auto& ground : { style::kBase, style::kBaseLight, style::kRaised, style::kRaisedHigh }) {
        for (const auto& text : { style::kText, style::kLight })
            EXPECT_GE(Contrast(text, ground), kTextContrast) << ToText(ground.name());
    }
    EXPECT_GE(Contrast(style::kSecondText, style::kRaised), kTextContrast);
    EXPECT_GE(Contrast(style::kText, style::kSelection), kTextContrast);
}

TEST(Icons, of_all_types_are_there_in_all_sizes_readable_and_different)
{
    for (const int size : { 16, 24, 32, 48, 64, 128, 256 }) {
        const QDir folder(ProgramFolder() + "icons/png/" + QString::number(size));
        std::vector<QImage> seen;
        for (const auto& name : folder.entryList({ "*.png" })) {
            const QImage icon(folder.filePath(name));
            EXPECT_EQ(icon.size(), QSize(size, size));
            for (const auto& other : seen)
                EXPECT_NE(icon, other) << ToText(name) << " at " << size;
            seen.push_back(icon);
            if (name == "zentaro.png")
                continue;
            // The label: its colour fills most of it, the letters are the darkest.
            const auto lights =
                SortedLuminances(icon.copy(size * 3 / 16, size * 9 / 16, size * 10 / 16, size * 5 / 16));
            EXPECT_GE(Contrast(lights[lights.size() / 20], lights[lights.size() * 3 / 4]), kTextContrast)
                << ToText(name) << " at " << size;
        }
        EXPECT_EQ(seen.size(), 25U);
    }
    const QDir packed(ProgramFolder() + "icons");
    const auto files = packed.entryList({ "*.ico" });
    EXPECT_EQ(files.size(), 25);
    for (const auto& name : files)
        EXPECT_EQ(QImageReader(packed.filePath(name)).imageCount(), 7) << ToText(name);
    EXPECT_FALSE(QImage(packed.filePath("Unkowen.bmp")).isNull());
}

} // namespace
} // namespace zentaro

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
