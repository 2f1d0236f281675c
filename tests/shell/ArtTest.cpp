#include "shell/QtGeometry.h"
#include "shell/Skin.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QPainter>

#include <gtest/gtest.h>

// All rendered pictures are there, and no two are alike.
namespace zentaro {
namespace {

QString ProgramFolder()
{
    return QCoreApplication::applicationDirPath() + "/../bin/";
}

TEST(Art, buttons_and_their_states_differ)
{
    Skin skin;
    const auto loaded = skin.Load(ProgramFolder() + "images/");
    ASSERT_TRUE(loaded) << loaded.error().text;
    const WindowLayout layout(WindowLayout::kFirstWidth, WindowLayout::kFirstHeight);
    std::vector<QImage> seen;
    for (int state = 0; state < static_cast<int>(kButtonStateCount); ++state) {
        SkinButtons buttons;
        buttons.states.fill(static_cast<ButtonState>(state));
        for (int i = 0; i < static_cast<int>(Button::PushButton); ++i) {
            SCOPED_TRACE(testing::Message() << "button " << i << ", state " << state);
            buttons.isMuted = static_cast<Button>(i) == Button::SoundOff;
            QImage window(WindowLayout::kFirstWidth, WindowLayout::kFirstHeight, QImage::Format_RGB32);
            QPainter painter(&window);
            skin.Paint(painter, window.width(), window.height(), buttons);
            const auto look = window.copy(ToQt(layout.ButtonRect(static_cast<Button>(i))));
            EXPECT_FALSE(std::ranges::find(seen, look) != seen.end());
            seen.push_back(look);
        }
    }
}

TEST(Art, icons_of_all_types_are_there_in_all_sizes_and_differ)
{
    for (const int size : { 16, 24, 32, 48, 64, 128, 256 }) {
        const QDir folder(ProgramFolder() + "icons/png/" + QString::number(size));
        std::vector<QImage> seen;
        for (const auto& name : folder.entryList({ "*.png" })) {
            const QImage icon(folder.filePath(name));
            EXPECT_EQ(icon.size(), QSize(size, size));
            EXPECT_FALSE(std::ranges::find(seen, icon) != seen.end()) << name.toStdString() << " at " << size;
            seen.push_back(icon);
        }
        EXPECT_EQ(seen.size(), 25U);
    }
    const QDir packed(ProgramFolder() + "icons");
    const auto files = packed.entryList({ "*.ico" });
    EXPECT_EQ(files.size(), 25);
    for (const auto& name : files)
        EXPECT_EQ(QImageReader(packed.filePath(name)).imageCount(), 7) << name.toStdString();
    EXPECT_FALSE(QImage(packed.filePath("Unkowen.bmp")).isNull());
}

} // namespace
} // namespace zentaro
