// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "seaplan/panels/tests/FakeCommands.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/panels/tree/TreeRows.h"
#include "testsupport/ManualClock.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

/// Rows with a rename box and places that the test sets.
class RecordingTree final : public TreeRows {
  public:
    int rowTop = 40;  ///< top of every row in pixels
    std::string editorText;
    Rect editorPlace;
    int editorLimit = 0;
    bool editorOpen = false;
    int sortPanelKey = -1;
    void* windowAtPointer = nullptr;

    Rect GetItemRect(TreeRow) const override { return {0, rowTop, 290, rowTop + 30}; }
    void ShowRenameEditor(const Rect& place, const std::string& text, int maxUnits) override {
        editorPlace = place;
        editorText = text;
        editorLimit = maxUnits;
        editorOpen = true;
    }
    void HideRenameEditor() override { editorOpen = false; }
    bool RenameEditorVisible() const override { return editorOpen; }
    std::string RenameEditorText() const override { return editorText; }
    void ShowSortPanel(const std::string&, int sortKey) override { sortPanelKey = sortKey; }
    void HidePopups() override { sortPanelKey = -1; }
    void ShowAtPointer(void* window) override { windowAtPointer = window; }
    void SetEnabled(bool) override {}
    void* Handle() const override { return nullptr; }

    /// Texts of the rows, voyages indented by two blanks.
    std::vector<std::string> Shown() const {
        std::vector<std::string> out;
        for (TreeRow row = GetRootItem(); row != kNoRow; row = GetNextSiblingItem(row)) {
            out.push_back(GetItemText(row));
            for (TreeRow child = GetChildItem(row); child != kNoRow; child = GetNextSiblingItem(child)) {
                out.push_back("  " + GetItemText(child));
            }
        }
        return out;
    }
    TreeRow Find(const std::string& text) const {
        for (TreeRow row = GetRootItem(); row != kNoRow; row = GetNextSiblingItem(row)) {
            if (GetItemText(row) == text) {
                return row;
            }
            for (TreeRow child = GetChildItem(row); child != kNoRow; child = GetNextSiblingItem(child)) {
                if (GetItemText(child) == text) {
                    return child;
                }
            }
        }
        return kNoRow;
    }
};

/// The vessel box as the test sees it.
class RecordingVesselView final : public VesselView {
  public:
    Rect place;
    bool box = false;
    std::string text;
    bool list = false;
    std::vector<std::string> names;
    VesselListSize size;
    void ShowBox(const Rect& inTree, const std::string& shown) override {
        place = inTree;
        text = shown;
        box = true;
    }
    void HideBox() override { box = false; }
    bool BoxVisible() const override { return box; }
    std::string BoxText() const override { return text; }
    void ShowList(const std::vector<std::string>& shown, const VesselListSize& listSize) override {
        names = shown;
        size = listSize;
        list = true;
    }
    void HideList() override { list = false; }
    bool ListVisible() const override { return list; }
};

class TreeFixture : public ::testing::Test {
  protected:
    KeyTexts texts;
    TestSupport::ManualClock clock;
    TestSupport::RecordingMsgSink messages;
    VoyageStore store;
    FakeCatalog catalog{store};
    FakeSchedule schedule{store};
    RecordingTree tree;
    RecordingVesselView vessels;
    SeaplanTreeCtrl ctrl{store, catalog, schedule, tree};

    TreeFixture() { ctrl.SetVesselView(&vessels); }

    VoyCategory& AddCategory(const std::string& ci, const std::string& name, int state = InUse) {
        catalog.onServer.categoryStates[ci] = state;
        return catalog.onServer.categories[ci] = {ci, name, 0};
    }
    VoyInfo& AddVoyage(const std::string& ci, const std::string& vi, const std::string& name,
                       int state = InUse) {
        catalog.onServer.categoryVoyages[ci][vi] = state;
        VoyInfo& voyage = catalog.onServer.voyages[vi];
        voyage.vi = vi;
        voyage.vn = name;
        return voyage;
    }
    static PortCallRows TwoCalls(int day) {
        PortCallRows rows(2);
        rows[0].ppn = "ROTTERDAM";
        rows[1].ppn = "HAMBURG";
        rows[1].distance = 240;
        rows[0].eta = rows[0].etd = Util::_datetime_t(0, 0, 8, day, 3, 2024);
        rows[1].eta = rows[1].etd = Util::_datetime_t(0, 0, 8, day + 1, 3, 2024);
        return rows;
    }
    int Click(const std::string& text, const std::string& item) {
        return ctrl.OnItemClicked(tree.Find(text), item);
    }
    /// Types a name into the open box and commits it.
    int Rename(const std::string& name) {
        tree.editorText = name;
        return ctrl.CommitRename();
    }
};

}  // namespace Tarvik::Seaplan
