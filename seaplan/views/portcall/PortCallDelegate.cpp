// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallDelegate.h"

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/views/portcall/PortCallModel.h"
#include "seaplan/views/skin/Icons.h"
#include "seaplan/views/skin/Palette.h"

#include <QPainter>

namespace Tarvik::Seaplan {

namespace {

struct RowImage {
    const char* name;
    const char* icon;
    TextId tip;
};

constexpr RowImage kImages[] = {{"itemMoveUp", "up", TextId::IDS_VIEW_MOVEUP},
                                {"itemMovedown", "down", TextId::IDS_VIEW_MOVEDOWN},
                                {"itemdel", "delete", TextId::IDS_VIEW_DELETEROW}};
constexpr int kImageSize = 14;
constexpr int kImageStep = 20;

QRect imageRect(const QRect& cell, int image) {
    QRect rect(0, 0, kImageSize, kImageSize);
    rect.moveCenter({cell.left() + 2 + kImageStep / 2 + image * kImageStep, cell.center().y()});
    return rect;
}

}  // namespace

void PortCallDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const SkinPalette& skin = Skin();
    const auto look = static_cast<RowClass>(index.data(PortCallModel::kLookRole).toInt());
    QColor ground = look == RowClass::Disabled      ? skin.history
                    : look == RowClass::Highlighted ? skin.highlight
                                                    : skin.panel;
    if ((option.state & QStyle::State_Selected) != 0) ground = skin.selection;
    painter->save();
    painter->fillRect(option.rect, ground);
    if (index.column() == PortCallModel::kImageColumn) {
        if (index.data(PortCallModel::kImagesRole).toBool()) {
            for (int i = 0; i < static_cast<int>(std::size(kImages)); ++i) {
                PaintIcon(*painter, imageRect(option.rect, i), kImages[i].icon, skin.secondary);
            }
        }
    } else {
        const bool bold = index.siblingAtColumn(ColOrder).data().toString() == QLatin1String("RES");
        QFont font = option.font;
        font.setPixelSize(kTablePixels);
        font.setBold(bold);
        painter->setFont(font);
        painter->setPen(look == RowClass::Disabled ? skin.secondary : skin.text);
        const QRect inner = option.rect.adjusted(4, 0, -4, 0);
        const QString text =
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, inner.width());
        painter->drawText(inner, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
    }
    painter->restore();
}

std::string PortCallDelegate::ImageAt(const QRect& cell, const QPoint& point) {
    for (int i = 0; i < static_cast<int>(std::size(kImages)); ++i) {
        if (imageRect(cell, i).adjusted(-3, -3, 3, 3).contains(point)) return kImages[i].name;
    }
    return {};
}

QString PortCallDelegate::ImageTip(const std::string& name) {
    for (const RowImage& image : kImages) {
        if (name == image.name) return QString::fromStdString(Text(image.tip));
    }
    return {};
}

}  // namespace Tarvik::Seaplan
