// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeItems.h"

#include <stdexcept>

namespace Tarvik::Seaplan {

const TreeItem* TreeItems::Find(const std::string& item) const {
    if (const auto own = own_.find(item); own != own_.end()) {
        return &own->second;
    }
    if (style_ == nullptr) {
        return nullptr;
    }
    const auto common = style_->find(item);
    return common == style_->end() ? nullptr : &common->second;
}

const TreeItem& TreeItems::At(const std::string& item) const {
    const TreeItem* found = Find(item);
    if (found == nullptr) {
        throw std::out_of_range("no item " + item);
    }
    return *found;
}

TreeItem& TreeItems::Own(const std::string& item) {
    const auto own = own_.find(item);
    if (own != own_.end()) {
        return own->second;
    }
    const TreeItem* common = Find(item);
    return own_.emplace(item, common == nullptr ? TreeItem() : *common).first->second;
}

bool TreeItems::SetVisible(const std::string& item, bool visible) {
    const TreeItem* now = Find(item);
    if (now != nullptr && now->visible == visible) {
        return false;
    }
    Own(item).visible = visible;
    return true;
}

bool TreeItems::SetText(const std::string& item, const std::string& text) {
    const TreeItem* now = Find(item);
    if (now != nullptr && now->text == text) {
        return false;
    }
    Own(item).text = text;
    return true;
}

bool TreeItems::SetValue(const std::string& item, const std::string& value, const std::string& text) {
    if (const TreeItem* now = Find(item)) {
        const auto known = now->values.find(value);
        if (known != now->values.end() && known->second == text) {
            return false;
        }
    }
    Own(item).values[value] = text;
    return true;
}

bool TreeItems::SetToolTip(const std::string& item, const std::string& text) {
    const TreeItem* now = Find(item);
    if (now != nullptr && now->toolTip == text) {
        return false;
    }
    Own(item).toolTip = text;
    return true;
}

}  // namespace Tarvik::Seaplan
