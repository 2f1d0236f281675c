#include "shell/frmAbout.h"

#include "shell/Caption.h"
#include "shell/Style.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace zentaro {

namespace {

constexpr int kPicture = 64;
constexpr int kMargin = 24;
constexpr int kNarrowRoom = 520; // px: below it margins give way to the text
constexpr int kHeadTop = 20;     // px, over the name
constexpr int kBottom = 16;
constexpr int kNameHeight = 26; // px, of the type
constexpr const char* kVlcPage = "https://www.videolan.org/vlc/";

struct Part {
    const char* name;
    const char* purpose;
    const char* licence;
};
constexpr Part kParts[] = {
    { "Qt", "the windows", "LGPL 3" },
    { "libVLC", "the engine that plays", "LGPL 2.1 or later" },
    { "ffmpeg", "looks into files, makes thumbnails", "GPL 2 or later" },
    { "mpgtx", "reads MPEG program streams", "GPL 2" },
    { "Inter", "the typeface", "SIL Open Font License 1.1" },
};

/// A label with a link that one press of Tab reaches. In a plain label Tab stops twice, at the label and at its link.
class LinkLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        QLabel::focusInEvent(event);
        QLabel::focusNextPrevChild(true);
    }
};

class ProgramPicture : public QWidget {
public:
    ProgramPicture(Skin& skin, QWidget* parent)
        : QWidget(parent)
        , m_skin(skin)
    {
        setFixedSize(kPicture, kPicture);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_skin.Draw(painter, SkinImage::AboutBox, { 0, 0, kPicture, kPicture });
    }

private:
    Skin& m_skin;
};

QLayout* Head(Skin& skin, QWidget* page)
{
    auto* const name = new QLabel(kProgramName, page);
    auto font = name->font();
    font.setPixelSize(kNameHeight);
    font.setWeight(QFont::DemiBold);
    name->setFont(font);
    auto* const words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(name);
    words->addWidget(SecondText(frmAbout::tr("Version %1").arg(ZENTARO_VERSION), page));
    auto* const head = new QHBoxLayout;
    head->setSpacing(18);
    head->addWidget(new ProgramPicture(skin, page));
    head->addLayout(words, 1);
    return head;
}

QLayout* Parts(QWidget* page, int spacing)
{
    auto* const parts = new QGridLayout;
    parts->setHorizontalSpacing(spacing);
    parts->setVerticalSpacing(5);
    for (const auto& part : kParts) {
        const int row = parts->rowCount();
        parts->addWidget(new QLabel(part.name, page), row, 0);
        parts->addWidget(SecondText(frmAbout::tr(part.purpose), page), row, 1);
        parts->addWidget(SecondText(frmAbout::tr(part.licence), page), row, 2, Qt::AlignRight);
    }
    return parts;
}

} // namespace

frmAbout::frmAbout(Skin& skin, QWidget* owner)
    : SkinDialog(tr("About Zentaro"), skin, owner)
{
    setObjectName("frmAbout");
    auto* const page = new QWidget(this);
    auto* const link = new LinkLabel(page);
    link->setText(tr("<a href=\"%1\">The web page of VLC</a>, whose engine plays everything here").arg(kVlcPage));
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link->setFocusPolicy(Qt::StrongFocus);
    link->setAccessibleName(tr("The web page of VLC"));
    connect(link, &QLabel::linkActivated, this, &frmAbout::LinkChosen);

    const int margin = Room().width() < kNarrowRoom ? kMargin / 2 : kMargin;
    auto* const text = new QVBoxLayout(page);
    text->setContentsMargins(margin, kHeadTop, margin, 0);
    text->setSpacing(12);
    text->addLayout(Head(skin, page));
    text->addSpacing(6);
    text->addWidget(new QLabel(tr("A desktop media player. Free software under the MIT licence."), page));
    text->addWidget(new SkinLine(Qt::Horizontal, skin, page));
    text->addWidget(SecondText(tr("Made with"), page));
    text->addLayout(Parts(page, margin));
    text->addWidget(new SkinLine(Qt::Horizontal, skin, page));
    text->addWidget(link);

    auto* const ok = new SkinPushButton(tr("OK"), skin, this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(margin, kBottom, margin, kBottom);
    buttons->addStretch();
    buttons->addWidget(ok);

    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(1, 0, 1, 0);
    all->setSpacing(0);
    all->addWidget(new SkinScroll(page, this));
    all->addLayout(buttons);
    ok->setFocus();
    setFixedSize(Fitting(sizeHint()));
}

void frmAbout::PaintBody(QPainter& painter)
{
    Pictures().Draw(painter, SkinImage::BGCd, { 0, kTitleHeight, width(), height() - kTitleHeight });
}

} // namespace zentaro
