// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RowDelegate.h"

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

QColor IconColour(const SubItem& part) {
    if (!part.enabled) {
        return Colour(Role::Disabled);
    }
    if (part.icon == "plan") {
        return Colour(Role::Plan);
    }
    if (part.icon == "underway") {
        return Colour(Role::Underway);
    }
    if (part.icon == "finish") {
        return Colour(Role::Finished);
    }
    if (part.icon == "alert") {
        return Colour(Role::Warning);
    }
    if (part.icon == "pinned" || part.icon == "ais-on") {
        return Colour(Role::Accent);
    }
    return part.clickable ? Colour(Role::Text) : Colour(Role::Secondary);
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

void PaintPart(QPainter& painter, const SubItem& part, const QFont& base, bool deleted) {
    if (part.kind == SubItemKind::Icon) {
        QRect place(0, 0, Skin::kIconSize, Skin::kIconSize);
        place.moveCenter(part.rect.center());
        return Skin::PaintIcon(painter, place, part.icon, IconColour(part));
    }
    QFont font = PartFont(base, part.kind);
    font.setStrikeOut(deleted && part.kind == SubItemKind::Name);
    font.setUnderline(part.kind == SubItemKind::Link && part.enabled);
    painter.setFont(font);
    painter.setPen(TextColour(part, deleted));
    const QString text = QFontMetrics(font).elidedText(part.text, Qt::ElideRight, part.rect.width());
    painter.drawText(part.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

}  // namespace

QFont PartFont(const QFont& base, SubItemKind kind) {
    QFont font = base;
    font.setPixelSize(kind == SubItemKind::Text ? Skin::kTablePixels : Skin::kTextPixels);
    if (kind == SubItemKind::Count) {
        font.setBold(false);
    }
    return font;
}

RowDelegate::RowDelegate(VoyageTreeView* view) : QStyledItemDelegate(view), view_(view) {}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const TreeRow row = index.data(Qt::UserRole).toInt();
    const TreeRowState* state = view_->Rows().Row(row);
    if (state == nullptr) {
        return;
    }
    const bool selected = view_->Rows().Selected() == row;
    const bool category = state->parent == kNoRow;
    const QRect line(0, option.rect.top(), view_->viewport()->width(), option.rect.height());
    painter->save();
    painter->fillRect(line, selected   ? Colour(Role::Selection)
                            : category ? Colour(Role::Window)
                                       : Colour(Role::Panel));
    if (selected) {
        painter->fillRect(QRect(line.left(), line.top(), 3, line.height()), Colour(Role::Accent));
    }
    QFont font = option.font;
    font.setBold(category);
    const bool deleted = state->style == kDeletedCategoryStyle || state->style == kDeletedVoyageStyle;
    for (const SubItem& part : view_->PartsOf(row)) {
        // A box for typing stands in the place of the old text.
        const bool replaced = part.kind == SubItemKind::Name || part.kind == SubItemKind::Link;
        if (replaced && view_->IsCovered(part.rect)) {
            continue;
        }
        PaintPart(*painter, part, font, deleted);
        if (selected && view_->hasFocus() && !part.name.empty() && part.name == view_->FocusedPart()) {
            painter->setPen(Colour(Role::Accent));
            painter->drawRect(part.rect.adjusted(0, 0, -1, -1));
        }
    }
    if (!selected && view_->hasFocus() && view_->currentIndex() == index) {
        painter->setPen(Colour(Role::Accent));
        painter->drawRect(line.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    const TreeRow row = index.data(Qt::UserRole).toInt();
    const TreeRowState* state = view_->Rows().Row(row);
    if (state == nullptr) {
        return {};
    }
    return {view_->viewport()->width(), RowHeight(*state, view_->Rows().Selected() == row)};
}

}  // namespace Tarvik::Seaplan
