// SPDX-License-Identifier: MIT
#include "host/client/shell/ChartLink.h"

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

namespace Tarvik::Client {

ChartLink::ChartLink(ClientSession& session) : session_(session) {
    bindings_.Keep(
        Interface::Subscribe(Interface::Bus::ChartPartTurned, [this](const Interface::ChartPart& part) {
            session_.Keep([&part](Preferences& kept) { kept.chartParts[part.name] = part.shown; });
        }));
}

QWidget* ChartLink::Open() const {
    QWidget* chart = Interface::Call(Interface::Bus::ChartWindow);
    if (chart == nullptr) {
        return nullptr;
    }
    Command("theme " + session_.Preferred().theme);
    for (const auto& [part, shown] : session_.Preferred().chartParts) {
        Command((shown ? "show " : "hide ") + part);
    }
    return chart;
}

bool ChartLink::Command(const std::string& command) const {
    return Interface::IsOffered(Interface::Bus::ChartCommand) &&
           Interface::Call(Interface::Bus::ChartCommand, &command) != nullptr;
}

}  // namespace Tarvik::Client
