// SPDX-License-Identifier: MIT
/// What an edit of a cell starts.
#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/data/Purposes.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"

namespace Tarvik::Seaplan {

namespace {

constexpr double kLeastSpeed = 0.00001;
constexpr double kLeastLegHours = 0.00001;
constexpr double kEarliestDeparture = -0.0001;
constexpr double kLeastLegSpeed = 0.0001;

}  // namespace

/// An editor that was only looked into changes nothing; a blank cell takes its default all the same.
bool CPortCallPanelDlg::Untouched(CellEditor editor, const std::string& text) const {
    return !text.empty() && text == openedText_[IndexOf(editor)];
}

void CPortCallPanelDlg::Commit(CellEditor editor) {
    const std::string text = view_.EditorText(editor);
    if (Untouched(editor, text)) {
        return;
    }
    switch (editor) {
        case CellEditor::Port:
            CommitPort(text);
            break;
        case CellEditor::Speed:
            CommitSpeed(text);
            break;
        case CellEditor::Weather:
            CommitWeather(text);
            break;
        default:
            break;
    }
}

void CPortCallPanelDlg::CommitPort(const std::string& typed) {
    const int row = editorRow_[IndexOf(CellEditor::Port)];
    if (typed.empty() || !table_.IsNumbered(row)) {
        return;
    }
    const std::string name = ports_.NameOf(typed);
    if (name.empty()) {
        return;
    }
    table_.SetCell(row, ColPort, name);
    if (row == 0) {
        table_.SetCell(row, ColSpeed, "0.00");
        table_.SetCell(row, ColWeather, "0%");
        table_.SetCell(row, ColPortTime, "0.00");
    }
    table_.ClearTotals();
    ShowTable();
    MarkChanged(true);
}

void CPortCallPanelDlg::CommitSpeed(const std::string& typed) {
    const int row = editorRow_[IndexOf(CellEditor::Speed)];
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) {
        return;
    }
    const std::string& old = table_.Cell(row, ColSpeed);
    std::string text = IsBlankCell(old) ? "10.0" : old;
    const double speed = Util::StringUtl::ToDouble(typed);
    if (speed >= kLeastSpeed) {
        text = SpeedText(speed);
    }
    EditFigure(row, ColSpeed, text);
}

void CPortCallPanelDlg::CommitWeather(const std::string& typed) {
    const int row = editorRow_[IndexOf(CellEditor::Weather)];
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) {
        return;
    }
    const std::string& old = table_.Cell(row, ColWeather);
    std::string text = IsBlankCell(old) ? "0%" : old;
    const double percent = Util::StringUtl::ToDouble(typed);
    constexpr double kLeast = 0.00001;
    constexpr double kMost = 99.9999;
    if (typed == "0" || typed == "0.0") {
        text = "0%";
    } else if (percent >= kLeast && percent <= kMost) {
        text = Util::StringUtl::Format("%.0f%%", percent);
    }
    EditFigure(row, ColWeather, text);
}

void CPortCallPanelDlg::EditFigure(int row, int column, const std::string& text) {
    table_.SetCell(row, column, text);
    ShowTable();
    PortCallRows rows;
    if (StandardRows(rows) == 0) {
        Recompute(rows);
    }
}

void CPortCallPanelDlg::OnPurposeChosen(int index) {
    const char* code = PurposeCode(index);
    if (code == nullptr) {
        return;
    }
    view_.HidePurposes();
    if (!table_.IsNumbered(purposeRow_) || table_.IsBlank(purposeRow_)) {
        return;
    }
    table_.SetCell(purposeRow_, ColPurpose, code);
    ShowTable();
    MarkChanged(true);
}

void CPortCallPanelDlg::OnTimeChosen(const std::string& text) {
    if (text.size() == kTimeTextLength && table_.IsNumbered(dateRow_)) {
        if (dateColumn_ == 1) {
            EditEtd(dateRow_, text);
        } else if (dateRow_ == 0) {
            EditFirstEta(text);
        } else {
            EditEta(dateRow_, text);
        }
    }
    view_.HidePicker();
}

void CPortCallPanelDlg::EditFirstEta(const std::string& text) {
    table_.SetCell(0, ColEta, text);
    table_.SetCell(0, ColEtd, text);
    ShowTable();
    PortCallRows rows;
    if (StandardRows(rows) != 0) {
        return;
    }
    // A new time of departure wipes the stay at the first port.
    rows.front().apt = 0;
    Recompute(rows);
}

void CPortCallPanelDlg::EditEta(int row, const std::string& text) {
    float hours = 0;
    if (HoursBetween(text, table_.Cell(row - 1, ColEtd), hours) != 0) {
        return;
    }
    if (hours < kLeastLegHours) {
        return Notice(TextId::IDS_PORTCALL_ERRETA, view_.Handle());
    }
    table_.SetCell(row, ColEta, text);
    ShowTable();
    PortCallRows rows;
    if (StandardRows(rows) != 0) {
        return;
    }
    VoyPortCall& call = rows[table_.CompactIndex(row)];
    // Distance and weather stay, so the speed gives way.
    const double speed = static_cast<double>(call.distance) / ((1 - static_cast<double>(call.pw)) * hours);
    if (!(speed >= kLeastLegSpeed)) {
        return;
    }
    call.psp = static_cast<float>(speed);
    Recompute(rows);
}

void CPortCallPanelDlg::EditEtd(int row, const std::string& text) {
    float hours = 0;
    if (HoursBetween(text, table_.Cell(row, ColEta), hours) != 0) {
        return;
    }
    if (hours < kEarliestDeparture) {
        return Notice(TextId::IDS_PORTCALL_ERRETD, view_.Handle());
    }
    table_.SetCell(row, ColEtd, text);
    ShowTable();
    PortCallRows rows;
    if (StandardRows(rows) != 0) {
        return;
    }
    rows[table_.CompactIndex(row)].apt = hours;
    Recompute(rows);
}

int CPortCallPanelDlg::ApplyRowOperation(int result, const PortCallRows& rows) {
    if (result != 0) {
        return result;
    }
    table_.WritePartial(rows, IsCorrected());
    ShowTable();
    MarkChanged(true);
    return 0;
}

int CPortCallPanelDlg::OnItemImage(int row, const std::string& name) {
    CommitEditors();
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) {
        return -1;
    }
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) != 0) {
        return -2;
    }
    const int lastAisRow = table_.FindLastAisRow();
    if (corrected > 0 && lastAisRow < 0) {
        return -2;
    }
    const PortCallRows rows = table_.ReadAllRows();
    PortCallRows moved;
    int result = -3;
    if (name == "itemMoveUp" && corrected > 0 && row - 1 == lastAisRow) {
        return 0;
    }
    if (name == "itemMoveUp") {
        result = ApplyRowOperation(schedule_.MoveRowUp(rows, row, moved), moved);
        if (result == 0) {
            view_.SelectRow(row - 1);
        }
    } else if (name == "itemMovedown") {
        result = ApplyRowOperation(schedule_.MoveRowDown(rows, row, moved), moved);
        if (result == 0 && !table_.IsBlank(row + 1)) {
            view_.SelectRow(row + 1);
        }
    } else if (name == "itemdel") {
        result = ApplyRowOperation(schedule_.DeleteRow(rows, row, moved), moved);
    }
    CommitEditors();
    return result;
}

}  // namespace Tarvik::Seaplan
