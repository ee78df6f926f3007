// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortWindow.h"

#include "host/client/places/Words.h"

namespace Tarvik::Client {

namespace {

constexpr QSize kSize(480, 320);  ///< pixels, as the width
constexpr int kPlaceWidth = 220;

}  // namespace

OwnPortWindow::OwnPortWindow(QWidget* mainWindow, const Reports& reports)
    : ListWindow(mainWindow,
                 {"ownPorts",
                  "ownPortsClose",
                  "ownPortTable",
                  "ownPortNote",
                  "TITLE",
                  kSize,
                  {{"NAME"}, {"PLACE", kPlaceWidth}},
                  &PortWord,
                  "ports"},
                 {{"ownPortAdd", "ADD", Qt::CTRL | Qt::Key_N, Scope::List,
                   [reports](const auto&) { reports.add(); }},
                  {"ownPortChange", "CHANGE", Qt::Key_F2, Scope::Row, reports.change},
                  {"ownPortRemove", "REMOVE", Qt::Key_Delete, Scope::Row, reports.remove}}) {}

void OwnPortWindow::ShowPorts(const std::vector<Ports::Place>& ports) {
    std::vector<Row> rows;
    rows.reserve(ports.size());
    for (const Ports::Place& port : ports) {
        const OwnPortDraft texts = OwnPortDraft::Of(port);
        rows.push_back({port.id, {texts.name, texts.position}});
    }
    ShowRows(rows);
}

}  // namespace Tarvik::Client
