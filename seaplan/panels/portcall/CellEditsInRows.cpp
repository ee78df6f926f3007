// SPDX-License-Identifier: MIT
/// One value in several rows.
#include "seaplan/panels/portcall/CellEdits.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

CellAnswer CellEdits::Put(int row, int column, const std::string& text) {
    if (!Opens(row, column)) {
        return CellAnswer::Refused;
    }
    switch (kPortCallColumns[static_cast<std::size_t>(column)].editor) {
        case CellEditor::Port:
            return PutPort(row, text);
        case CellEditor::Speed:
            return PutSpeed(row, text);
        case CellEditor::Weather:
            // A cell shows no weather as a text that nobody types.
            return PutWeather(row, text == "0%" ? "0" : text);
        case CellEditor::Purpose:
            return PutPurpose(row, text);
        case CellEditor::Time:
            return PutTime(row, column, text);
        case CellEditor::None:
            break;
    }
    return CellAnswer::Refused;
}

bool CellEdits::Try(int row, int column, const std::string& text) {
    const PortCallSheet before = desk_.Sheet();
    if (Put(row, column, text) == CellAnswer::Taken) {
        return true;
    }
    desk_.Sheet() = before;
    return false;
}

void CellEdits::SetInRows(const std::vector<int>& rows, int column, const std::string& text, TextId edit) {
    PortCallTable& table = desk_.Sheet().table;
    // A schedule that follows closes the blank rows above a row: it is found again by its place.
    std::vector<int> places;
    places.reserve(rows.size());
    for (const int row : rows) {
        places.push_back(column == ColPort || table.IsBlank(row) ? -1 : table.CompactIndex(row));
    }
    std::vector<int> refused;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int row = places[i] < 0 ? rows[i] : RowOfPlace(table, places[i]);
        if (Try(row, column, text)) {
            table.GrowIfLast(row);
        } else {
            refused.push_back(rows[i]);
        }
    }
    desk_.History().Take(EditOfRows(edit, rows.size() - refused.size()));
    TellInStatusLine(RowsText(TextIds::IDS_VIEW_ROWSREFUSED, refused));
}

}  // namespace Tarvik::Seaplan
