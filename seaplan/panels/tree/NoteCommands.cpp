// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/NoteCommands.h"

#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeParts.h"
#include "seaplan/protocol/RemarkMessages.h"

namespace Tarvik::Seaplan {

void NoteCommands::SetRemarks(OpenRemarks open) {
    openRemarks_ = std::move(open);
    for (const char* item : {Item::kCategoryNoRemark, Item::kCategoryRemark}) {
        ofCategory_[item] = [this] { return CategoryRemarks(); };
    }
    for (const char* item : {Item::kVoyageNoRemark, Item::kVoyageRemark}) {
        ofVoyage_[item] = [this] { return VoyageRemarks(); };
    }
}

void NoteCommands::SetConsumption(OpenConsumption open) {
    openConsumption_ = std::move(open);
    ofVoyage_[Item::kConsumption] = [this] { return Consumption(); };
}

ItemOutcome NoteCommands::CategoryRemarks() {
    const VoyCategory category = p_.selection.Category();
    return Show(p_.selection.CategoryRow(), CategoryRemark, category.ci, category.cn);
}

ItemOutcome NoteCommands::VoyageRemarks() {
    const VoyInfo& voyage = p_.selection.Voyage();
    return Show(p_.selection.VoyageRow(), VoyageRemark, voyage.vi, voyage.vn);
}

ItemOutcome NoteCommands::Show(TreeRow row, int type, const std::string& id, const std::string& name) {
    if (openRemarks_(row, type, id, name) < 0) {
        return ItemStep::Remarks;
    }
    // Only now: while the panel leaves the object before, a mark without a row is still that one's.
    p_.remark.Open(row);
    return {};
}

ItemOutcome NoteCommands::Consumption() {
    const VoyInfo& voyage = p_.selection.Voyage();
    BunkerFigures figures{};
    if (p_.context.voyages.GetFigures(voyage.vi, figures) != 0) {
        return ItemStep::Figures;
    }
    if (voyage.portCalls.empty()) {
        p_.context.boxes.Notice(TextIds::IDS_TREE_WARNCOUSUMNOVOY);
        return {};
    }
    // What a finished voyage has burnt can be read and not changed.
    const Util::_datetime_t now;
    openConsumption_(figures, voyage.portCalls.back().eta > now);
    return {};
}

RemarkMark& NoteCommands::Mark() {
    return p_.remark;
}

}  // namespace Tarvik::Seaplan
