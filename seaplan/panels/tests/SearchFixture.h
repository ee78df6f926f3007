// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/search/TreeSearch.h"

namespace Tarvik::Seaplan {

/// The search over a tree of three categories, nothing recorded yet.
class SearchFixture : public TreeFixture {
  protected:
    SearchFixture() {
        desk.AddCategory("Bulk");
        desk.AddVoyage("Bulk", {.name = "Autumn", .vsn = "ANNA", .calls = PanelDesk::Calls(5)});
        desk.AddVoyage("Bulk", {.name = "Winter"});
        desk.AddCategory("Tankers");
        desk.AddVoyage("Tankers", {.name = "Anna's", .calls = PanelDesk::Calls(1, 3)});
        desk.AddVoyage("Tankers", {.name = "Summer"});
        desk.AddCategory("Empty");
        ctrl.ReloadTree();
        desk.ForgetRecords();
    }
    /// Rows that are not put aside, found ones with "*", voyages of open categories indented.
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        const auto add = [&](TreeRow row, const char* indent) {
            if (tree.GetRowFinding(row) != RowFinding::Aside) {
                const char* mark = tree.GetRowFinding(row) == RowFinding::Found ? "*" : "";
                rows.push_back(indent + tree.GetItemText(row) + mark);
            }
        };
        for (TreeRow row = tree.GetRootItem(); row != kNoRow; row = tree.GetNextSiblingItem(row)) {
            add(row, "");
            TreeRow child = tree.IsItemExpanded(row) ? tree.GetChildItem(row) : kNoRow;
            for (; child != kNoRow; child = tree.GetNextSiblingItem(child)) {
                add(child, "  ");
            }
        }
        return rows;
    }
    void Search(const std::string& text) {
        search.Open();
        search.OnTyped(text);
    }
    /// Gives the search all the time that it asks for.
    void ReadAll() {
        while (search.State().unread > 0) {
            search.OnIdle();
        }
    }
    std::string SelectedText() const { return tree.GetItemText(tree.Selected()); }

    RecordingSearch view;
    TreeSearch search{ctrl.Context(), view};
};

}  // namespace Tarvik::Seaplan
