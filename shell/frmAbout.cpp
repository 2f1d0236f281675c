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
constexpr int kHeadTop = 20;    // px below the title bar
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

} // namespace

frmAbout::frmAbout(Skin& skin, QWidget* owner)
    : SkinDialog(tr("About Zentaro"), skin, owner)
{
    setObjectName("frmAbout");
    auto* const name = new QLabel(kProgramName, this);
    auto font = name->font();
    font.setPixelSize(kNameHeight);
    font.setWeight(QFont::DemiBold);
    name->setFont(font);

    auto* const head = new QVBoxLayout;
    head->setContentsMargins(kPicture + 18, 0, 0, 0);
    head->setSpacing(4);
    head->addWidget(name);
    head->addWidget(SecondText(tr("Version %1").arg(ZENTARO_VERSION), this));

    auto* const parts = new QGridLayout;
    parts->setHorizontalSpacing(24);
    parts->setVerticalSpacing(5);
    for (const auto& part : kParts) {
        const int row = parts->rowCount();
        parts->addWidget(new QLabel(part.name, this), row, 0);
        parts->addWidget(SecondText(part.purpose, this), row, 1);
        parts->addWidget(SecondText(part.licence, this), row, 2, Qt::AlignRight);
    }

    auto* const link = new LinkLabel(this);
    link->setText(tr("<a href=\"%1\">The web page of VLC</a>, whose engine plays everything here").arg(kVlcPage));
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link->setFocusPolicy(Qt::StrongFocus);
    link->setAccessibleName(tr("The web page of VLC"));
    connect(link, &QLabel::linkActivated, this, &frmAbout::LinkChosen);

    auto* const ok = new SkinPushButton(tr("OK"), skin, this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(kMargin, kHeadTop, kMargin, 16);
    all->setSpacing(12);
    all->addLayout(head);
    all->addSpacing(6);
    all->addWidget(new QLabel(tr("A desktop media player. Free software under the MIT licence."), this));
    all->addWidget(new SkinLine(Qt::Horizontal, skin, this));
    all->addWidget(SecondText(tr("Made with"), this));
    all->addLayout(parts);
    all->addWidget(new SkinLine(Qt::Horizontal, skin, this));
    all->addWidget(link);
    all->addSpacing(4);
    all->addWidget(ok, 0, Qt::AlignRight);
    ok->setFocus();
    setFixedSize(sizeHint());
}

void frmAbout::PaintBody(QPainter& painter)
{
    Pictures().Draw(painter, SkinImage::BGCd, { 0, kTitleHeight, width(), height() - kTitleHeight });
    Pictures().Draw(painter, SkinImage::AboutBox, { kMargin, kTitleHeight + kHeadTop - 4, kPicture, kPicture });
}

} // namespace zentaro
