// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Schedule.h"
#include "seaplan/panels/language/Messages.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PurposeList.h"

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kTimeTextLength = 19;
constexpr std::size_t kMostMatches = 50;
constexpr double kLeastSpeed = 0.00001;
constexpr double kLeastLegHours = 0.00001;
constexpr double kEarliestDeparture = -0.0001;
constexpr double kLeastLegSpeed = 0.0001;

int indexOf(CellEditor editor) {
    return static_cast<int>(editor);
}

int columnOf(CellEditor editor) {
    return editor == CellEditor::Port ? ColPort : editor == CellEditor::Speed ? ColSpeed : ColWeather;
}

}  // namespace

void CPortCallPanelDlg::OnCellClicked(int row, int column) {
    CommitEditors();
    if (!table_.IsNumbered(row)) return;
    table_.GrowIfLast(row);
    view_.ShowTable(table_);
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) == 0 && corrected > 0) return;
    switch (column) {
        case ColPort:
            openEditor(CellEditor::Port, row);
            break;
        case ColPurpose:
            purposeRow_ = row;
            view_.OpenPurposes(row);
            break;
        case ColSpeed:
            openEditor(CellEditor::Speed, row);
            break;
        case ColWeather:
            openEditor(CellEditor::Weather, row);
            break;
        case ColEta:
        case ColEtd:
            openPicker(row, column);
            break;
        default:
            break;
    }
}

void CPortCallPanelDlg::openEditor(CellEditor editor, int row) {
    const std::string& text = table_.Cell(row, columnOf(editor));
    editorRow_[indexOf(editor)] = row;
    view_.OpenEditor(editor, row, IsBlankCell(text) ? std::string() : text, editor != CellEditor::Port);
}

void CPortCallPanelDlg::openPicker(int row, int column) {
    if (table_.IsBlank(row) || IsBlankCell(table_.Cell(row, ColEta)) || IsBlankCell(table_.Cell(row, ColEtd)))
        return;
    const auto time = Util::DateTimeUtl::Parse(table_.Cell(row, column));
    if (!time) return;
    dateRow_ = row;
    dateColumn_ = column == ColEta ? 0 : 1;
    view_.OpenPicker(row, column, *time);
}

void CPortCallPanelDlg::closePopups() {
    view_.HideMatches();
    view_.HidePurposes();
    view_.HidePicker();
}

void CPortCallPanelDlg::commit(CellEditor editor) {
    const std::string text = view_.EditorText(editor);
    switch (editor) {
        case CellEditor::Port:
            commitPort(text);
            break;
        case CellEditor::Speed:
            commitSpeed(text);
            break;
        case CellEditor::Weather:
            commitWeather(text);
            break;
    }
}

void CPortCallPanelDlg::CommitEditors() {
    for (const CellEditor editor : {CellEditor::Port, CellEditor::Speed, CellEditor::Weather}) {
        if (!view_.EditorVisible(editor)) continue;
        commit(editor);
        view_.HideEditor(editor);
    }
    closePopups();
    updateCalculateButton();
}

void CPortCallPanelDlg::commitPort(const std::string& typed) {
    const int row = editorRow_[indexOf(CellEditor::Port)];
    if (typed.empty() || !table_.IsNumbered(row)) return;
    const std::string name = ports_.NameOf(typed);
    if (name.empty()) return;
    table_.SetCell(row, ColPort, name);
    if (row == 0) {
        table_.SetCell(row, ColSpeed, "0.00");
        table_.SetCell(row, ColWeather, "0%");
        table_.SetCell(row, ColPortTime, "0.00");
    }
    table_.ClearTotals();
    view_.ShowTable(table_);
    markChanged(true);
}

void CPortCallPanelDlg::commitSpeed(const std::string& typed) {
    const int row = editorRow_[indexOf(CellEditor::Speed)];
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) return;
    const std::string& old = table_.Cell(row, ColSpeed);
    std::string text = IsBlankCell(old) ? "10.0" : old;
    const double speed = Util::StringUtl::ToDouble(typed);
    if (speed >= kLeastSpeed) text = SpeedText(speed);
    editFigure(row, ColSpeed, text);
}

void CPortCallPanelDlg::commitWeather(const std::string& typed) {
    const int row = editorRow_[indexOf(CellEditor::Weather)];
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) return;
    const std::string& old = table_.Cell(row, ColWeather);
    std::string text = IsBlankCell(old) ? "0%" : old;
    const double percent = Util::StringUtl::ToDouble(typed);
    constexpr double kLeast = 0.00001;
    constexpr double kMost = 99.9999;
    if (typed == "0" || typed == "0.0") {
        text = "0%";
    } else if (percent >= kLeast && percent <= kMost) {
        text = WeatherText(percent / 100);
    }
    editFigure(row, ColWeather, text);
}

void CPortCallPanelDlg::editFigure(int row, int column, const std::string& text) {
    table_.SetCell(row, column, text);
    view_.ShowTable(table_);
    PortCallRows rows;
    if (standardRows(rows) == 0) recompute(rows);
}

void CPortCallPanelDlg::OnPortTyped(const std::string& text) {
    if (!notifyTyping_) return;
    const std::vector<std::string> names = ports_.Match(text, kMostMatches);
    if (names.empty()) {
        view_.HideMatches();
    } else {
        view_.ShowMatches(names);
    }
}

void CPortCallPanelDlg::OnMatchChosen(const std::string& name) {
    if (!view_.EditorVisible(CellEditor::Port) || name.empty()) return;
    view_.HideMatches();
    commitPort(name);
    view_.HideEditor(CellEditor::Port);
}

