// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PortMatching.h"

#include <utility>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellsView.h"
#include "seaplan/panels/portcall/PortCallDesk.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kMostMatches = 50;

}  // namespace

void PortMatching::Ask() {
    CellsView& view = desk_.View().Cells();
    const std::string& text = field_.Text();
    const Interface::MatchPortQuery query{view.EditorHandle(CellEditor::Port), desk_.View().Handle(), text,
                                          std::exchange(backspace_, false) && !text.empty()};
    void* window = Interface::Call(Interface::Bus::MatchPorts, &query);
    if (window != nullptr) {
        hasWindow_ = true;
        moved_.clear();
        return text.empty() ? Hide() : view.ShowMatchWindow(window);
    }
    Hide();
    if (text.empty()) {
        return;
    }
    // Without the search plug-in the panel offers the ports that it knows itself.
    std::vector<std::string> names = desk_.Ports().Match(text, kMostMatches);
    if (!names.empty() && names != std::vector<std::string>{text}) {
        list_.Open(field_.Row(), std::move(names));
        view.ShowMatches(list_.Texts());
    }
}

void PortMatching::Put(const std::string& name) {
    field_.SetText(name);
    desk_.View().Cells().SetEditorText(CellEditor::Port, name);
    moved_ = name;
}

void PortMatching::OnMoved(const std::string& name, bool fieldHasFocus) {
    if (field_.IsOpen() && !fieldHasFocus) {
        Put(name);
    }
}

bool PortMatching::Move(int by) {
    if (!list_.IsOpen()) {
        return false;
    }
    list_.Move(by);
    desk_.View().Cells().SelectMatch(list_.Current());
    Put(list_.CurrentText());
    return true;
}

void PortMatching::OnPressed(int index) {
    if (field_.IsOpen() && list_.IsOpen()) {
        list_.SetCurrent(index);
        Put(list_.CurrentText());
    }
}

std::string PortMatching::Take() {
    std::string name = field_.IsOpen() ? moved_ : std::string();
    if (!name.empty()) {
        Hide();
    }
    return name;
}

void PortMatching::Hide() {
    desk_.View().Cells().HideMatches();
    list_.Close();
    desk_.View().Cells().HideMatchWindow();
    hasWindow_ = false;
    moved_.clear();
}

}  // namespace Tarvik::Seaplan
