// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/TreeReach.h"

#include <QAccessible>
#include <algorithm>

#include "seaplan/views/tree/RowModel.h"
#include "seaplan/views/tree/TreeAccess.h"
#include "seaplan/views/tree/VoyageTreeWidget.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kNoPart = -1;

/// Place in a list of parts, kNoPart when it is not there.
int IndexOf(const std::vector<SubItem>& parts, const std::string& name) {
    const auto at =
        std::find_if(parts.begin(), parts.end(), [&](const SubItem& part) { return part.name == name; });
    return at == parts.end() ? kNoPart : static_cast<int>(at - parts.begin());
}

}  // namespace

const std::vector<TreeRow>& TreeReach::Rows() const {
    return view_.rows_->ShownRows();
}

TreeRow TreeReach::At(const QPoint& screen) const {
    return view_.RowAt(view_.viewport()->mapFromGlobal(screen));
}

TreeRow TreeReach::Focused() const {
    return RowModel::RowOf(view_.currentIndex());
}

std::vector<SubItem> TreeReach::Items(TreeRow row) const {
    const TreeRowState* state = view_.rows_->Row(row);
    return state == nullptr ? std::vector<SubItem>() : EnabledOf(view_.LayOut(*state, {}, true));
}

QString TreeReach::Name(TreeRow row) const {
    const QStandardItem* item = view_.rows_->ItemOf(row);
    return item == nullptr ? QString() : item->index().data(Qt::AccessibleTextRole).toString();
}

bool TreeReach::Has(TreeRow row, const std::string& item) const {
    return IndexOf(Items(row), item) >= 0;
}

void TreeReach::Press(TreeRow row) {
    if (view_.rows_->Row(row) != nullptr && view_.isEnabled() && view_.reports_.pressed) {
        Focus(row, {});
        view_.reports_.pressed(row, true);
    }
}

void TreeReach::Click(TreeRow row, const std::string& item) {
    if (Has(row, item) && view_.isEnabled() && view_.reports_.clicked) {
        Focus(row, item);
        view_.reports_.clicked(row, item);
    }
}

void TreeReach::Focus(TreeRow row, const std::string& item) {
    view_.setFocus();
    view_.rows_->SetCursor(row);
    if (view_.rows_->Selected() == row) {
        view_.focusPart_ = IndexOf(EnabledOf(view_.PartsOf(row)), item);
        view_.viewport()->update();
        TellFocus(view_);
    }
}

void TellFocus(VoyageTreeView& view) {
    if (!QAccessible::isActive() || !view.hasFocus()) {
        return;
    }
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface* focus = tree == nullptr ? nullptr : tree->focusChild();
    if (focus != nullptr) {
        QAccessibleEvent told(focus, QAccessible::Focus);
        QAccessible::updateAccessibility(&told);
    }
}

void TellFolding(VoyageTreeView& view, TreeRow row) {
    auto* tree = QAccessible::isActive()
                     ? dynamic_cast<TreeAccess*>(QAccessible::queryAccessibleInterface(&view))
                     : nullptr;
    if (tree == nullptr) {
        return;
    }
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent told(tree->RowAt(row), changed);
    QAccessible::updateAccessibility(&told);
}

}  // namespace Tarvik::Seaplan
