// SPDX-License-Identifier: MIT
#include "host/client/shell/Icons.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace Tarvik::Client {

QIcon ColoredIcon(const QString& name, const QColor& color) {
    QFile file(":/tarvik/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", color.name().toLatin1());
    QSvgRenderer renderer(drawing);
    QIcon icon;
    for (const int size : {20, 40}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace Tarvik::Client
