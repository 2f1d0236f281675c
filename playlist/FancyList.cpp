#include "playlist/FancyList.h"

#include "playlist/AddProgressLine.h"
#include "playlist/FancyListAccessible.h"

#include <QDir>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QUrl>

#include <cstdlib>
#include <utility>

namespace zentaro {

namespace {

// Heights of a line, in pixels.
constexpr int kTitleHeight = 18;
constexpr int kDetailHeight = 15;
// The smallest wheel delta that moves the view by one pixel.
constexpr int kWheelPixel = 16;
// Characters of a title that a tool tip shows.
constexpr int kLongestTip = 500;

} // namespace

std::vector<std::string> DroppedPaths(const QMimeData& data)
{
    std::vector<std::string> paths;
    for (const auto& url : data.urls()) {
        if (!url.isLocalFile())
            continue;
        auto path = QDir::toNativeSeparators(url.toLocalFile()).toStdString();
        // A path of bytes that are no UTF-8 lives on only in the address's percent signs.
        if (const auto bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
            QString::fromUtf8(bytes).toUtf8() != bytes)
            path = bytes.toStdString();
        paths.push_back(std::move(path));
    }
    return paths;
}

void AcceptAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

FancyList::FancyList(FancyListItems& items, QWidget* parent)
    : QWidget(parent)
    , m_items(items)
    , m_layout(items, *this)
    , m_progressLine(new AddProgressLine(this))
{
    m_look.font = FancyListFont(kTitleHeight);
    m_look.detailFont = FancyListFont(kDetailHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    // First: while a screen reader listens, a name makes the tool kit ask at once, and only once.
    FancyListAccessible::Install();
    setAccessibleName(tr("Playlist"));
    connect(m_progressLine, &AddProgressLine::Cancelled, this, &FancyList::CancelAdding);
    PlaceSurface();
}

FancyList::~FancyList() = default;

void FancyList::RenderThumb(QPainter& painter, const Picture& picture, int x, int y, int width, int height)
{
    FancyListPainter(painter, m_layout, m_look, m_thumbs).RenderThumb(picture, { x, y, x + width, y + height });
}

void FancyList::ShowAddProgress(const AddProgress& progress)
{
    const bool wasShown = m_progressLine->isVisibleTo(this);
    m_progressLine->SetProgress(progress);
    if (wasShown != m_progressLine->isVisibleTo(this))
        PlaceSurface();
}

void FancyList::SetHint(const QString& hint)
{
    m_look.hint = hint;
    setAccessibleDescription(hint);
    update();
}

QSize FancyList::sizeHint() const
{
    return { 240, 400 };
}

bool FancyList::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), CutTitleAt(help->pos()), this);
    return true;
}

void FancyList::paintEvent(QPaintEvent*)
{
    m_look.palette = palette();
    QPainter painter(this);
    FancyListPainter(painter, m_layout, m_look, m_thumbs).Paint();
}

void FancyList::resizeEvent(QResizeEvent*)
{
    PlaceSurface();
}

void FancyList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && GrabScrollBar(event->pos()))
        return;
    m_clickPending = event->button() == Qt::LeftButton;
    Press(*event);
}

void FancyList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_thumbGrip >= 0) {
        m_thumbGrip = -1;
        SetScrollBarLook(IsOnScrollBar(event->pos()) ? ScrollBarLook::Over : ScrollBarLook::Normal);
    } else if (std::exchange(m_clickPending, false) && rect().contains(event->pos())) {
        emit Click();
    }
}

void FancyList::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && GrabScrollBar(event->pos()))
        return;
    Press(*event);
    if (event->button() == Qt::LeftButton)
        emit DblClick();
}

