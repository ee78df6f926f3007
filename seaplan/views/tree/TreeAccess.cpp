// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/TreeAccess.h"

#include <QHeaderView>
#include <algorithm>
#include <vector>

#include "seaplan/views/tree/RowAccess.h"
#include "seaplan/views/tree/TreeAccessFactory.h"
#include "seaplan/views/tree/TreeReach.h"
#include "seaplan/views/tree/VoyageTreeView.h"

namespace Tarvik::Seaplan {

namespace {

int treesAlive = 0;

QAccessibleInterface* MakeTreeAccess(const QString&, QObject* object) {
    auto* view = dynamic_cast<VoyageTreeView*>(object);
    return view == nullptr ? nullptr : new TreeAccess(*view);
}

}  // namespace

TreeAccessFactory::TreeAccessFactory() {
    if (treesAlive++ == 0) {
        QAccessible::installFactory(MakeTreeAccess);
    }
}

TreeAccessFactory::~TreeAccessFactory() {
    // The plug-in that the function is in may be unloaded.
    if (--treesAlive == 0) {
        QAccessible::removeFactory(MakeTreeAccess);
    }
}

TreeAccess::TreeAccess(VoyageTreeView& view) : QAccessibleWidget(&view, QAccessible::Tree), view_(&view) {}

TreeAccess::~TreeAccess() {
    for (const auto& [row, id] : rows_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

int TreeAccess::childCount() const {
    return view_ == nullptr ? 0 : static_cast<int>(TreeReach(*view_).Rows().size()) + 1;
}

QAccessibleInterface* TreeAccess::child(int index) const {
    if (view_ == nullptr || index < 0 || index >= childCount()) {
        return nullptr;
    }
    return index == 0 ? QAccessible::queryAccessibleInterface(view_->header())
                      : RowAt(TreeReach(*view_).Rows()[static_cast<std::size_t>(index) - 1]);
}

int TreeAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* row = dynamic_cast<const RowAccess*>(child);
    if (row == nullptr || view_ == nullptr) {
        return child != nullptr && view_ != nullptr && child->object() == view_->header() ? 0 : -1;
    }
    const std::vector<TreeRow>& rows = TreeReach(*view_).Rows();
    const auto at = std::find(rows.begin(), rows.end(), row->Row());
    return at == rows.end() ? -1 : static_cast<int>(at - rows.begin()) + 1;
}

QAccessibleInterface* TreeAccess::childAt(int x, int y) const {
    if (view_ == nullptr) {
        return nullptr;
    }
    const TreeRow row = TreeReach(*view_).At(QPoint(x, y));
    return row == kNoRow ? nullptr : RowAt(row);
}

QAccessibleInterface* TreeAccess::focusChild() const {
    if (view_ == nullptr || !view_->hasFocus()) {
        return nullptr;
    }
    const TreeRow row = TreeReach(*view_).Focused();
    QAccessibleInterface* told = row == kNoRow ? nullptr : RowAt(row);
    if (told == nullptr) {
        return nullptr;
    }
    QAccessibleInterface* item = told->focusChild();
    return item == nullptr ? told : item;
}

QAccessibleInterface* TreeAccess::RowAt(TreeRow row) const {
    const auto known = rows_.find(row);
    if (known != rows_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    DropGone();
    auto* made = new RowAccess(*view_, row);
    rows_[row] = QAccessible::registerAccessibleInterface(made);
    return made;
}

/// Rows are made anew at every load, and their numbers never come back.
void TreeAccess::DropGone() const {
    constexpr std::size_t kSlack = 64;
    if (rows_.size() <= 2 * TreeReach(*view_).Rows().size() + kSlack) {
        return;
    }
    for (auto it = rows_.begin(); it != rows_.end();) {
        if (view_->Rows().Row(it->first) == nullptr) {
            QAccessible::deleteAccessibleInterface(it->second);
            it = rows_.erase(it);
        } else {
            ++it;
        }
    }
}

}  // namespace Tarvik::Seaplan
