#include "shell/MessageDialog.h"

#include "base/Words.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QAccessible>
#include <QPainter>
#include <QStringTokenizer>
#include <QStyle>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace zentaro {

namespace {

constexpr int kMargin = 24;
constexpr int kTop = 20; // px, below the title bar
constexpr int kSign = 48;
constexpr int kSignGap = 18;
constexpr int kNarrowest = 240;
constexpr int kWidest = 420;
constexpr double kHighest = 0.5;            // of the screen
constexpr qsizetype kLongestNotice = 10000; // characters

QPixmap SignOf(NoticeIcon icon, const QWidget& widget)
{
    constexpr QStyle::StandardPixmap signs[] = { QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
        QStyle::SP_MessageBoxCritical };
    const auto sign = widget.style()->standardIcon(signs[static_cast<int>(icon)], nullptr, &widget);
    return sign.pixmap({ kSign, kSign }, widget.devicePixelRatio());
}

QString Readable(const std::string& notice)
{
    const auto text = ToQString(notice);
    // Qt needs minutes to break a name of a million letters into lines, and nobody would read it: the middle goes.
    return text.size() <= kLongestNotice ? text
                                         : text.left(kLongestNotice / 2) + " ... " + text.right(kLongestNotice / 2);
}

/// Text that is broken in the middle of a word where it must be, because a long path has no blanks. It is as high as
/// its lines need, and scrolls when that is higher than it may be.
class MessageText : public QTextEdit {
public:
    MessageText(const QString& text, const QSize& room, QWidget* parent)
        : QTextEdit(parent)
    {
        setFrameShape(NoFrame);
        viewport()->setAutoFillBackground(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document()->setDocumentMargin(0);
        setPlainText(text);
        int width = kNarrowest;
        for (const auto line : qTokenize(text, u'\n', Qt::SkipEmptyParts))
            width = std::max(width, fontMetrics().horizontalAdvance(line.toString()) + 2);
        const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        width = std::min({ width, kWidest, room.width() - extent });
        setLineWrapMode(FixedPixelWidth);
        setLineWrapColumnOrWidth(width);
        const auto height = static_cast<int>(std::ceil(document()->size().height()));
        const bool scrolls = height > room.height();
        const auto bar = scrolls ? extent : 0;
        setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        setFixedSize(width + bar, std::min(height, room.height()));
        setTextInteractionFlags(
            scrolls ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard : Qt::TextSelectableByMouse);
        setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::ClickFocus);
    }
};

} // namespace

MessageDialog::MessageDialog(const Notice& notice, Skin& skin, QWidget* owner)
    : SkinDialog(ToQString(Words(notice.title)), skin, owner)
    , m_sign(SignOf(notice.icon, *this))
{
    setObjectName("MessageDialog");
    const auto text = Readable(notice.text);
    setAccessibleDescription(text);
    const QSize room(Room().width() - 2 * kMargin - kSign - kSignGap, static_cast<int>(Room().height() * kHighest));
    auto* const message = new MessageText(text, room, this);
    message->setAccessibleName(windowTitle());
    auto* const ok = new SkinPushButton(tr("OK"), skin, this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* const line = new QHBoxLayout;
    line->addSpacing(kSign + kSignGap);
    line->addWidget(message, 0, Qt::AlignVCenter);
    line->addStrut(kSign);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(kMargin, kTop, kMargin, 16);
    all->setSpacing(20);
    all->addLayout(line);
    all->addWidget(ok, 0, Qt::AlignRight);
    ok->setFocus();
    setFixedSize(sizeHint());
}

void MessageDialog::showEvent(QShowEvent* event)
{
    SkinDialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageDialog::PaintBody(QPainter& painter)
{
    Pictures().Draw(painter, SkinImage::BGCd, { 0, kTitleHeight, width(), height() - kTitleHeight });
    painter.drawPixmap(kMargin - 2, kTitleHeight + kTop, m_sign);
}

} // namespace zentaro