void FancyList::mouseMoveEvent(QMouseEvent* event)
{
    if (m_thumbGrip >= 0) {
        m_layout.SetScrollValue(m_layout.ScrollValueForThumb(event->pos().y() - m_thumbGrip));
        return;
    }
    SetScrollBarLook(IsOnScrollBar(event->pos()) ? ScrollBarLook::Over : ScrollBarLook::Normal);
    emit MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

void FancyList::leaveEvent(QEvent*)
{
    if (m_thumbGrip < 0)
        SetScrollBarLook(ScrollBarLook::Normal);
}

void FancyList::wheelEvent(QWheelEvent* event)
{
    m_wheelRest += event->angleDelta().y();
    // Touch pads send deltas that would each round to nothing.
    if (std::abs(m_wheelRest) >= kWheelPixel)
        m_layout.Scroll(std::exchange(m_wheelRest, 0));
    event->accept();
}

void FancyList::keyReleaseEvent(QKeyEvent* event)
{
    emit KeyUp(event->key(), event->modifiers());
    QWidget::keyReleaseEvent(event);
}

void FancyList::focusInEvent(QFocusEvent* event)
{
    // A frame tells keyboard users where they are; after a click the pointer tells it.
    m_look.focusFrame = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    QWidget::focusInEvent(event);
    update();
}

void FancyList::focusOutEvent(QFocusEvent* event)
{
    m_look.focusFrame = false;
    QWidget::focusOutEvent(event);
    update();
}

void FancyList::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        AcceptAsCopy(*event);
}

void FancyList::dropEvent(QDropEvent* event)
{
    AcceptAsCopy(*event);
    const auto at = event->position().toPoint();
    emit OLEDragDrop(event->mimeData(), event->dropAction(), event->buttons(), event->modifiers(), at.x(), at.y());
}

void FancyList::ListChanged()
{
    if (std::exchange(m_toldCount, Count()) != Count())
        FancyListAccessible::TellRowsChanged(*this);
    if (std::exchange(m_toldSelection, SelectedItem()) != SelectedItem())
        FancyListAccessible::TellSelectionChanged(*this);
}

void FancyList::PlaceSurface()
{
    const int line = m_progressLine->isVisibleTo(this) ? m_progressLine->sizeHint().height() : 0;
    m_progressLine->setGeometry(0, height() - line, width(), m_progressLine->sizeHint().height());
    m_layout.SetSurfaceSize(width(), height() - line);
}

// The title in full, as plain text, when its row is too narrow for it.
QString FancyList::CutTitleAt(const QPoint& at) const
{
    const int row = m_layout.RowAt(at.y());
    if (row == FancyListItems::kNone)
        return {};
    const auto title = QString::fromStdString(m_items.Item(row).Text).left(kLongestTip);
    if (QFontMetrics(m_look.font).horizontalAdvance(title) <= m_layout.TextRect(row).Width())
        return {};
    return "<p>" + title.toHtmlEscaped() + "</p>";
}

bool FancyList::IsOnScrollBar(const QPoint& at) const
{
    return m_layout.ScrollBarVisible() && at.x() >= m_layout.ScrollBar(kScrollBarWidth).left;
}

// The thumb is taken where it is pressed; beside it, its middle jumps to the pointer.
bool FancyList::GrabScrollBar(const QPoint& at)
{
    if (!IsOnScrollBar(at))
        return false;
    const auto thumb = m_layout.ScrollThumb(kScrollBarWidth);
    const bool onThumb = at.y() >= thumb.top && at.y() < thumb.bottom;
    m_thumbGrip = onThumb ? at.y() - thumb.top : thumb.Height() / 2;
    m_layout.SetScrollValue(m_layout.ScrollValueForThumb(at.y() - m_thumbGrip));
    SetScrollBarLook(ScrollBarLook::Press);
    return true;
}

void FancyList::Press(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        m_items.Press(m_layout.RowAt(event.pos().y()));
    emit MouseDown(event.button(), event.modifiers(), event.pos().x(), event.pos().y());
}

void FancyList::SetScrollBarLook(ScrollBarLook look)
{
    if (std::exchange(m_look.scrollBar, look) != look)
        update();
}

} // namespace zentaro
