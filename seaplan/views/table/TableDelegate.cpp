// SPDX-License-Identifier: MIT
#include <QPainter>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

QRect ImageRect(const TableImages& images, const QRect& place, std::size_t image) {
    QRect rect(0, 0, images.edge, images.edge);
    rect.moveCenter(
        {place.left() + 2 + images.step / 2 + static_cast<int>(image) * images.step, place.center().y()});
    return rect;
}

void PaintImages(QPainter& painter, const TableImages& images, const QRect& place) {
    for (std::size_t i = 0; i < images.images.size(); ++i) {
        const TableImage& image = images.images[i];
        Skin::PaintIcon(painter, ImageRect(images, place, i), image.icon,
                        Colour(image.enabled ? Role::Text : Role::Disabled));
    }
}

QFont FontOf(QFont font, const TableCell& cell) {
    font.setPixelSize(Skin::kTablePixels);
    font.setBold(cell.bold);
    return font;
}

QRect TextRect(const QRect& place, const TableCell& cell) {
    return place.adjusted(cell.left, 0, -cell.right, 0);
}

void PaintText(QPainter& painter, const QStyleOptionViewItem& option, const TableCell& cell, int alignment) {
    const QFont font = FontOf(option.font, cell);
    painter.setFont(font);
    painter.setPen(Colour(cell.ink));
    const QRect inner = TextRect(option.rect, cell);
    painter.drawText(inner, alignment | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(cell.text, Qt::ElideRight, inner.width()));
}

}  // namespace

void TableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    const TableCell cell = static_cast<const TableModel*>(index.model())->CellAt(index);
    const bool front = cell.canBeFront && (option.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->fillRect(option.rect, Colour(front ? Role::Selection : cell.ground));
    PaintImages(*painter, cell.images, option.rect);
    PaintText(*painter, option, cell, index.data(Qt::TextAlignmentRole).toInt());
    if ((option.state & QStyle::State_HasFocus) != 0) {
        painter->setPen(Colour(Role::Accent));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

bool TableDelegate::IsCut(const TableCell& cell, const QFont& font, const QRect& place) {
    const int width = TextRect(place, cell).width();
    return QFontMetrics(FontOf(font, cell)).elidedText(cell.text, Qt::ElideRight, width) != cell.text;
}

std::string TableDelegate::ImageAt(const TableImages& images, const QRect& place, const QPoint& point) {
    for (std::size_t i = 0; i < images.images.size(); ++i) {
        if (ImageRect(images, place, i).adjusted(-3, -4, 3, 4).contains(point)) {
            return images.images[i].name;
        }
    }
    return {};
}

}  // namespace Tarvik::Seaplan
