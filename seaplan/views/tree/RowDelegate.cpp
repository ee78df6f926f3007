// SPDX-License-Identifier: MIT
#include <QLineEdit>
#include <algorithm>

#include <tarvik/skin/Palette.h>

#include "seaplan/views/tree/RowModel.h"
#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

namespace {

using Skin::Colour;
using Skin::Role;

/// Whether a box for typing stands over this part of the viewport.
bool IsCovered(const QWidget& viewport, const QRect& part) {
    const auto boxes = viewport.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
    return std::any_of(boxes.begin(), boxes.end(), [&](const QLineEdit* box) {
        return box->isVisible() && box->geometry().intersects(part);
    });
}

void PaintGround(QPainter& painter, const QRect& line, bool selected, const TreeRowState& state) {
    const bool category = state.parent == kNoRow;
    painter.fillRect(line, selected   ? Colour(Role::Selection)
                           : category ? Colour(Role::Window)
                                      : Colour(Role::Panel));
    const bool found = state.finding == RowFinding::Found;
    if (selected || found) {
        const Role edge = found ? Role::Warning : Role::Accent;
        painter.fillRect(QRect(line.left(), line.top(), 3, line.height()), Colour(edge));
    }
}

}  // namespace

RowDelegate::RowDelegate(VoyageTreeView* view) : QStyledItemDelegate(view), view_(view) {}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const TreeRow row = RowModel::RowOf(index);
    const TreeRowState* state = view_->Rows().Row(row);
    if (state == nullptr) {
        return;
    }
    const bool selected = view_->Rows().Selected() == row;
    const bool category = state->parent == kNoRow;
    const QRect line(0, option.rect.top(), view_->viewport()->width(), option.rect.height());
    painter->save();
    PaintGround(*painter, line, selected, *state);
    RowLook look{.font = option.font};
    look.font.setBold(category);
    look.deleted = state->style == kDeletedCategoryStyle || state->style == kDeletedVoyageStyle;
    look.focused = selected && view_->hasFocus() ? view_->FocusedPart() : std::string();
    for (const SubItem& part : view_->PartsOf(row)) {
        // A box for typing stands in the place of the old text.
        const bool replaced = part.kind == SubItemKind::Name || part.kind == SubItemKind::Link;
        if (!replaced || !IsCovered(*view_->viewport(), part.rect)) {
            PaintPart(*painter, part, look);
        }
    }
    if (!selected && view_->hasFocus() && view_->currentIndex() == index) {
        painter->setPen(Colour(Role::Accent));
        painter->drawRect(line.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    const TreeRow row = RowModel::RowOf(index);
    const TreeRowState* state = view_->Rows().Row(row);
    if (state == nullptr) {
        return {};
    }
    return {view_->viewport()->width(), RowHeight(*state, view_->Rows().Selected() == row)};
}

}  // namespace Tarvik::Seaplan
