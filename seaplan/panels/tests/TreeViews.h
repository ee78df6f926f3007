// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/tree/TreeRows.h"
#include "seaplan/panels/tree/search/SearchView.h"
#include "seaplan/panels/vessel/VesselView.h"
#include "seaplan/panels/window/ChoicePopup.h"
#include "seaplan/panels/window/TextBox.h"

namespace Tarvik::Seaplan {

/// Rows in places that the test sets.
class RecordingTree final : public TreeRows {
  public:
    int rowTop = 40;  ///< top of every row in pixels
    std::vector<void*> windowsAtPointer;
    TreeRow cursor = kNoRow;
    std::vector<bool> enabled;  ///< every change, in order

    Rect GetItemRect(TreeRow) const override { return {0, rowTop, 290, rowTop + 30}; }
    bool busy = false;
    void SetBusy(bool on) override { busy = on; }
    void ShowAtPointer(void* window) override { windowsAtPointer.push_back(window); }
    void SetCursor(TreeRow row) override { cursor = row; }
    void SetEnabled(bool on) override { enabled.push_back(on); }
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

/// A box in which the test types.
class RecordingTextBox final : public TextBox {
  public:
    std::string text;
    Rect place;
    int limit = 0;
    bool open = false;

    void Show(const Rect& at, const std::string& shown, std::size_t mostTyped) override {
        place = at;
        text = shown;
        limit = static_cast<int>(mostTyped);
        open = true;
    }
    void Hide() override { open = false; }
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
    std::size_t limit = 0;
    int selected = -1;
    void ShowBox(const Rect& inTree, const std::string& shown, std::size_t mostTyped) override {
        place = inTree;
        limit = mostTyped;
        text = shown;
        box = true;
    }
    void HideBox() override { box = false; }
    void ShowList(const std::vector<std::string>& shown, const VesselListSize& listSize) override {
        names = shown;
        size = listSize;
        list = true;
        selected = 0;
    }
    void SelectRow(int row) override { selected = row; }
    void HideList() override { list = false; }
    void Later(std::function<void()> act) override { act(); }
};

/// The search line as the test sees it.
class RecordingSearch final : public SearchView {
  public:
    bool open = false;
    int opened = 0;
    int asked = 0;  ///< how often time was asked for
    int left = 0;   ///< how often the keyboard went to the tree with the line open
    SearchState state;

    void OpenSearch(const SearchState& shown) override {
        state = shown;
        open = true;
        ++opened;
    }
    void ShowSearch(const SearchState& shown) override { state = shown; }
    void CloseSearch() override { open = false; }
    void LeaveField() override { ++left; }
    void AskForTime() override { ++asked; }
};

/// A popup of choices as the test sees it.
class RecordingChoices final : public ChoicePopup {
  public:
    std::vector<Choice> choices;
    bool visible = false;
    int width = 0;
    int height = 0;

    void SetChoices(const std::vector<Choice>& given) override { choices = given; }
    void Show(int wide, int high) override {
        width = wide;
        height = high;
        visible = true;
    }
    void Hide() override { visible = false; }
    bool IsVisible() const override { return visible; }
    /// The ticked line, nothing when none is.
    std::optional<TextId> Ticked() const {
        for (const Choice& choice : choices) {
            if (choice.ticked) {
                return choice.id;
            }
        }
        return std::nullopt;
    }
};

}  // namespace Tarvik::Seaplan
