#include "shell/GlyphButton.h"

#include "shell/Style.h"

#include <QPainter>

namespace zentaro {

namespace {

void AddTriangle(QPainterPath& path, double left, double right, double middle, double halfHeight)
{
    path.moveTo(left, middle - halfHeight);
    path.lineTo(right, middle);
    path.lineTo(left, middle + halfHeight);
    path.closeSubpath();
}

void AddLine(QPainterPath& path, QPointF from, QPointF to)
{
    path.moveTo(from);
    path.lineTo(to);
}

QPainterPath Mirrored(const QPainterPath& path)
{
    return QTransform(-1, 0, 0, 1, 24, 0).map(path);
}

Glyph PlaySign()
{
    QPainterPath path;
    AddTriangle(path, 8, 19, 12, 7);
    return { path };
}

Glyph PauseSign()
{
    QPainterPath path;
    path.addRoundedRect(7, 6, 3.6, 12, 1, 1);
    path.addRoundedRect(13.4, 6, 3.6, 12, 1, 1);
    return { path };
}

Glyph StopSign()
{
    QPainterPath path;
    path.addRoundedRect(6.5, 6.5, 11, 11, 1.5, 1.5);
    return { path };
}

Glyph FastForwardSign()
{
    QPainterPath path;
    AddTriangle(path, 4, 12, 12, 6);
    AddTriangle(path, 12, 20, 12, 6);
    return { path };
}

Glyph NextSign()
{
    QPainterPath path;
    AddTriangle(path, 6, 15, 12, 6);
    path.addRoundedRect(15.5, 6, 2.6, 12, 1, 1);
    return { path };
}

Glyph FullScreenSign()
{
    QPainterPath path;
    for (const double x : { 5.0, 19.0 }) {
        for (const double y : { 5.0, 19.0 }) {
            const double inX = x < 12 ? 5 : -5;
            const double inY = y < 12 ? 5 : -5;
            path.moveTo(x + inX, y);
            path.lineTo(x, y);
            path.lineTo(x, y + inY);
        }
    }
    return { path, false };
}

Glyph SnapshotSign()
{
    QPainterPath path;
    path.addRoundedRect(4, 7.5, 16, 11, 2, 2);
    path.addEllipse(QPointF(12, 13), 3, 3);
    AddLine(path, { 9, 5.5 }, { 15, 5.5 });
    return { path, false };
}

Glyph ListSign()
{
    QPainterPath path;
    for (const double y : { 6.5, 12.0, 17.5 }) {
        AddLine(path, { 5, y }, { 5.4, y });
        AddLine(path, { 9, y }, { 19, y });
    }
    return { path, false };
}

Glyph DiscSign()
{
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 7.5, 7.5);
    path.addEllipse(QPointF(12, 12), 2, 2);
    return { path, false };
}

Glyph OpenSign()
{
    QPainterPath path;
    path.moveTo(4.5, 18);
    path.lineTo(4.5, 6.5);
    path.lineTo(10, 6.5);
    path.lineTo(12, 9);
    path.lineTo(19.5, 9);
    path.lineTo(19.5, 18);
    path.closeSubpath();
    return { path, false };
}

QPainterPath Speaker()
{
    QPainterPath path(QPointF(4.5, 9.5));
    for (const auto& point :
        { QPointF(7.5, 9.5), QPointF(12, 5.5), QPointF(12, 18.5), QPointF(7.5, 14.5), QPointF(4.5, 14.5) })
        path.lineTo(point);
    path.closeSubpath();
    return path;
}

Glyph SoundOnSign()
{
    auto path = Speaker();
    for (const double radius : { 4.0, 7.5 }) {
        const QRectF box(12.5 - radius, 12 - radius, 2 * radius, 2 * radius);
        path.arcMoveTo(box, 45);
        path.arcTo(box, 45, -90);
    }
    return { path, false };
}

Glyph CrossSign(QPainterPath path, const QRectF& box)
{
    AddLine(path, box.topLeft(), box.bottomRight());
    AddLine(path, box.topRight(), box.bottomLeft());
    return { path, false };
}

Glyph MinimizeSign()
{
    QPainterPath path;
    AddLine(path, { 7.5, 16 }, { 16.5, 16 });
    return { path, false };
}

Glyph MaximizeSign()
{
    QPainterPath path;
    path.addRoundedRect(7.5, 7.5, 9, 9, 1.5, 1.5);
    return { path, false };
}

} // namespace

