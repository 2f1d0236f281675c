#include "shell/NoteBox.h"

#include "shell/Announcer.h"
#include "shell/Style.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kDistance = 12;     // px, from the area's edges
constexpr int kPadding = 10;      // px
constexpr int kGap = 8;           // px, between picture and text
constexpr int kMark = 3;          // px, the light at the left edge
constexpr int kLargeArea = 900;   // px wide
constexpr int kLargeLetters = 18; // px
constexpr int kMostLines = 4;
constexpr int kTextFlags = Qt::AlignLeft | Qt::AlignBottom;

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* const box = qobject_cast<NoteBox*>(object);
    return box != nullptr ? new QAccessibleWidget(box, QAccessible::StaticText) : nullptr;
}

} // namespace

NoteBox::NoteBox(QWidget* parent)
    : QWidget(parent)
    , m_offer(new QPushButton(this))
{
    QAccessible::installFactory(&MakeAccessible);
    m_offer->setFocusPolicy(Qt::NoFocus);
    connect(m_offer, &QPushButton::clicked, this, [this] {
        hide();
        emit OfferTaken();
    });
    setObjectName("Note");
    setCursor(Qt::ArrowCursor);
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void NoteBox::Show(
    const QRect& area, const QString& text, const QImage& picture, std::chrono::milliseconds time, const QString& offer)
{
    m_offer->setText(offer);
    m_offer->setVisible(!offer.isEmpty());
    m_text = text;
    m_picture = picture;
    Place(area);
    setAccessibleName(text);
    Announce(*window(), text);
    show();
    raise();
    m_end.start(time);
}

void NoteBox::Place(const QRect& area)
{
    // A large video is watched from further away: larger letters.
    auto letters = parentWidget()->font();
    if (area.width() >= kLargeArea)
        letters.setPixelSize(kLargeLetters);
    setFont(letters);
    const int frame = 2 * kPadding + kMark;
    const int widest = std::max(area.width() - 2 * kDistance - frame, 0);
    // The picture must not hide the video, which goes on playing below.
    const QSize pictureRoom = kPictureRoom.boundedTo({ area.width() / 2, area.height() / 3 });
    m_pictureSize = m_picture.isNull() ? QSize(0, 0) : m_picture.size().scaled(pictureRoom, Qt::KeepAspectRatio);
    m_shownText = fontMetrics().elidedText(m_text, Qt::ElideMiddle, kMostLines * widest);
    const auto sizeOf = [&](Qt::TextFlag wrapping) {
        const QRect room(0, 0, widest, area.height());
        return fontMetrics().boundingRect(room, kTextFlags | wrapping, m_shownText).size();
    };
    // A long name without blanks is broken in the middle of the word.
    m_wrapping = sizeOf(Qt::TextWordWrap).width() > widest ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
    const auto text = sizeOf(m_wrapping);
    const auto offer = m_offer->isVisibleTo(this) ? m_offer->sizeHint() + QSize(0, kGap) : QSize(0, 0);
    const int pictureHeight = m_picture.isNull() ? 0 : m_pictureSize.height() + kGap;
    setGeometry(area.left() + kDistance, area.top() + kDistance,
        frame + std::max({ text.width() + 1, m_pictureSize.width(), offer.width() }),
        2 * kPadding + pictureHeight + text.height() + offer.height());
    m_offer->setGeometry(kMark + kPadding, height() - kPadding - offer.height() + kGap, offer.width(),
        std::max(offer.height() - kGap, 0));
    update();
}

void NoteBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), style::kRaised);
    painter.setPen(style::kHairline);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(0, 0, kMark, height(), style::kLight);
    const int offer = m_offer->isVisibleTo(this) ? m_offer->height() + kGap : 0;
    const auto inner = rect().adjusted(kPadding + kMark, kPadding, -kPadding, -kPadding - offer);
    if (!m_picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(inner.topLeft(), m_pictureSize), m_picture);
    }
    painter.setPen(style::kText);
    painter.drawText(inner, kTextFlags | m_wrapping, m_shownText);
}

void NoteBox::mousePressEvent(QMouseEvent*)
{
    hide();
}

} // namespace zentaro
