// SPDX-License-Identifier: MIT
/// Steps in the port call table and at the buttons around it.
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallTable.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "tests/walk/Player.h"
#include "tests/walk/World.h"

namespace Tarvik::Seaplan::Walk {

namespace {

template <class Values>
const auto& Chosen(const Values& values, int what) {
    return values[static_cast<std::size_t>(what) % std::size(values)];
}

constexpr const char* kSpeeds[] = {"8", "12", "14.5", "0", "fast"};
constexpr const char* kWeathers[] = {"10", "0", "25%", "100"};
constexpr int kHours[] = {0, 6, 12, 36, -6, 200};

}  // namespace

int Player::FilledRow(int which) const {
    const PortCallTable& table = client_->view.table;
    std::vector<int> rows;
    for (int row = 0; row < table.RowCount(); ++row) {
        if (!table.IsBlank(row)) {
            rows.push_back(row);
        }
    }
    return rows.empty() ? -1 : Chosen(rows, which);
}

int Player::FreeRow() const {
    const PortCallTable& table = client_->view.table;
    int row = 0;
    while (table.IsNumbered(row) && !table.IsBlank(row)) {
        ++row;
    }
    return row;
}

/// Clicks a cell and types into what opens; without Enter it stays open.
void Player::Type(int row, int column, const std::string& text, bool enter) {
    CellEditing& cells = client_->panel.Cells();
    cells.OnCellClicked(row, column);
    const auto editor = client_->view.openEditor;
    if (!editor || client_->view.editorRow != row) {
        return;
    }
    client_->view.editorTexts[*editor] = text;
    cells.OnTyped(*editor, text);
    if (enter) {
        cells.OnEditorKey(*editor, {Key::Enter});
    }
}

void Player::PickTime(int row, int column, int hours) {
    CellEditing& cells = client_->panel.Cells();
    cells.OnCellClicked(row, column);
    const auto time = Util::DateTimeUtl::Parse(client_->view.pickerTime);
    if (time) {
        cells.OnTimeChosen((*time + Util::_time_t(hours, 0)).fmt("%Y-%m-%d %H:%M:%S"));
    }
}

void Player::PlayTable(const Step& step) {
    const int row = FilledRow(step.which);
    switch (step.act) {
        case Act::TypePort:
            Type(FreeRow(), ColPort, Chosen(TypedPorts(), step.what), true);
            if (step.yes) {
                Type(FreeRow(), ColPort, Chosen(TypedPorts(), step.which), true);
            }
            break;
        case Act::TypeOver:
            Type(row, ColPort, Chosen(TypedPorts(), step.what), true);
            break;
        case Act::LeaveTyping:
            Type(step.which % 2 == 0 ? FreeRow() : row, ColPort, Chosen(TypedPorts(), step.what), false);
            break;
        case Act::Speed:
            Type(row, ColSpeed, Chosen(kSpeeds, step.what), true);
            break;
        case Act::Weather:
            Type(row, ColWeather, Chosen(kWeathers, step.what), true);
            break;
        case Act::FirstArrival:
            PickTime(0, ColEta, Chosen(kHours, step.what));
            break;
        case Act::Arrival:
            PickTime(row, ColEta, Chosen(kHours, step.what));
            break;
        case Act::Departure:
            PickTime(row, ColEtd, Chosen(kHours, step.what));
            break;
        default:
            PlayButtons(step);
            break;
    }
}

void Player::PlayButtons(const Step& step) {
    const int row = FilledRow(step.which);
    PanelCommands& commands = client_->panel.Commands();
    if (step.act == Act::Purpose) {
        client_->panel.Cells().OnCellClicked(row, ColPurpose);
        if (client_->view.purposeRow >= 0) {
            client_->panel.Cells().OnPurposeChosen(step.what % 10);
        }
        return;
    }
    if (step.act == Act::MoveUp || step.act == Act::MoveDown || step.act == Act::Delete) {
        client_->panel.Rows().OnItemImage(row, step.act == Act::MoveUp     ? PortCallImage::kMoveUp
                                               : step.act == Act::MoveDown ? PortCallImage::kMoveDown
                                                                           : PortCallImage::kDelete);
        return;
    }
    PressElsewhere();
    if (step.act == Act::Undo || step.act == Act::Redo) {
        return step.act == Act::Undo ? commands.OnUndo() : commands.OnRedo();
    }
    const PortCallState& state = client_->view.state;
    if (step.act == Act::Calculate && state.canCalculate) {
        commands.OnCalculate();
    } else if (step.act == Act::Save && state.canSave) {
        commands.OnSave();
    } else if (step.act == Act::Clear && state.canClear) {
        commands.OnClear();
    } else if (step.act == Act::Close) {
        commands.OnClose();
    }
}

}  // namespace Tarvik::Seaplan::Walk
