// SPDX-License-Identifier: MIT
#include <QFile>
#include <QPixmap>
#include <QSvgRenderer>

#include <tarvik/skin/Icons.h>

#include "tarvik/src/skin/icons/IconTexts.h"

namespace Tarvik::Skin {

namespace {

/// The SVG text of a drawing; empty for an unknown one.
QByteArray DrawingOf(const std::string& name) {
    if (const auto it = IconTexts().find(name); it != IconTexts().end()) {
        return QByteArray(
                   R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><g fill="none" stroke="currentColor" )"
                   R"(stroke-width="1.4" stroke-linecap="round" stroke-linejoin="round">)") +
               QByteArray::fromStdString(it->second) + "</g></svg>";
    }
    QFile file(QString::fromStdString(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Render(QPainter& painter, const QRect& place, QByteArray drawing, const QColor& colour) {
    QSvgRenderer renderer(drawing.replace("currentColor", colour.name().toLatin1()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, place);
    painter.restore();
}

}  // namespace

std::vector<std::string> IconNames() {
    std::vector<std::string> names;
    for (const auto& [name, text] : IconTexts()) {
        names.push_back(name);
    }
    return names;
}

bool HasIcon(const std::string& name) {
    return IconTexts().contains(name);
}

void PaintIcon(QPainter& painter, const QRect& place, const std::string& name, const QColor& colour) {
    const QByteArray drawing = DrawingOf(name);
    if (!drawing.isEmpty()) {
        Render(painter, place, drawing, colour);
    }
}

QIcon MakeIcon(const std::string& name, std::initializer_list<int> sizes) {
    QIcon icon;
    const QByteArray drawing = DrawingOf(name);
    if (drawing.isEmpty()) {
        return icon;
    }
    const std::pair<QIcon::Mode, Role> looks[] = {{QIcon::Normal, Role::Text},
                                                  {QIcon::Disabled, Role::Disabled}};
    for (const auto& [mode, role] : looks) {
        for (const int size : sizes) {
            QPixmap pixmap(size, size);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            Render(painter, pixmap.rect(), drawing, Colour(role));
            painter.end();
            icon.addPixmap(pixmap, mode);
        }
    }
    return icon;
}

}  // namespace Tarvik::Skin