void CPortCallPanelDlg::OnEditorKey(CellEditor editor, EditorKey key) {
    const int row = editorRow_[indexOf(editor)];
    const bool empty = view_.EditorText(editor).empty();
    commit(editor);
    if (editor == CellEditor::Port) {
        view_.HideMatches();
        if (empty) return;
    }
    view_.HideEditor(editor);
    if (key == EditorKey::Enter && editor == CellEditor::Speed) return;
    if (key == EditorKey::Enter && editor == CellEditor::Port) return openNextPort(row);
    moveOn(editor, row);
}

void CPortCallPanelDlg::moveOn(CellEditor editor, int row) {
    switch (editor) {
        case CellEditor::Port:
            return row == 0 ? openNextPort(row) : openEditor(CellEditor::Speed, row);
        case CellEditor::Speed:
            return openEditor(CellEditor::Weather, row);
        case CellEditor::Weather:
            return openNextPort(row);
    }
}

void CPortCallPanelDlg::openNextPort(int row) {
    const int next = row + 1;
    if (!table_.IsNumbered(next)) return;
    table_.GrowIfLast(next);
    view_.ShowTable(table_);
    view_.BringRowIntoView(next);
    // Text that the panel sets asks for no matches.
    notifyTyping_ = false;
    openEditor(CellEditor::Port, next);
    notifyTyping_ = true;
}

void CPortCallPanelDlg::OnEditorFocusLost(CellEditor editor) {
    // The focus may have gone from the port editor to its match list.
    if (editor != CellEditor::Port) CommitEditors();
}

void CPortCallPanelDlg::OnTableLeft() {
    CommitEditors();
}

void CPortCallPanelDlg::OnPurposeChosen(int index) {
    const char* code = PurposeCode(index);
    if (code == nullptr) return;
    view_.HidePurposes();
    if (!table_.IsNumbered(purposeRow_) || table_.IsBlank(purposeRow_)) return;
    table_.SetCell(purposeRow_, ColPurpose, code);
    view_.ShowTable(table_);
    markChanged(true);
}

void CPortCallPanelDlg::OnTimeChosen(const std::string& text) {
    if (text.size() == kTimeTextLength && table_.IsNumbered(dateRow_)) {
        if (dateColumn_ == 1) {
            editEtd(dateRow_, text);
        } else if (dateRow_ == 0) {
            editFirstEta(text);
        } else {
            editEta(dateRow_, text);
        }
    }
    view_.HidePicker();
}

void CPortCallPanelDlg::editFirstEta(const std::string& text) {
    table_.SetCell(0, ColEta, text);
    table_.SetCell(0, ColEtd, text);
    view_.ShowTable(table_);
    PortCallRows rows;
    if (standardRows(rows) != 0) return;
    // A new time of departure wipes the stay at the first port.
    rows.front().apt = 0;
    recompute(rows);
}

void CPortCallPanelDlg::editEta(int row, const std::string& text) {
    float hours = 0;
    if (HoursBetween(text, table_.Cell(row - 1, ColEtd), hours) != 0) return;
    if (hours < kLeastLegHours) return Notice(TextId::IDS_PORTCALL_ERRETA, view_.Handle());
    table_.SetCell(row, ColEta, text);
    view_.ShowTable(table_);
    PortCallRows rows;
    if (standardRows(rows) != 0) return;
    VoyPortCall& call = rows[table_.CompactIndex(row)];
    // Distance and weather stay, so the speed gives way.
    const double speed = static_cast<double>(call.distance) / ((1 - static_cast<double>(call.pw)) * hours);
    if (!(speed >= kLeastLegSpeed)) return;
    call.psp = static_cast<float>(speed);
    recompute(rows);
}

void CPortCallPanelDlg::editEtd(int row, const std::string& text) {
    float hours = 0;
    if (HoursBetween(text, table_.Cell(row, ColEta), hours) != 0) return;
    if (hours < kEarliestDeparture) return Notice(TextId::IDS_PORTCALL_ERRETD, view_.Handle());
    table_.SetCell(row, ColEtd, text);
    view_.ShowTable(table_);
    PortCallRows rows;
    if (standardRows(rows) != 0) return;
    rows[table_.CompactIndex(row)].apt = hours;
    recompute(rows);
}

int CPortCallPanelDlg::applyRowOperation(int result, const PortCallRows& rows) {
    if (result != 0) return result;
    table_.WritePartial(rows);
    view_.ShowTable(table_);
    markChanged(true);
    return 0;
}

int CPortCallPanelDlg::OnItemImage(int row, const std::string& name) {
    CommitEditors();
    if (!table_.IsNumbered(row) || table_.IsBlank(row)) return -1;
    int corrected = 0;
    if (schedule_.GetModAis(voyageId_, corrected) != 0 || corrected > 0) return -2;
    const PortCallRows rows = table_.ReadAllRows();
    PortCallRows moved;
    int result = -3;
    if (name == "itemMoveUp") {
        result = applyRowOperation(schedule_.MoveRowUp(rows, row, moved), moved);
        if (result == 0) view_.SelectRow(row - 1);
    } else if (name == "itemMovedown") {
        result = applyRowOperation(schedule_.MoveRowDown(rows, row, moved), moved);
        if (result == 0 && !table_.IsBlank(row + 1)) view_.SelectRow(row + 1);
    } else if (name == "itemdel") {
        result = applyRowOperation(schedule_.DeleteRow(rows, row, moved), moved);
    }
    CommitEditors();
    return result;
}

}  // namespace Tarvik::Seaplan
