// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeRename.h"

#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/panels/window/TextBox.h"

namespace Tarvik::Seaplan {

namespace {

/// Tops from here on leave no room for the editor, in pixels of the tree.
constexpr int kLowestEditorTop = 366;

}  // namespace

void TreeRename::Begin(TreeRow row, bool isVoyage) {
    Commit();
    isVoyage_ = isVoyage;
    const Rect place = c_.tree.GetItemRect(row);
    const std::string text = c_.tree.GetItemText(row);
    if (place.top >= kLowestEditorTop) {
        (isVoyage ? c_.voyageNames : c_.categoryNames)[text] = InUse;
        return;
    }
    const int left = place.left + (isVoyage ? 30 : 20);
    const int top = place.top + (isVoyage ? 2 : 1);
    const int width = isVoyage ? 180 : 200;
    constexpr int kHeight = 22;
    field_ = TextField(static_cast<std::size_t>(isVoyage ? kVoyageNameWidth : kCategoryNameWidth));
    field_.Open(row, text);
    box_.Show({left, top, left + width, top + kHeight}, text, field_.Limit());
}

void TreeRename::Abandon() {
    field_ = TextField(0);
    box_.Hide();
}

int TreeRename::Commit() {
    if (!field_.IsOpen()) {
        return 0;
    }
    const TextField typed = field_;
    Abandon();
    if (typed.Text().empty()) {
        return -1;
    }
    // A name that was only looked at stays as it is, however wide.
    if (typed.Untouched()) {
        return isVoyage_ ? -13 : -7;
    }
    const std::string name = NormalizeName(typed.Text());
    if (name.empty()) {
        c_.boxes.Notice(TextIds::IDS_TREE_SHOWVISIBLE);
        return -2;
    }
    return isVoyage_ ? CommitVoyage(typed.Row(), name) : CommitCategory(typed.Row(), name);
}

bool TreeRename::WidthAccepted(const std::string& name, int limit) {
    if (Util::StringUtl::Width(name) <= limit) {
        return true;
    }
    c_.boxes.NoticeText(Text(TextIds::IDS_TREE_TOOMUCHNUM) + std::to_string(limit));
    return false;
}

bool TreeRename::Taken(const std::map<std::string, int>& names, const std::string& name,
                       const std::string& present) {
    const auto known = names.find(name);
    if (known == names.end() || known->second == Destroyed) {
        return false;
    }
    if (name != present) {
        c_.boxes.Notice(TextIds::IDS_TREE_SAMENAMEWARN);
    }
    return true;
}

int TreeRename::CommitCategory(TreeRow row, const std::string& name) {
    if (!WidthAccepted(name, kCategoryNameWidth)) {
        return -4;
    }
    VoyCategory* category = c_.CategoryOf(row);
    if (category == nullptr) {
        return -5;
    }
    if (category->ci.empty()) {
        return -6;
    }
    if (Taken(c_.categoryNames, name, category->cn)) {
        return -7;
    }
    TreeStep step{TreeStep::Kind::Rename, false, category->ci, {}, category->cn};
    if (c_.catalog.RenameCategory(category->ci, name) != 0) {
        return -8;
    }
    c_.steps.Note(std::move(step));
    c_.categoryNames[name] = InUse;
    c_.tree.SetItemText(row, name);
    return unfold_(row) == 0 ? 0 : -9;
}

int TreeRename::CommitVoyage(TreeRow row, const std::string& name) {
    if (!WidthAccepted(name, kVoyageNameWidth)) {
        return -10;
    }
    VoyInfo* voyage = c_.VoyageOf(row);
    if (voyage == nullptr) {
        return -11;
    }
    if (voyage->vi.empty()) {
        return -12;
    }
    if (Taken(c_.voyageNames, name, voyage->vn)) {
        return -13;
    }
    TreeStep step{TreeStep::Kind::Rename, true, voyage->vi, {}, voyage->vn};
    if (c_.catalog.RenameVoyage(voyage->vi, name) != 0) {
        return -14;
    }
    c_.steps.Note(std::move(step));
    c_.voyageNames[name] = InUse;
    c_.tree.SetItemText(row, name);
    c_.TellNames();
    return 0;
}

}  // namespace Tarvik::Seaplan
