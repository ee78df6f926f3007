// SPDX-License-Identifier: MIT
#include "seaplan/panels/vessel/VoyShipEditDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <tarvik/interface/SiblingRecords.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

using Util::StringUtl;

std::u16string Fold(const std::string& text) {
    std::u16string out = StringUtl::TranslateString(text);
    for (char16_t& unit : out) {
        if (unit >= u'A' && unit <= u'Z') {
            unit = static_cast<char16_t>(unit - u'A' + u'a');
        }
    }
    return out;
}

}  // namespace

VesselListSize VoyShipEditDlg::SizeOf(std::size_t vessels) {
    constexpr int kWidth = 157;
    constexpr int kRow = 18;
    constexpr std::size_t kMostRows = 11;
    constexpr int kFullHeight = 203;
    if (vessels > kMostRows) {
        return {kWidth, kFullHeight, kWidth - 21};
    }
    const int height = static_cast<int>(vessels) * kRow + 5 + (vessels == 1 ? 3 : 0);
    return {kWidth, height, kWidth - 5};
}

void VoyShipEditDlg::Open(const Rect& inTree, const std::string& text,
                          std::vector<Interface::FleetEntry> fleet, Commit commit) {
    fleet_ = std::move(fleet);
    commit_ = std::move(commit);
    box_.Open(0, text);
    view_.ShowBox(inTree, text, box_.Limit());
    OnTyped(text);
}

void VoyShipEditDlg::Hide() {
    HideList();
    box_.Close();
    view_.HideBox();
}

void VoyShipEditDlg::HideList() {
    list_.Close();
    view_.HideList();
}

void VoyShipEditDlg::OnTyped(const std::string& text) {
    box_.SetText(text);
    const std::u16string begin = Fold(text);
    shown_.clear();
    std::copy_if(fleet_.begin(), fleet_.end(), std::back_inserter(shown_),
                 [&](const Interface::FleetEntry& vessel) { return Fold(vessel.name).starts_with(begin); });
    if (shown_.empty()) {
        return HideList();
    }
    std::vector<std::string> names;
    for (const Interface::FleetEntry& vessel : shown_) {
        names.push_back(vessel.name);
    }
    view_.ShowList(names, SizeOf(names.size()));
    list_.Open(0, std::move(names), 0);
}

bool VoyShipEditDlg::OnKey(KeyPress press) {
    switch (press.key) {
        case Key::Enter:
            OnEnter(list_.Current());
            return true;
        case Key::Down:
            return Walk(1);
        case Key::Up:
            return Walk(-1);
        case Key::Escape:
            HideList();
            return true;
        default:
            return false;
    }
}

bool VoyShipEditDlg::Walk(int by) {
    if (!list_.IsOpen()) {
        return false;
    }
    list_.Move(by);
    view_.SelectRow(list_.Current());
    return true;
}

void VoyShipEditDlg::OnEnter(int selectedRow) {
    if (list_.IsOpen()) {
        return OnChosen(selectedRow);
    }
    const auto typed = Typed();
    Hide();
    if (typed) {
        Take(*typed, true);
    }
}

/// A box that comes up meanwhile lets the next row's box open.
void VoyShipEditDlg::Take(const Interface::FleetEntry& vessel, bool typedOnly) {
    const Commit commit = commit_;
    commit(vessel, typedOnly);
}

void VoyShipEditDlg::OnChosen(int row) {
    if (row < 0 || row >= static_cast<int>(shown_.size())) {
        return;
    }
    const Interface::FleetEntry vessel = shown_[row];
    Hide();
    Take(vessel, false);
}

void VoyShipEditDlg::OnLeft() {
    if (!box_.IsOpen()) {
        return;
    }
    closedByPress_ = true;
    const auto typed = Typed();
    Hide();
    if (typed) {
        // Saving may put a box up, which must not begin inside the press. The press may open the box over
        // another row meanwhile.
        view_.Later([commit = commit_, vessel = *typed] { commit(vessel, true); });
    }
}

std::optional<Interface::FleetEntry> VoyShipEditDlg::Typed() const {
    // A typed name has no id and no number: committing what was only looked at would take both away.
    if (box_.Untouched()) {
        return std::nullopt;
    }
    const std::u16string name = StringUtl::TrimLeft(StringUtl::TranslateString(box_.Text()));
    if (name.empty()) {
        return std::nullopt;
    }
    return Interface::FleetEntry{"", StringUtl::TranslateString(name), 0};
}

}  // namespace Tarvik::Seaplan
