#include "shell/QtText.h"
#include "shell/Skin.h"
#include "shell/Style.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <map>

// What the rendered pictures look like, measured.
namespace zentaro {
namespace {

QString ProgramFolder()
{
    return QCoreApplication::applicationDirPath() + "/../bin/";
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

TEST(Art, no_two_of_a_button_s_states_and_no_two_buttons_look_alike)
{
    Skin skin;
    ASSERT_TRUE(skin.Load(ProgramFolder() + "images/"));
    std::map<std::string, QImage> normal;
    std::map<std::string, std::vector<QImage>> states;
    for (const auto& [image, name] : SkinLoadOrder()) {
        const auto slash = name.find('/');
        if (slash == std::string::npos)
            continue;
        QImage look(48, 48, QImage::Format_RGB32);
        look.fill(style::kBaseLight);
        QPainter painter(&look);
        skin.Draw(painter, image, { 0, 0, 48, 48 });
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

TEST(Icons, of_all_types_are_there_in_all_sizes_and_different)
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
