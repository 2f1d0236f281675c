#include "shell/SkinDialog.h"

#include "shell/SkinButton.h"
#include "shell/Style.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QWindow>

#include <algorithm>

namespace zentaro {

namespace {

constexpr int kOutline = 0x1F; // white's share of 255 in the line that sets the dialog off from what lies below
constexpr int kTabHeight = 30;
constexpr int kTabRoom = 24; // px beside a tab's text
constexpr int kFaceHeight = 27;
constexpr int kFaceWidth = 87;
constexpr double kTabBehind = 0.4; // opacity of the tabs that are not chosen

void DrawFocusRing(QPainter& painter, const QRectF& place)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::kLight, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place, 4, 4);
}

Rect WholeOf(const QWidget& widget)
{
    return { 0, 0, widget.width(), widget.height() };
}

class SkinTabBar : public QTabBar {
public:
    SkinTabBar(Skin& skin, QWidget* parent)
        : QTabBar(parent)
        , m_skin(skin)
    {
        setDrawBase(false);
        setExpanding(false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    QSize tabSizeHint(int index) const override
    {
        return { fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width() + kTabRoom, kTabHeight };
    }
    void paintEvent(QPaintEvent* event) override;

private:
    Skin& m_skin;
};

void SkinTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 0; i < count(); ++i) {
        const bool isChosen = i == currentIndex();
        const auto place = tabRect(i);
        painter.setOpacity(isChosen ? 1 : kTabBehind);
        m_skin.Draw(painter, SkinImage::TabButton, { place.x() + 1, place.y(), place.width() - 2, place.height() });
        painter.setOpacity(1);
        auto colours = palette();
        colours.setColor(QPalette::WindowText, isChosen ? style::kText : style::kSecondText);
        style()->drawItemText(
            &painter, place, Qt::AlignCenter | Qt::TextShowMnemonic, colours, true, tabText(i), QPalette::WindowText);
        if (isChosen && hasFocus())
            DrawFocusRing(painter, QRectF(place).adjusted(6.5, 5.5, -6.5, -4.5));
    }
}

} // namespace

SkinDialog::SkinDialog(const QString& title, Skin& skin, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , m_skin(skin)
    , m_close(new SkinButton(tr("Close"), tr("Esc"), this))
{
    setWindowTitle(title);
    setContentsMargins(0, kTitleHeight, 0, 0);
    m_close->setFocusPolicy(Qt::NoFocus); // Esc is the key for it
    connect(m_close, &SkinButton::clicked, this, &QDialog::reject);
}

QSize SkinDialog::Room() const
{
    return (parentWidget() != nullptr ? parentWidget() : this)->screen()->availableSize();
}

QSize SkinDialog::Fitting(QSize wanted) const
{
    if (wanted.height() > Room().height())
        wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return wanted.boundedTo(Room());
}

void SkinDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (event->spontaneous() || parentWidget() == nullptr)
        return;
    // Qt would place the dialog as if it had a window frame, and it would not lie in the middle.
    QRect place(QPoint(), size());
    place.moveCenter(parentWidget()->window()->geometry().center());
    const auto room = parentWidget()->screen()->availableGeometry();
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    move(std::max(place.left(), room.left()), std::max(place.top(), room.top()));
}

void SkinDialog::resizeEvent(QResizeEvent*)
{
    m_close->setGeometry(width() - 31, 3, WindowLayout::kLeastPress, WindowLayout::kLeastPress);
}

void SkinDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), style::kBaseLight);
    PaintBody(painter);
    m_skin.Draw(painter, SkinImage::TitleBar, { 0, 0, width(), kTitleHeight });
    const auto close = m_close->geometry();
    m_skin.Draw(
        painter, ButtonImage(Button::Close, m_close->State()), { close.x(), close.y(), close.width(), close.height() });
    painter.setPen(style::kText);
    painter.drawText(QRect(14, 0, close.left() - 14, kTitleHeight), Qt::AlignVCenter, windowTitle());
    // A dark line outside and a light one inside it: one of the two shows, whatever lies behind.
    painter.setPen(style::kBase);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(style::HasHighContrast() ? style::kHairline : QColor(255, 255, 255, kOutline));
    painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
}

void SkinDialog::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && event->position().y() < kTitleHeight)
        windowHandle()->startSystemMove();
}

SkinScroll::SkinScroll(QWidget* content, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // Tab goes through the content, which follows
    setWidgetResizable(true);
    setWidget(content);
    for (auto* const through : { content, viewport() })
        through->setAutoFillBackground(false);
}

QSize SkinScroll::sizeHint() const
{
    return widget()->sizeHint();
}

SkinPushButton::SkinPushButton(const QString& text, Skin& skin, QWidget* parent)
    : QPushButton(text, parent)
    , m_skin(skin)
{
    setAttribute(Qt::WA_Hover);
}

QSize SkinPushButton::sizeHint() const
{
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    return { std::max(kFaceWidth, text + 32), kFaceHeight };
}

void SkinPushButton::paintEvent(QPaintEvent*)
{
    const auto state = !isEnabled() ? ButtonState::Disabled
        : isDown()                  ? ButtonState::Press
        : underMouse()              ? ButtonState::Over
                                    : ButtonState::Normal;
    QPainter painter(this);
    m_skin.Draw(painter, ButtonImage(Button::PushButton, state), WholeOf(*this));
    if (style::HasHighContrast()) {
        painter.setPen(isEnabled() ? style::kHairline : style::kFaintText);
        painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -2.5));
    }
    auto font = painter.font();
    font.setWeight(isDefault() ? QFont::DemiBold : QFont::Normal);
    painter.setFont(font);
    style()->drawItemText(&painter, rect().translated(0, isDown() ? 1 : 0), Qt::AlignCenter | Qt::TextShowMnemonic,
        palette(), isEnabled(), text(), QPalette::ButtonText);
    if (hasFocus())
        DrawFocusRing(painter, QRectF(rect()).adjusted(1.5, 1.5, -1.5, -2.5));
}

SkinTabs::SkinTabs(Skin& skin, QWidget* parent)
    : QTabWidget(parent)
{
    setTabBar(new SkinTabBar(skin, this));
    setDocumentMode(true);
    // A tab widget knows these keys by itself, but only those that its children leave: a combo box keeps them.
    TurnPages(QKeySequence::NextChild, 1);
    TurnPages(QKeySequence::PreviousChild, -1);
}

void SkinTabs::TurnPages(QKeySequence::StandardKey keys, int by)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this,
        [this, by] { setCurrentIndex((currentIndex() + by + count()) % count()); });
}

SkinLine::SkinLine(Qt::Orientation orientation, Skin& skin, QWidget* parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_skin(skin)
{
    orientation == Qt::Horizontal ? setFixedHeight(2) : setFixedWidth(2);
}

void SkinLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_skin.Draw(painter, m_orientation == Qt::Horizontal ? SkinImage::HLine : SkinImage::VLine, WholeOf(*this));
}

QLabel* SecondText(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace zentaro
