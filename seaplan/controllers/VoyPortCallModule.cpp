// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyPortCallModule.h"

#include "seaplan/controllers/RouteExchange.h"

namespace Tarvik::Seaplan {

VoyPortCallModule::VoyPortCallModule(VoyageStore* store, PortDirectory* ports)
    : routes_(pending_, *ports), drawing_(layer_), clicks_(store, layer_, routes_, drawing_) {}

int VoyPortCallModule::GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList) {
    return kGetRouteCodes.Of(routes_.Find(rows, results, wholeList));
}

int VoyPortCallModule::GetStopsByCache(const PortCallRows& rows, RouteStops& out) {
    return kStopsByCacheCodes.Of(routes_.StopsByCache(rows, out));
}

int VoyPortCallModule::LoadCache(const std::string& name, LegCache& cache) {
    ReadCacheFile(name, cache);
    return 0;
}

int VoyPortCallModule::RequestNearestRoute(const std::string& position, const std::string& portId,
                                           std::vector<std::string>& points) {
    return kNearestRouteCodes.Of(AskNearestRoute(position, portId, points));
}

int VoyPortCallModule::BookFromCurrentStops(BookPoints& rows) {
    return kBookOfRouteCodes.Of(routes_.BookOfRoute(rows));
}

int VoyPortCallModule::PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out) {
    return kPortPositionsCodes.Of(routes_.PortPositions(rows, out));
}

int VoyPortCallModule::DrawCurrentRoute() {
    return layer_.DrawRoute(pending_.Stops(), routes_.Ports());
}

int VoyPortCallModule::DrawBook(const VoyInfo& voyage) {
    PointTexts positions;
    for (const PosBookPoint& point : voyage.positionBook.points) {
        positions.push_back(point.position);
    }
    return layer_.DrawBook(voyage.vi, positions);
}

int VoyPortCallModule::DrawPlannedProgress(const VoyInfo& voyage) {
    return kPlannedProgressCodes.Of(drawing_.DrawPlanned(voyage));
}

int VoyPortCallModule::DrawAisProgress(const VoyInfo& voyage) {
    return kAisProgressCodes.Of(drawing_.DrawCorrected(voyage));
}

}  // namespace Tarvik::Seaplan
