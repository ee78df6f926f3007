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

bool TreeRename::OnKey(Key key) {
    if (key != Key::Enter) {
        return false;
    }
    const TreeRow row = field_.Row();
    const bool added = field_.IsOpen() && isVoyage_ && row != c_.tree.Selected();
    Commit();
    if (added) {
        press_(row);
    }
    return true;
}

Outcome<RenameStep> TreeRename::Take() {
    if (!field_.IsOpen()) {
        return {};
    }
    const TextField typed = field_;
    Abandon();
    if (typed.Text().empty()) {
        return RenameStep::Empty;
    }
    // A name that was only looked at stays as it is, however wide.
    if (typed.Untouched()) {
        return isVoyage_ ? RenameStep::VoyageName : RenameStep::CategoryName;
    }
    const std::string name = NormalizeName(typed.Text());
    if (name.empty()) {
        c_.boxes.Notice(TextIds::IDS_TREE_SHOWVISIBLE);
        return RenameStep::Invisible;
    }
    return isVoyage_ ? CommitVoyage(typed.Row(), name) : CommitCategory(typed.Row(), name);
}

bool IsWidthAccepted(TreeContext& c, const std::string& name, int limit) {
    if (Util::StringUtl::Width(name) <= limit) {
        return true;
    }
    c.boxes.NoticeText(Text(TextIds::IDS_TREE_TOOMUCHNUM) + std::to_string(limit));
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

Outcome<RenameStep> TreeRename::CommitCategory(TreeRow row, const std::string& name) {
    if (!IsWidthAccepted(c_, name, kCategoryNameWidth)) {
        return RenameStep::CategoryWidth;
    }
    VoyCategory* category = c_.CategoryOf(row);
    if (category == nullptr) {
        return RenameStep::CategoryRecord;
    }
    if (category->ci.empty()) {
        return RenameStep::CategoryId;
    }
    if (Taken(c_.categoryNames, name, category->cn)) {
        return RenameStep::CategoryName;
    }
    TreeStep step{TreeStep::Kind::Rename, false, category->ci, {}, category->cn};
    if (c_.catalog.RenameCategory(category->ci, name) != 0) {
        return RenameStep::CategoryServer;
    }
    c_.steps.Note(std::move(step));
    c_.categoryNames[name] = InUse;
    c_.tree.SetItemText(row, name);
    return unfold_(row) ? Outcome<RenameStep>() : RenameStep::CategoryRows;
}

Outcome<RenameStep> TreeRename::CommitVoyage(TreeRow row, const std::string& name) {
    if (!IsWidthAccepted(c_, name, kVoyageNameWidth)) {
        return RenameStep::VoyageWidth;
    }
    VoyInfo* voyage = c_.VoyageOf(row);
    if (voyage == nullptr) {
        return RenameStep::VoyageRecord;
    }
    if (voyage->vi.empty()) {
        return RenameStep::VoyageId;
    }
    if (Taken(c_.voyageNames, name, voyage->vn)) {
        return RenameStep::VoyageName;
    }
    TreeStep step{TreeStep::Kind::Rename, true, voyage->vi, {}, voyage->vn};
    if (c_.catalog.RenameVoyage(voyage->vi, name) != 0) {
        return RenameStep::VoyageServer;
    }
    c_.steps.Note(std::move(step));
    c_.voyageNames[name] = InUse;
    c_.tree.SetItemText(row, name);
    c_.TellNames();
    return {};
}

}  // namespace Tarvik::Seaplan
