// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/RowAccess.h"

#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/views/tree/TreeAccess.h"
#include "seaplan/views/tree/TreeReach.h"

namespace Tarvik::Seaplan {

namespace {

/// Place in a row's list of items, its end when it is not there.
auto PlaceOf(const std::vector<SubItem>& items, const std::string& name) {
    return std::find_if(items.begin(), items.end(), [&](const SubItem& part) { return part.name == name; });
}

/// Items that stand for one another: which of them is on show tells whether something is on.
struct SwitchItem {
    const char* item;
    bool on;
};
constexpr SwitchItem kSwitches[] = {
    {Item::kUnpinned, false}, {Item::kPinned, true}, {Item::kAisOff, false}, {Item::kAisOn, true}};

TreeAccess* TreeOf(VoyageTreeView& view) {
    return dynamic_cast<TreeAccess*>(QAccessible::queryAccessibleInterface(&view));
}

}  // namespace

bool PressableAccess::isValid() const {
    return view_ != nullptr && view_->Rows().Row(row_) != nullptr;
}

QWindow* PressableAccess::window() const {
    return view_ == nullptr ? nullptr : view_->window()->windowHandle();
}

void* PressableAccess::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList PressableAccess::actionNames() const {
    return {pressAction(), setFocusAction()};
}

/// A press may put a box up, which must not begin inside the screen reader's call.
void PressableAccess::Do(const QString& action, const std::string& item) {
    if (!isValid() || !View().isEnabled()) {
        return;
    }
    if (action == setFocusAction()) {
        return TreeReach(View()).Focus(row_, item);
    }
    QTimer::singleShot(0, view_, [view = view_, row = row_, item] {
        if (item.empty()) {
            TreeReach(*view).Press(row);
        } else {
            TreeReach(*view).Click(row, item);
        }
    });
}

QRect PressableAccess::OnScreen(const QRect& inViewport) const {
    return {View().viewport()->mapToGlobal(inViewport.topLeft()), inViewport.size()};
}

RowAccess::~RowAccess() {
    for (const auto& [item, id] : items_) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* RowAccess::parent() const {
    return isValid() ? QAccessible::queryAccessibleInterface(&View()) : nullptr;
}

int RowAccess::childCount() const {
    return isValid() ? static_cast<int>(TreeReach(View()).Items(Row()).size()) : 0;
}

QAccessibleInterface* RowAccess::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    return ItemAt(TreeReach(View()).Items(Row())[static_cast<std::size_t>(index)].name);
}

QAccessibleInterface* RowAccess::ItemAt(const std::string& item) const {
    const auto known = items_.find(item);
    if (known != items_.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* made = new ItemAccess(View(), Row(), item);
    items_[item] = QAccessible::registerAccessibleInterface(made);
    return made;
}

int RowAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* item = dynamic_cast<const ItemAccess*>(child);
    if (item == nullptr || item->Row() != Row() || !isValid()) {
        return -1;
    }
    const auto items = TreeReach(View()).Items(Row());
    const auto at = PlaceOf(items, item->Item());
    return at == items.end() ? -1 : static_cast<int>(at - items.begin());
}

QAccessibleInterface* RowAccess::childAt(int x, int y) const {
    if (!isValid()) {
        return nullptr;
    }
    const auto parts = View().PartsOf(Row());
    const SubItem* part = SubItemAt(parts, View().viewport()->mapFromGlobal(QPoint(x, y)));
    return part == nullptr ? nullptr : ItemAt(part->name);
}

QAccessibleInterface* RowAccess::focusChild() const {
    if (!isValid() || View().Rows().Selected() != Row()) {
        return nullptr;
    }
    const std::string item = View().FocusedPart();
    return item.empty() ? nullptr : ItemAt(item);
}

QString RowAccess::text(QAccessible::Text text) const {
    return text == QAccessible::Name && isValid() ? TreeReach(View()).Name(Row()) : QString();
}

QRect RowAccess::rect() const {
    if (!isValid()) {
        return {};
    }
    const Rect place = View().Rows().GetItemRect(Row());
    return OnScreen({place.left, place.top, place.right - place.left, place.bottom - place.top});
}

QAccessible::State RowAccess::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const TreeRowState& row = *View().Rows().Row(Row());
    state.focusable = true;
    state.focused = View().hasFocus() && TreeReach(View()).Focused() == Row() && View().FocusedPart().empty();
    state.selectable = true;
    state.selected = View().Rows().Selected() == Row();
    if (row.parent == kNoRow && !row.children.empty()) {
        state.expandable = true;
        state.expanded = row.expanded;
        state.collapsed = !row.expanded;
    }
    state.offscreen = !View().viewport()->rect().intersects(
        QRect(View().viewport()->mapFromGlobal(rect().topLeft()), rect().size()));
    state.disabled = !View().isEnabled();
    return state;
}

void RowAccess::doAction(const QString& action) {
    Do(action, {});
}

QAccessibleInterface* ItemAccess::parent() const {
    TreeAccess* tree = PressableAccess::isValid() ? TreeOf(View()) : nullptr;
    return tree == nullptr ? nullptr : tree->RowAt(Row());
}

/// A part without a name when the row does not show the item any more.
SubItem ItemAccess::Part() const {
    const auto items = TreeReach(View()).Items(Row());
    const auto at = PlaceOf(items, item_);
    return at == items.end() ? SubItem() : *at;
}

QString ItemAccess::text(QAccessible::Text text) const {
    if (text != QAccessible::Name || !isValid()) {
        return {};
    }
    const SubItem part = Part();
    return part.toolTip.isEmpty() ? part.text : part.toolTip;
}

QRect ItemAccess::rect() const {
    if (!isValid()) {
        return {};
    }
    const auto parts = View().PartsOf(Row());
    const auto at = PlaceOf(parts, item_);
    return at == parts.end() ? QRect() : OnScreen(at->rect);
}

QAccessible::State ItemAccess::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.focusable = true;
    state.focused =
        View().hasFocus() && TreeReach(View()).Focused() == Row() && View().FocusedPart() == item_;
    state.offscreen = rect().isEmpty();
    state.disabled = !View().isEnabled();
    for (const SwitchItem& known : kSwitches) {
        if (item_ == known.item) {
            state.checkable = true;
            state.checked = known.on;
        }
    }
    return state;
}

void ItemAccess::doAction(const QString& action) {
    Do(action, item_);
}

}  // namespace Tarvik::Seaplan
