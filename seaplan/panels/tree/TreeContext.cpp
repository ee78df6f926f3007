// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeContext.h"

#include "seaplan/controllers/VoyController.h"

namespace Tarvik::Seaplan {

TreeRow TreeContext::FindCategoryRow(const std::string& ci) const {
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        const VoyCategory* category = CategoryOf(row);
        if (category != nullptr && category->ci == ci) {
            return row;
        }
    }
    return kNoRow;
}

TreeRow TreeContext::FindVoyageRow(const std::string& vi) const {
    for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
        for (TreeRow child = tree.GetChildItem(row); child != kNoRow;
             child = tree.GetNextSiblingItem(child)) {
            const VoyInfo* voyage = VoyageOf(child);
            if (voyage != nullptr && voyage->vi == vi) {
                return child;
            }
        }
    }
    return kNoRow;
}

void TreeContext::FetchPortCalls(const std::string& vi) const {
    PortCallRows rows;
    voyages.LoadSchedule(vi, rows, kWithoutDrawing);
}

}  // namespace Tarvik::Seaplan
