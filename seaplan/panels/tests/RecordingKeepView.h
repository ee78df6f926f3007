// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/distances/KeepTableView.h"
#include "seaplan/panels/editors/DropList.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"

namespace Tarvik::Seaplan {

/// The window of the dialog in which a distance table is kept, and its list, which only remember what they
/// were told.
class RecordingKeepView final : public RecordingPanelWindow<KeepTableView>, public DropList {
  public:
    std::string category = "old";
    std::string voyage = "old";
    bool selected = false;
    std::string note;
    bool listShown = false;
    Rect listPlace;
    std::vector<std::string> names;
    int focusedRow = -1;

    void SetCategory(const std::string& text, bool all) override {
        category = text;
        selected = all;
    }
    void SetVoyageName(const std::string& text) override { voyage = text; }
    Rect CategoryPlace() const override { return {100, 50, 260, 76}; }
    DropList& Names() override { return *this; }
    void ShowNote(const std::string& text) override { note = text; }
    void ShowList(const Rect& screen, const std::vector<std::string>& texts, int) override {
        listShown = true;
        listPlace = screen;
        names = texts;
    }
    void HideList() override { listShown = false; }
    void FocusList(int row) override { focusedRow = row; }
};

}  // namespace Tarvik::Seaplan
