// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/PortCallDelegate.h"

#include <QPainter>
#include <optional>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/views/portcall/PortCallModel.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

struct DrawnImage {
    const char* name;
    const char* icon;
    TextId tip;
    std::optional<TextId> whyNot;  ///< where it is disabled, none for a row without a port
    bool RowActions::*enabled;
};

constexpr DrawnImage kImages[] = {
    {PortCallImage::kMoveUp, "up", TextIds::IDS_VIEW_MOVEUP, TextIds::IDS_VIEW_NOTUP, &RowActions::moveUp},
    {PortCallImage::kMoveDown, "down", TextIds::IDS_VIEW_MOVEDOWN, TextIds::IDS_VIEW_NOTDOWN,
     &RowActions::moveDown},
    {PortCallImage::kDelete, "delete", TextIds::IDS_VIEW_DELETEROW, TextIds::IDS_VIEW_NOTDELETE,
     &RowActions::remove},
    {PortCallImage::kRemark, "remark", TextIds::IDS_VIEW_REMARKROW, std::nullopt, &RowActions::remark}};
constexpr int kImageSize = 14;
constexpr int kImageStep = 20;

QRect ImageRect(const QRect& cell, int image) {
    QRect rect(0, 0, kImageSize, kImageSize);
    rect.moveCenter({cell.left() + 2 + kImageStep / 2 + image * kImageStep, cell.center().y()});
    return rect;
}

QColor GroundOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
    if ((option.state & QStyle::State_Selected) != 0) {
        return Colour(Role::Selection);
    }
    if (index.data(PortCallModel::kTotalsRole).toBool()) {
        return Colour(Role::Window);
    }
    const auto look = static_cast<RowClass>(index.data(PortCallModel::kLookRole).toInt());
    return look == RowClass::Disabled      ? Colour(Role::History)
           : look == RowClass::Highlighted ? Colour(Role::Highlight)
                                           : Colour(Role::Panel);
}

void PaintImages(QPainter& painter, const QRect& cell, const QModelIndex& index) {
    if (!index.data(PortCallModel::kImagesRole).toBool()) {
        return;
    }
    const auto* model = static_cast<const PortCallModel*>(index.model());
    const RowActions can = model->ActionsAt(index.row());
    for (int i = 0; i < static_cast<int>(std::size(kImages)); ++i) {
        Skin::PaintIcon(painter, ImageRect(cell, i), kImages[i].icon,
                        can.*kImages[i].enabled ? Colour(Role::Text) : Colour(Role::Disabled));
    }
}

void PaintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    QFont font = option.font;
    font.setPixelSize(Skin::kTablePixels);
    font.setBold(index.column() == ColOrder && index.data(PortCallModel::kTotalsRole).toBool());
    painter.setFont(font);
    const auto look = static_cast<RowClass>(index.data(PortCallModel::kLookRole).toInt());
    painter.setPen(index.data(PortCallModel::kUnknownRole).toBool() ? Colour(Role::Error)
                   : look == RowClass::Disabled                     ? Colour(Role::Secondary)
                                                                    : Colour(Role::Text));
    const QRect inner = option.rect.adjusted(3, 0, -3, 0);
    const QString text =
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, inner.width());
    painter.drawText(inner, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
}

}  // namespace

void PortCallDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    painter->save();
    painter->fillRect(option.rect, GroundOf(option, index));
    if (index.column() == PortCallModel::kImageColumn) {
        PaintImages(*painter, option.rect, index);
    } else {
        PaintText(*painter, option, index);
    }
    if ((option.state & QStyle::State_HasFocus) != 0) {
        painter->setPen(Colour(Role::Accent));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

std::string PortCallDelegate::ImageAt(const QRect& cell, const QPoint& point) {
    for (int i = 0; i < static_cast<int>(std::size(kImages)); ++i) {
        if (ImageRect(cell, i).adjusted(-3, -3, 3, 3).contains(point)) {
            return kImages[i].name;
        }
    }
    return {};
}

QString PortCallDelegate::ImageTip(const std::string& name, const RowActions& can) {
    for (const DrawnImage& image : kImages) {
        if (name == image.name) {
            const bool tellsWhy = !(can.*image.enabled) && image.whyNot;
            const std::string why = tellsWhy ? ": " + Text(*image.whyNot) : std::string();
            return QString::fromStdString(Text(image.tip) + why);
        }
    }
    return {};
}

}  // namespace Tarvik::Seaplan
