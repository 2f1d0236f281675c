#include "shell/WidgetIcons.h"

#include "shell/Style.h"
#include "shell/WidgetFaces.h"

#include <QPainter>
#include <QPainterPath>

#include <initializer_list>

namespace zentaro {

namespace {

/// A square with room for screens of that density.
QPixmap EmptyPixmap(int side, int density)
{
    QPixmap pixmap(side * density, side * density);
    pixmap.setDevicePixelRatio(density);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

/// The sign of a message: a ring with a letter, in the colour of light or of alarm.
QIcon MessageIcon(QStyle::StandardPixmap picture)
{
    auto pixmap = EmptyPixmap(48, 3);
    QPainter painter(&pixmap);
    const bool isAlarm = picture == QStyle::SP_MessageBoxCritical;
    const Brushwork work(painter, QPen(isAlarm ? style::kAlarm : style::kLight, 3), style::kBase);
    painter.drawEllipse(QRectF(4, 4, 40, 40));
    painter.setPen(QPen(isAlarm ? style::kAlarm : style::kLight, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (picture == QStyle::SP_MessageBoxInformation) {
        painter.drawPoint(QPointF(24, 15));
        painter.drawLine(QPointF(24, 22), QPointF(24, 34));
    } else {
        painter.drawLine(QPointF(24, 14), QPointF(24, 26));
        painter.drawPoint(QPointF(24, 33.5));
    }
    return QIcon(pixmap);
}

/// What the toolkit's own dialogs show on buttons and before files, on a field of 24 by 24; nothing for other signs.
QPainterPath DialogSign(QStyle::StandardPixmap picture)
{
    QPainterPath path;
    const auto line = [&](std::initializer_list<QPointF> points) { path.addPolygon(QPolygonF(points)); };
    const auto folder = [&] {
        line({ { 3.5, 18.5 }, { 3.5, 5.5 }, { 9.5, 5.5 }, { 11.5, 8 }, { 20.5, 8 }, { 20.5, 18.5 }, { 3.5, 18.5 } });
    };
    switch (picture) {
    case QStyle::SP_ArrowBack:
        line({ { 14.5, 6 }, { 8.5, 12 }, { 14.5, 18 } });
        break;
    case QStyle::SP_ArrowForward:
        line({ { 9.5, 6 }, { 15.5, 12 }, { 9.5, 18 } });
        break;
    case QStyle::SP_FileDialogToParent:
        line({ { 6.5, 11 }, { 12, 5.5 }, { 17.5, 11 } });
        line({ { 12, 5.5 }, { 12, 18.5 } });
        break;
    case QStyle::SP_FileDialogNewFolder:
        folder();
        line({ { 12, 10.5 }, { 12, 16 } });
        line({ { 9.25, 13.25 }, { 14.75, 13.25 } });
        break;
    case QStyle::SP_FileDialogDetailedView:
        for (const double y : { 6.5, 12.0, 17.5 })
            line({ { 4.5, y }, { 19.5, y } });
        break;
    case QStyle::SP_FileDialogListView:
        for (const double y : { 5.0, 14.0 }) {
            path.addRoundedRect(5, y, 5, 5, 1, 1);
            path.addRoundedRect(14, y, 5, 5, 1, 1);
        }
        break;
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirHomeIcon:
    case QStyle::SP_DirLinkIcon:
        folder();
        break;
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        line({ { 6, 3.5 }, { 13.5, 3.5 }, { 18, 8 }, { 18, 20.5 }, { 6, 20.5 }, { 6, 3.5 } });
        line({ { 13.5, 3.5 }, { 13.5, 8 }, { 18, 8 } });
        break;
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DesktopIcon:
        path.addRoundedRect(3.5, 4.5, 17, 11.5, 1.5, 1.5);
        line({ { 8, 19.5 }, { 16, 19.5 } });
        break;
    case QStyle::SP_DriveHDIcon:
    case QStyle::SP_DriveNetIcon:
    case QStyle::SP_DriveCDIcon:
        path.addRoundedRect(3.5, 8.5, 17, 7.5, 1.5, 1.5);
        line({ { 16.5, 12.25 }, { 17, 12.25 } });
        break;
    default:
        break;
    }
    return path;
}

QIcon DialogIcon(const QPainterPath& sign)
{
    auto pixmap = EmptyPixmap(24, 4);
    QPainter painter(&pixmap);
    const Brushwork work(painter, QPen(style::kText, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin), Qt::NoBrush);
    painter.drawPath(sign);
    return QIcon(pixmap);
}

} // namespace

QIcon WidgetIcon(QStyle::StandardPixmap picture)
{
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
        return MessageIcon(picture);
    default:
        break;
    }
    const auto sign = DialogSign(picture);
    return sign.isEmpty() ? QIcon() : DialogIcon(sign);
}

} // namespace zentaro
