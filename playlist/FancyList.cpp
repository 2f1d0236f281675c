#include "playlist/FancyList.h"

#include "playlist/AddProgressLine.h"
#include "playlist/FancyListAccessible.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

// Heights of a line, in pixels.
constexpr int kTitleHeight = 18;
constexpr int kDetailHeight = 15;
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
    , m_marks(items)
    , m_drag(m_layout)
    , m_wheel(m_layout)
    , m_grip(m_layout)
    , m_progressLine(new AddProgressLine(this))
    , m_foot(new ListFoot(this))
    , m_card(new ListCard(this))
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
    connect(m_card, &ListCard::clicked, this, &FancyList::CardTaken);
    connect(m_progressLine, &AddProgressLine::Cancelled, this, &FancyList::CancelAdding);
    PlaceSurface();
}

FancyList::~FancyList() = default;

void FancyList::RenderThumb(QPainter& painter, const Picture& picture, int x, int y, int width, int height)
{
    FancyListPainter(painter, m_layout, m_look, m_thumbs).RenderThumb(picture, { x, y, x + width, y + height });
}

void FancyList::InviteFind()
{
    if (!IsFinding())
        m_foot->SetText(tr("Find: type a part of a title or folder"), true);
    PlaceSurface();
}

void FancyList::ShowAddProgress(const AddProgress& progress)
{
    const bool wasShown = m_progressLine->isVisibleTo(this);
    m_progressLine->SetProgress(progress);
    if (wasShown != m_progressLine->isVisibleTo(this))
        ShowFoot();
}

void FancyList::SetFoot(const QString& text)
{
    m_footText = text;
    ShowFoot();
}

void FancyList::SetCard(const QString& text)
{
    m_cardText = text;
    PlaceSurface();
}

void FancyList::SetFind(const std::string& words, std::vector<int> rows)
{
    m_look.find = words;
    const auto found = rows.size();
    m_layout.SetFilter(words.empty() ? std::nullopt : std::optional(std::move(rows)));
    ShowFoot();
    if (words.empty())
        m_layout.ScrollToRow(SelectedItem());
    else
        m_foot->SetText(tr("Find: %1   %2 of %3").arg(QString::fromStdString(words)).arg(found).arg(Count()), true);
    update();
}

// How far a batch is goes before what there is.
void FancyList::ShowFoot()
{
    const bool isAdding = m_progressLine->isVisibleTo(this);
    if (isAdding)
        m_foot->SetText({}, false);
    else if (!IsFinding())
        m_foot->SetText(m_footText, false);
    PlaceSurface();
}

int FancyList::LineHeight() const
{
    if (m_progressLine->isVisibleTo(this))
        return m_progressLine->sizeHint().height();
    return m_foot->isVisibleTo(this) ? m_foot->sizeHint().height() : 0;
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
    QToolTip::showText(help->globalPos(), TipAt(help->pos()), this);
    return true;
}

void FancyList::paintEvent(QPaintEvent*)
{
    m_look.palette = palette();
    m_look.dropLine = m_drag.IsDragging() ? std::max(0, m_drag.LineTop()) : -1;
    QPainter painter(this);
    FancyListPainter(painter, m_layout, m_look, m_thumbs).Paint();
    const auto rows = m_layout.VisibleRows();
    if (m_items.onRowsSeen)
        m_items.onRowsSeen(rows.first, rows.last);
}

void FancyList::resizeEvent(QResizeEvent*)
{
    PlaceSurface();
}

void FancyList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && HoldScrollBar(event->pos()))
        return;
    m_clickPending = event->button() == Qt::LeftButton;
    if (m_clickPending) {
        m_marks.Press(m_layout.RowAt(event->pos().y()), event->modifiers() & Qt::ControlModifier,
            event->modifiers() & Qt::ShiftModifier);
        m_drag.Press(event->pos());
    }
    Press(*event);
}

void FancyList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_grip.IsHeld()) {
        m_grip.Release();
        SetScrollBarLook(m_grip.Look(event->pos()));
        return;
    }
    const bool wasDragging = m_drag.IsDragging();
    const auto to = m_drag.Release();
    if (std::exchange(m_clickPending, false) && rect().contains(event->pos()) && !wasDragging) {
        m_marks.Release(m_layout.RowAt(event->pos().y()), event->modifiers() & Qt::ControlModifier,
            event->modifiers() & Qt::ShiftModifier);
        emit Click();
    }
    if (to) {
        update();
        emit RowsDragged(*to);
    }
}

