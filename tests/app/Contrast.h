#pragma once

#include "playlist/FancyList.h"
#include "shell/SeekTrack.h"
#include "shell/VolumeKnob.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace zentaro {

inline std::string Where(const QWidget& top, const QWidget& widget)
{
    return (top.windowTitle() + ": " + widget.metaObject()->className() + " " + widget.objectName()).toStdString();
}

inline double Light(QRgb colour)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// Between the lightest and the darkest of what is drawn there.
inline double Contrast(const QImage& picture, const QRect& place)
{
    double least = 1;
    double most = 0;
    const auto ratio = picture.devicePixelRatio();
    const auto part = QRectF(place.topLeft() * ratio, place.size() * ratio).toRect().intersected(picture.rect());
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const auto light = Light(picture.pixel(x, y));
            least = std::min(least, light);
            most = std::max(most, light);
        }
    }
    return (most + 0.05) / (least + 0.05);
}

struct Seen {
    QRect place; // of the widget
    std::string what;
    bool isText = true;
};

/// What is to be read or recognised on the widget, without the edges around it.
inline std::vector<Seen> SeenOn(QWidget& widget)
{
    const auto inner = widget.rect().adjusted(4, 4, -4, -4);
    std::vector<Seen> seen;
    const auto add = [&](const QRect& place, const QString& text, bool isText = true) {
        seen.push_back({ place, text.toStdString(), isText });
    };
    if (const auto* const label = qobject_cast<QLabel*>(&widget); label != nullptr && !label->text().isEmpty())
        add(widget.rect(), label->text());
    if (const auto* const button = qobject_cast<QAbstractButton*>(&widget))
        add(inner, button->text(), !button->text().isEmpty());
    if (const auto* const box = qobject_cast<QComboBox*>(&widget))
        add(inner, box->currentText());
    if (const auto* const edit = qobject_cast<QLineEdit*>(&widget); edit != nullptr && !edit->displayText().isEmpty())
        add(inner, edit->displayText());
    if (qobject_cast<SeekTrack*>(&widget) != nullptr || qobject_cast<VolumeKnob*>(&widget) != nullptr)
        add(widget.rect(), widget.objectName(), false);
    if (const auto* const tabs = qobject_cast<QTabBar*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            add(tabs->tabRect(tab).adjusted(10, 6, -10, -6), tabs->tabText(tab));
    }
    const auto addActions = [&] {
        for (auto* const action : widget.actions()) {
            if (!action->isSeparator() && action->isEnabled() && action->isVisible())
                add(qobject_cast<QMenu*>(&widget) ? qobject_cast<QMenu*>(&widget)->actionGeometry(action)
                                                  : qobject_cast<QMenuBar*>(&widget)->actionGeometry(action),
                    action->text());
        }
    };
    if (qobject_cast<QMenu*>(&widget) != nullptr || qobject_cast<QMenuBar*>(&widget) != nullptr)
        addActions();
    if (const auto* const list = qobject_cast<FancyList*>(&widget)) {
        for (int row = 0; row < list->Count(); ++row) {
            const auto place = list->Layout().TextRect(row);
            add({ place.left, place.top, place.Width(), place.Height() / 2 }, "title");
            add({ place.left, place.top + 20, place.Width(), place.Height() / 2 }, "detail");
        }
    }
    return seen;
}

inline void ExpectContrastOf(QWidget& top, QWidget& widget, const QImage& picture)
{
    const auto visible = widget.visibleRegion();
    for (const auto& [place, what, isText] : SeenOn(widget)) {
        if (widget.isEnabled() && (&top == &widget || visible.contains(place.center()))) {
            EXPECT_GE(Contrast(picture, place.translated(widget.mapTo(&top, QPoint()))), isText ? 4.5 : 3.0)
                << Where(top, widget) << ' ' << what;
        }
    }
}

} // namespace zentaro
