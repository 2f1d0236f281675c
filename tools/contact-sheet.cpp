// Everything that was drawn, on one picture: contact-sheet PROGRAM-FOLDER SHEET.png [FOLDER-WITH-SCREENSHOTS]

#include "shell/QtText.h"
#include "shell/Skin.h"
#include "shell/Style.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <cstdio>

namespace {

using namespace zentaro;

constexpr int kWidth = 1840;
constexpr int kMargin = 40;
constexpr int kGap = 14;
constexpr int kCaption = 18;
constexpr int kButtonScale = 2;

/// Pictures from left to right and from above to below, each with its name under it.
class Sheet {
public:
    void Headline(const QString& text)
    {
        EndRow();
        m_top += kMargin / 2;
        m_items.push_back({ {}, text, { kMargin, m_top } });
        m_top += kMargin;
    }

    void Add(const QImage& picture, const QString& name)
    {
        if (m_left + picture.width() > kWidth - kMargin)
            EndRow();
        m_items.push_back({ picture, name, { m_left, m_top } });
        m_left += picture.width() + kGap;
        m_rowHeight = std::max(m_rowHeight, picture.height() + (name.isEmpty() ? 0 : kCaption));
    }

    void EndRow()
    {
        m_top += m_rowHeight + (m_rowHeight > 0 ? kGap : 0);
        m_left = kMargin;
        m_rowHeight = 0;
    }

    QImage Drawn()
    {
        EndRow();
        QImage sheet(kWidth, m_top + kMargin, QImage::Format_RGB32);
        sheet.fill(style::kBaseLight);
        QPainter painter(&sheet);
        for (const auto& item : m_items) {
            const bool isHeadline = item.picture.isNull();
            auto font = QApplication::font();
            font.setPixelSize(isHeadline ? 22 : 11);
            painter.setFont(font);
            painter.setPen(isHeadline ? style::kText : style::kSecondText);
            painter.drawImage(item.at, item.picture);
            const QRect text(item.at.x(), item.at.y() + item.picture.height(),
                isHeadline ? kWidth : std::max(item.picture.width(), 60), isHeadline ? kMargin : kCaption);
            painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, item.name);
        }
        return sheet;
    }

private:
    struct Item {
        QImage picture;
        QString name;
        QPoint at;
    };
    std::vector<Item> m_items;
    int m_left = kMargin;
    int m_top = kMargin / 2;
    int m_rowHeight = 0;
};

QString StateName(ButtonState state)
{
    return QStringList{ "Normal", "Over", "Press", "Disabel" }[static_cast<int>(state)];
}

/// A button as the window shows it, panel and all.
QImage ButtonLook(Skin& skin, Button button, ButtonState state)
{
    constexpr int kWindow = 388;
    const WindowLayout layout(kWindow, kWindow);
    auto place = layout.ButtonRect(button);
    SkinButtons buttons;
    buttons.states.fill(state);
    buttons.isMuted = button == Button::SoundOff;
    const auto size = button == Button::PushButton ? QSize(87, 27) : QSize(place.width, place.height);
    QImage look(size * kButtonScale, QImage::Format_RGB32);
    look.fill(style::kBaseLight);
    QPainter painter(&look);
    painter.scale(kButtonScale, kButtonScale);
    if (button == Button::PushButton) {
        skin.Draw(painter, ButtonImage(button, state), { 0, 0, size.width(), size.height() });
    } else {
        painter.translate(-place.left, -place.top);
        skin.Paint(painter, kWindow, kWindow, buttons);
    }
    return look;
}

void AddButtons(Sheet& sheet, Skin& skin)
{
    for (const auto state : { ButtonState::Normal, ButtonState::Over, ButtonState::Press, ButtonState::Disabled }) {
        sheet.Headline("Buttons: " + StateName(state));
        for (std::size_t i = 0; i < kButtonCount; ++i)
            sheet.Add(ButtonLook(skin, static_cast<Button>(i), state), {});
    }
}

void AddIcons(Sheet& sheet, const QString& folder)
{
    for (const int size : { 16, 24, 32, 48, 64, 128, 256 }) {
        sheet.Headline(QString("Icons of %1 pixels").arg(size));
        const QDir icons(folder + "icons/png/" + QString::number(size));
        for (const auto& name : icons.entryList({ "*.png" }))
            sheet.Add(QImage(icons.filePath(name)), {});
    }
}

void AddPictures(Sheet& sheet, const QString& folder)
{
    sheet.Headline("Pictures");
    for (const auto* const name : { "images/About.png", "images/DefaultVideo.png", "images/DefaultAudio.png", "DVD.jpg",
             "icons/Unkowen.bmp", "Audio.JPG" }) {
        const QImage picture(folder + name);
        sheet.Add(picture.height() > 256 ? picture.scaledToHeight(256, Qt::SmoothTransformation) : picture, name);
    }
}

void AddScreenshots(Sheet& sheet, const QString& folder)
{
    sheet.Headline("The window");
    const QDir shots(folder);
    for (const auto& name : shots.entryList({ "*.png" })) {
        const QImage shot(shots.filePath(name));
        constexpr int kWidest = (kWidth - 2 * kMargin - kGap) / 2;
        sheet.Add(
            shot.width() > kWidest ? shot.scaledToWidth(kWidest, Qt::SmoothTransformation) : shot, name.chopped(4));
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    style::Apply(application);
    const auto arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: contact-sheet PROGRAM-FOLDER SHEET.png [FOLDER-WITH-SCREENSHOTS]\n", stderr);
        return 2;
    }
    const auto folder = QDir(arguments[1]).path() + '/';
    Skin skin;
    if (const auto loaded = skin.Load(folder + "images/"); !loaded) {
        std::fprintf(stderr, "%s\n", loaded.error().text.c_str());
        return 1;
    }
    Sheet sheet;
    if (arguments.size() > 3)
        AddScreenshots(sheet, arguments[3]);
    AddButtons(sheet, skin);
    AddIcons(sheet, folder);
    AddPictures(sheet, folder);
    return sheet.Drawn().save(arguments[2]) ? 0 : 1;
}
