// SPDX-License-Identifier: MIT
#include <QPixmap>
#include <QSvgRenderer>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "tarvik/src/skin/icons/IconTexts.h"

namespace Tarvik::Seaplan {

bool HasIcon(const std::string& name) {
    return IconTexts().contains(name);
}

void PaintIcon(QPainter& painter, const QRect& place, const std::string& name, const QColor& colour) {
    const auto it = IconTexts().find(name);
    if (it == IconTexts().end()) {
        return;
    }
    QString text = QString::fromStdString(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><g fill="none" stroke="currentColor" )"
        R"(stroke-width="1.4" stroke-linecap="round" stroke-linejoin="round">)" +
        it->second + "</g></svg>");
    text.replace(QLatin1String("currentColor"), colour.name());
    QSvgRenderer renderer(text.toUtf8());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, place);
    painter.restore();
}

QIcon MakeIcon(const std::string& name) {
    QIcon icon;
    const auto draw = [&](const QColor& colour, QIcon::Mode mode) {
        QPixmap pixmap(kIconSize, kIconSize);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        PaintIcon(painter, pixmap.rect(), name, colour);
        painter.end();
        icon.addPixmap(pixmap, mode);
    };
    draw(Skin().text, QIcon::Normal);
    draw(Skin().disabled, QIcon::Disabled);
    return icon;
}

}  // namespace Tarvik::Seaplan
