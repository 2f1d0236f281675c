#include "playlist/AddProgressLine.h"

#include "base/Numbers.h"
#include "playlist/FancyListPainter.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace zentaro {

namespace {

constexpr int kHeight = 36;
constexpr int kMargin = 8;
constexpr int kTrackHeight = 2;
constexpr int kFontHeight = 14;

} // namespace

QuietButton::QuietButton(const QString& text, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(text);
    setFont(FancyListFont(kFontHeight));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize QuietButton::sizeHint() const
{
    return { fontMetrics().horizontalAdvance(text()) + 20, fontMetrics().height() + 8 };
}

void QuietButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    auto fill = palette().color(QPalette::ButtonText);
    fill.setAlphaF(isDown() ? 0.04F : underMouse() ? 0.16F : 0.08F);
    painter.setPen(hasFocus() ? QPen(QColor(kWarmLight)) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    painter.setPen(isDown() ? QColor(kWarmLight) : palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

namespace {

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    auto* const line = qobject_cast<AddProgressLine*>(object);
    return line != nullptr ? new QAccessibleWidget(line, QAccessible::ProgressBar) : nullptr;
}

} // namespace

AddProgressLine::AddProgressLine(QWidget* parent)
    : QWidget(parent)
    , m_cancel(new QuietButton(tr("Cancel"), this))
{
    QAccessible::installFactory(&MakeAccessible);
    setFont(FancyListFont(kFontHeight));
    m_cancel->setAccessibleDescription(tr("Stops adding files to the playlist"));
    connect(m_cancel, &QuietButton::clicked, this, &AddProgressLine::Cancelled);
    hide();
}

void AddProgressLine::SetProgress(const AddProgress& progress)
{
    m_progress = progress;
    setAccessibleName(QString::fromStdString(ProgressText(progress)));
    setVisible(progress.total > 0);
    update();
}

QSize AddProgressLine::sizeHint() const
{
    return { 0, kHeight };
}

void AddProgressLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto text = palette().color(QPalette::ButtonText);
    painter.fillRect(rect(), palette().color(QPalette::Button));
    auto track = text;
    track.setAlphaF(0.12F);
    painter.fillRect(0, 0, width(), kTrackHeight, track);
    const double done = m_progress.total > 0 ? (m_progress.current - 1.0) / m_progress.total : 0;
    painter.fillRect(0, 0, RoundHalfEven(width() * done), kTrackHeight, QColor(kWarmLight));
    painter.setPen(text);
    const QRect place(kMargin, kTrackHeight, m_cancel->x() - kMargin - kMargin / 2, height() - kTrackHeight);
    const auto label = QString::fromStdString(ProgressText(m_progress));
    painter.drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft, fontMetrics().elidedText(label, Qt::ElideRight, place.width()));
}

void AddProgressLine::resizeEvent(QResizeEvent*)
{
    const auto size = m_cancel->sizeHint();
    const int top = kTrackHeight + (height() - kTrackHeight - size.height()) / 2;
    m_cancel->setGeometry(width() - size.width() - kMargin, top, size.width(), size.height());
}

} // namespace zentaro
