// SPDX-License-Identifier: MIT
#include "seaplan/views/rows/RowParts.h"

#include <QFontMetrics>
#include <algorithm>

#include <tarvik/skin/Icons.h>

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

QColor IconColour(const SubItem& part) {
    if (!part.enabled) {
        return Colour(Role::Disabled);
    }
    return Colour(part.colour.value_or(part.clickable ? Role::Text : Role::Secondary));
}

QColor TextColour(const SubItem& part, bool deleted) {
    if (!part.enabled || deleted) {
        return Colour(Role::Secondary);
    }
    switch (part.kind) {
        case SubItemKind::Link:
            return Colour(Role::Accent);
        case SubItemKind::Count:
        case SubItemKind::Text:
            return Colour(Role::Secondary);
        default:
            return Colour(Role::Text);
    }
}

void PaintText(QPainter& painter, const SubItem& part, const RowLook& look) {
    QFont font = PartFont(look.font, part.kind);
    font.setStrikeOut(look.deleted && part.kind == SubItemKind::Name);
    font.setUnderline(part.kind == SubItemKind::Link && part.enabled);
    painter.setFont(font);
    painter.setPen(look.ink ? Colour(*look.ink) : TextColour(part, look.deleted));
    const QString text = QFontMetrics(font).elidedText(part.text, Qt::ElideRight, part.rect.width());
    painter.drawText(part.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

}  // namespace

void RowParts::Image(const RowImage& image, const QRect& place) {
    Add({image.name,
         SubItemKind::Icon,
         place,
         {},
         image.icon,
         image.toolTip,
         true,
         image.enabled,
         image.colour});
}

void RowParts::Images(const std::vector<RowImage>& images, QPoint corner) {
    for (const RowImage& image : images) {
        Image(image, {corner.x(), corner.y(), kImage, kImage});
        corner.rx() += kImage + kGap;
    }
}

int RowParts::Write(SubItem part, const TextBand& band) {
    const int wide = std::max(0, std::min(width_(part.text, part.kind), band.right - band.left));
    part.rect = {band.left, band.top, wide, band.height};
    part.clickable = part.kind == SubItemKind::Link;
    Add(std::move(part));
    return band.left + wide;
}

const SubItem* SubItemAt(const std::vector<SubItem>& parts, const QPoint& point) {
    const auto it = std::find_if(parts.begin(), parts.end(), [&](const SubItem& part) {
        return part.clickable && part.rect.contains(point);
    });
    return it == parts.end() ? nullptr : &*it;
}

const SubItem* TipAt(const std::vector<SubItem>& parts, const QPoint& point) {
    const auto it = std::find_if(parts.begin(), parts.end(), [&](const SubItem& part) {
        return !part.toolTip.isEmpty() && part.rect.contains(point);
    });
    return it == parts.end() ? nullptr : &*it;
}

std::vector<SubItem> EnabledOf(std::vector<SubItem> parts) {
    std::erase_if(parts, [](const SubItem& part) { return !part.clickable || !part.enabled; });
    return parts;
}

QMenu* MakeRowMenu(QWidget* parent, const std::vector<SubItem>& parts,
                   const std::function<void(const std::string&)>& clicked) {
    auto* menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("rowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setStyleSheet(Skin::StyleSheet());
    for (const SubItem& part : parts) {
        if (!part.clickable || part.toolTip.isEmpty()) {
            continue;
        }
        QAction* action = menu->addAction(Skin::MakeIcon(part.icon), part.toolTip, parent,
                                          [clicked, item = part.name] { clicked(item); });
        action->setEnabled(part.enabled);
    }
    return menu;
}

QFont PartFont(const QFont& base, SubItemKind kind) {
    QFont font = base;
    font.setPixelSize(kind == SubItemKind::Text ? Skin::kTablePixels : Skin::kTextPixels);
    if (kind == SubItemKind::Count) {
        font.setBold(false);
    }
    return font;
}

void PaintPart(QPainter& painter, const SubItem& part, const RowLook& look) {
    if (part.kind == SubItemKind::Icon) {
        QRect place(0, 0, Skin::kIconSize, Skin::kIconSize);
        place.moveCenter(part.rect.center());
        Skin::PaintIcon(painter, place, part.icon, look.ink ? Colour(*look.ink) : IconColour(part));
    } else {
        PaintText(painter, part, look);
    }
    if (!look.focused.empty() && part.name == look.focused) {
        painter.setPen(Colour(Role::Accent));
        painter.drawRect(part.rect.adjusted(0, 0, -1, -1));
    }
}

}  // namespace Tarvik::Seaplan
