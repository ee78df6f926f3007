// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <cstdlib>

#include <tarvik/util/Units.h>

#include "seaplan/panels/portcall/PortCallSheet.h"
#include "tests/walk/Rules.h"
#include "tests/walk/World.h"

namespace Tarvik::Seaplan::Walk {

namespace {

constexpr double kHoursPerDay = 24;
constexpr double kUsualKnots = 10;

bool IsBlankText(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

/// Blank cells stand for what a calculation takes in their place.
EnteredRow RowAt(const PortCallTable& table, int row, bool first) {
    EnteredRow entered;
    entered.row = row;
    entered.port = table.Cell(row, ColPort);
    const std::string purpose = table.Cell(row, ColPurpose);
    entered.purpose = !IsBlankText(purpose) ? purpose : first ? "L" : "D";
    // A row that once was the first has a speed of 0.
    entered.knots = std::atof(table.Cell(row, ColSpeed).c_str());
    entered.knots = entered.knots > 0 ? entered.knots : kUsualKnots;
    entered.weather = std::atof(table.Cell(row, ColWeather).c_str()) / 100;
    entered.hoursInPort = std::atof(table.Cell(row, ColPortTime).c_str()) * kHoursPerDay;
    return entered;
}

}  // namespace

std::vector<std::string> Sight::Ports() const {
    std::vector<std::string> ports;
    ports.reserve(rows.size());
    for (const EnteredRow& row : rows) {
        ports.push_back(row.port);
    }
    return ports;
}

std::vector<std::string> Sight::PortsTaken() const {
    std::vector<std::string> ports = Ports();
    if (typed) {
        // The panel takes the port's own spelling.
        std::string name = typed->second;
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
        const auto place = std::find_if(rows.begin(), rows.end(),
                                        [&](const EnteredRow& row) { return row.row >= typed->first; });
        const auto at = ports.begin() + (place - rows.begin());
        if (place != rows.end() && place->row == typed->first) {
            *at = name;
        } else {
            ports.insert(at, name);
        }
    }
    return ports;
}

Sight Look(const Client& client) {
    const PortCallSheet& sheet = client.panel.Sheet();
    Sight sight;
    sight.visible = client.view.visible;
    sight.marked = client.view.state.changed;
    sight.unread = sheet.unread;
    sight.voyage = sheet.voyageId;
    const PortCallTable& table = client.view.table;
    for (int row = 0; row < table.RowCount(); ++row) {
        if (!table.IsBlank(row)) {
            sight.rows.push_back(RowAt(table, row, sight.rows.empty()));
            sight.miles.push_back(table.Cell(row, ColDistance));
        }
    }
    sight.start = table.Cell(0, ColEta);
    const auto editor = client.view.openEditor;
    if (editor == CellEditor::Port && client.view.openEditors.contains(CellEditor::Port)) {
        const std::string& typed = client.view.editorTexts.at(CellEditor::Port);
        const std::string& cell = table.Cell(client.view.editorRow, ColPort);
        if (typed != cell && !typed.empty()) {
            sight.typed = {client.view.editorRow, typed};
        }
    }
    sight.nameOpen = client.nameBox.open;
    sight.vesselOpen = client.vesselBox.box;
    return sight;
}

}  // namespace Tarvik::Seaplan::Walk