void FancyList::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && HoldScrollBar(event->pos()))
        return;
    Press(*event);
    if (event->button() == Qt::LeftButton)
        emit DblClick();
}

void FancyList::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grip.IsHeld()) {
        m_grip.Move(event->pos());
        return;
    }
    if (event->buttons() & Qt::LeftButton) {
        m_drag.Move(event->pos());
        if (m_drag.IsDragging())
            update();
    }
    SetScrollBarLook(m_grip.Look(event->pos()));
    SetHover(m_layout.RowAt(event->pos().y()));
    PointAtThumb(event->buttons() == Qt::NoButton ? event->pos() : QPoint(-1, -1));
    emit MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

void FancyList::PointAtThumb(const QPoint& at)
{
    const int row = m_layout.RowAt(at.y());
    const auto box = row != FancyListItems::kNone ? m_layout.ImageRect(row) : ListRect();
    const bool isOn =
        m_layout.Thumbnails() && at.x() >= box.left && at.x() < box.right && at.y() >= box.top && at.y() < box.bottom;
    if (isOn)
        emit ThumbPointed(row, static_cast<double>(at.x() - box.left) / box.Width());
    else
        emit ThumbLeft();
}

void FancyList::SetScrub(int row, const Picture& picture, double share)
{
    m_look.scrubRow = row;
    m_look.scrubPicture = picture;
    m_look.scrubShare = share;
    update();
}

void FancyList::SetPaused(bool isPaused)
{
    if (std::exchange(m_look.isPaused, isPaused) != isPaused)
        update();
}

void FancyList::SetHover(int row)
{
    if (std::exchange(m_look.hoverRow, row) != row)
        update();
}

void FancyList::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    const auto row = m_layout.RowRect(std::max(0, SelectedItem()));
    emit MenuAsked(mapToGlobal(QPoint(width() / 4, std::clamp(row.bottom, 0, height()))));
}

void FancyList::leaveEvent(QEvent*)
{
    SetHover(FancyListItems::kNone);
    emit ThumbLeft();
    if (!m_grip.IsHeld())
        SetScrollBarLook(ScrollBarLook::Normal);
}

void FancyList::wheelEvent(QWheelEvent* event)
{
    m_wheel.Turn(*event);
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
    // The tool kit names the list itself, right after this event; what the keys are on is its row.
    QMetaObject::invokeMethod(
        this, [this] { FancyListAccessible::TellSelectionChanged(*this); }, Qt::QueuedConnection);
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
    if (IsFinding())
        emit FindOutdated();
    const int before = std::exchange(m_toldCount, Count());
    if (before != Count()) {
        emit ThumbLeft();
        FancyListAccessible::TellRowsChanged(*this);
    }
    if ((before == 0) != (Count() == 0))
        PlaceSurface();
    // After a removal another row can stand at the selection's number.
    if (std::exchange(m_toldSelection, SelectedItem()) != SelectedItem() || before > Count())
        FancyListAccessible::TellSelectionChanged(*this);
}

void FancyList::PlaceSurface()
{
    const int line = LineHeight();
    for (QWidget* const part : { static_cast<QWidget*>(m_progressLine), static_cast<QWidget*>(m_foot) })
        part->setGeometry(0, height() - line, width(), part->sizeHint().height());
    m_layout.SetSurfaceSize(width(), height() - line);
    m_card->Show(Count() == 0 ? m_cardText : QString(), { 0, 0, width(), height() - line });
}

// The title in full when its row is too narrow for it, and what is told of the row; as plain text.
QString FancyList::TipAt(const QPoint& at) const
{
    const int row = m_layout.RowAt(at.y());
    // Whoever looks into a film wants to see its picture.
    if (row == FancyListItems::kNone || (row == m_look.scrubRow && at.x() < m_layout.TextRect(row).left))
        return {};
    const auto title = QString::fromStdString(m_items.Item(row).Text).left(kLongestTip);
    const auto more = describe && at.x() >= m_layout.TextRect(row).left ? describe(row) : QString();
    if (!more.isEmpty())
        return "<p><b>" + title.toHtmlEscaped() + "</b></p><p style='white-space:pre'>"
            + more.left(kLongestTip).toHtmlEscaped() + "</p>";
    if (QFontMetrics(m_look.font).horizontalAdvance(title) <= m_layout.TextRect(row).Width())
        return {};
    return "<p>" + title.toHtmlEscaped() + "</p>";
}

bool FancyList::HoldScrollBar(const QPoint& at)
{
    if (!m_grip.Press(at))
        return false;
    m_wheel.Stop();
    SetScrollBarLook(m_grip.Look(at));
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