Glyph GlyphOf(Button button)
{
    switch (button) {
    case Button::Play:
        return PlaySign();
    case Button::Pause:
        return PauseSign();
    case Button::Stop:
        return StopSign();
    case Button::FastForward:
        return FastForwardSign();
    case Button::Rewind:
        return { Mirrored(FastForwardSign().path) };
    case Button::Next:
        return NextSign();
    case Button::Previous:
        return { Mirrored(NextSign().path) };
    case Button::FullScreen:
        return FullScreenSign();
    case Button::Snapshot:
        return SnapshotSign();
    case Button::PlayList:
        return ListSign();
    case Button::Dvd:
        return DiscSign();
    case Button::Open:
        return OpenSign();
    case Button::SoundOn:
        return SoundOnSign();
    case Button::SoundOff:
        return CrossSign(Speaker(), { 15, 9.5, 5, 5 });
    case Button::Minimize:
        return MinimizeSign();
    case Button::Maximize:
        return MaximizeSign();
    case Button::Close:
        return CrossSign({}, { 7.5, 7.5, 9, 9 });
    case Button::PushButton:
        break;
    }
    return {};
}

GlyphButton::GlyphButton(Button button, const QString& name, const QString& shortcut, QWidget* parent)
    : QAbstractButton(parent)
    , m_button(button)
    , m_glyph(GlyphOf(button))
{
    setObjectName(name);
    setAccessibleName(name);
    setToolTip(shortcut.isEmpty() ? name : name + " (" + shortcut + ")");
    setCursor(Qt::ArrowCursor);
    // Keys go to the window; Tab still reaches the button.
    setFocusPolicy(Qt::TabFocus);
}

void GlyphButton::ShowSign(Button button)
{
    m_button = button;
    m_glyph = GlyphOf(button);
    update();
}

QColor GlyphButton::SignColor() const
{
    auto color = style::kText;
    if (!isEnabled())
        color.setAlphaF(0.28F);
    else if (isDown())
        color = style::kLight;
    else if (!underMouse())
        color.setAlphaF(0.8F);
    return color;
}

void GlyphButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isLit = isEnabled() && underMouse();
    if (m_button == Button::Close && isLit)
        painter.fillRect(rect(), style::kCloseHover);
    else if (m_button == Button::Play) {
        // The one jewel among the buttons.
        const QRectF face(width() / 2.0 - 28, height() / 2.0 - 28, 56, 56);
        painter.setPen(QPen(isLit || isDown() ? style::kLight : style::kSecondText, 1.5));
        painter.setBrush(style::kBaseLight);
        painter.drawEllipse(face);
    } else if (isLit) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(style::kHairline);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    if (hasFocus()) {
        painter.setPen(QPen(style::kLight, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
    painter.translate(width() / 2.0, height() / 2.0 + (isDown() ? 1 : 0));
    if (m_button == Button::Play)
        painter.scale(1.35, 1.35);
    painter.translate(-12, -12);
    if (m_glyph.isFilled)
        painter.fillPath(m_glyph.path, SignColor());
    else
        painter.strokePath(m_glyph.path, QPen(SignColor(), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void GlyphButton::enterEvent(QEnterEvent*)
{
    update();
}

void GlyphButton::leaveEvent(QEvent*)
{
    update();
}

} // namespace zentaro
