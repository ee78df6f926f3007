// SPDX-License-Identifier: MIT
#include "seaplan/controllers/CategoryChanges.h"

namespace Tarvik::Seaplan {

namespace {

/// The server's word for a change of state.
int TypeOf(DeletionState state) {
    constexpr int kToBin = 1;
    constexpr int kRecover = 2;
    constexpr int kDestroy = 3;
    if (state == InRecycleBin) {
        return kToBin;
    }
    return state == InUse ? kRecover : kDestroy;
}

}  // namespace

Outcome<ChangeStep> CategoryChanges::Add(const std::string& name, std::string& ci) {
    if (module_->CreateCategory(name, ci) < 0) {
        return ChangeStep::Server;
    }
    if (store_->categories.count(ci) > 0) {
        return ChangeStep::KnownId;
    }
    VoyCategory category;
    category.ci = ci;
    category.cn = name;
    store_->categories[ci] = category;
    store_->categoryStates[ci] = InUse;
    return {};
}

Outcome<ChangeStep> CategoryChanges::Rename(const std::string& ci, const std::string& name) {
    if (ci.empty() || name.empty()) {
        return ChangeStep::Input;
    }
    if (module_->RenameCategory(ci, name) < 0) {
        return ChangeStep::Server;
    }
    const auto found = store_->categories.find(ci);
    if (found == store_->categories.end()) {
        return ChangeStep::Category;
    }
    found->second.cn = name;
    return {};
}

Outcome<ChangeStep> CategoryChanges::SetState(const std::string& ci, DeletionState state) {
    if (ci.empty()) {
        return ChangeStep::Input;
    }
    if (module_->ChangeCategoryState(ci, TypeOf(state)) < 0) {
        return ChangeStep::Server;
    }
    const auto found = store_->categoryStates.find(ci);
    if (found == store_->categoryStates.end()) {
        return ChangeStep::Category;
    }
    found->second = state;
    return {};
}

}  // namespace Tarvik::Seaplan
