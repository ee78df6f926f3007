// SPDX-License-Identifier: MIT
#include "seaplan/controllers/VoyPortCallModule.h"

#include "seaplan/controllers/ChartClicks.h"
#include "seaplan/controllers/ProgressDrawing.h"
#include "seaplan/controllers/RouteExchange.h"
#include "seaplan/controllers/RouteFinder.h"
#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

struct VoyPortCallModule::Parts {
    Parts(VoyageStore* store, PortDirectory& ports)
        : routes(pending, ports), drawing(layer), clicks(store, layer, routes, drawing) {}

    VoyageLayer layer;
    PendingRoute pending;
    RouteFinder routes;
    ProgressDrawing drawing;
    ChartClicks clicks;
};

VoyPortCallModule::VoyPortCallModule(VoyageStore* store, PortDirectory* ports)
    : parts_(std::make_unique<Parts>(store, *ports)) {}

VoyPortCallModule::~VoyPortCallModule() = default;

int VoyPortCallModule::LoadPortCalls(const std::string& vi, PortCallRows& rows) {
    return Seaplan::LoadPortCalls(vi, rows);
}

int VoyPortCallModule::LoadPositionBook(const std::string& vi, VoyPositionBook& book) {
    return Seaplan::LoadPositionBook(vi, book);
}

int VoyPortCallModule::EnsurePositionBook(const std::string& vi, const std::string& date, std::string& id) {
    return Seaplan::EnsurePositionBook(vi, date, id);
}

int VoyPortCallModule::SetPositionBookDate(const std::string& id, const std::string& date) {
    return Seaplan::SetPositionBookDate(id, date);
}

int VoyPortCallModule::SavePositionBookRows(const std::string& id, const BookPoints& rows) {
    return Seaplan::SavePositionBookRows(id, rows);
}

int VoyPortCallModule::SavePortCalls(const std::string& vi, PortCallRows& rows) {
    return Seaplan::SavePortCalls(vi, rows);
}

int VoyPortCallModule::SaveFigures(const std::string& vi, const BunkerFigures& figures) {
    return Seaplan::SaveFigures(vi, figures);
}

int VoyPortCallModule::GetRoute(const PortCallRows& rows, PortCallRows& results, bool wholeList) {
    return kGetRouteCodes.Of(parts_->routes.Find(rows, results, wholeList));
}

int VoyPortCallModule::GetStopsByCache(const PortCallRows& rows, RouteStops& out) {
    return kStopsByCacheCodes.Of(parts_->routes.StopsByCache(rows, out));
}

int VoyPortCallModule::LoadCache(const std::string& name, LegCache& cache) {
    ReadCacheFile(name, cache);
    return 0;
}

int VoyPortCallModule::SaveCache(const std::string& name, const LegCache& cache) {
    return WriteCacheFile(name, cache);
}

PendingRoute& VoyPortCallModule::Pending() {
    return parts_->pending;
}

RouteFinder& VoyPortCallModule::Routes() {
    return parts_->routes;
}

int VoyPortCallModule::RequestNearestRoute(const std::string& position, const std::string& portId,
                                           std::vector<std::string>& points) {
    return kNearestRouteCodes.Of(AskNearestRoute(position, portId, points));
}

int VoyPortCallModule::BookFromCurrentStops(BookPoints& rows) {
    return kBookOfRouteCodes.Of(parts_->routes.BookOfRoute(rows));
}

int VoyPortCallModule::PortPositions(const PortCallRows& rows, std::vector<RoutePointRow>& out) {
    return kPortPositionsCodes.Of(parts_->routes.PortPositions(rows, out));
}

VoyageLayer& VoyPortCallModule::Layer() {
    return parts_->layer;
}

int VoyPortCallModule::DrawCurrentRoute() {
    return parts_->layer.DrawRoute(parts_->pending.Stops(), parts_->routes.Ports());
}

int VoyPortCallModule::DrawBook(const VoyInfo& voyage) {
    PointTexts positions;
    for (const PosBookPoint& point : voyage.positionBook.points) {
        positions.push_back(point.position);
    }
    return parts_->layer.DrawBook(voyage.vi, positions);
}

int VoyPortCallModule::DrawPlannedProgress(const VoyInfo& voyage) {
    return kPlannedProgressCodes.Of(parts_->drawing.DrawPlanned(voyage));
}

int VoyPortCallModule::DrawAisProgress(const VoyInfo& voyage) {
    return kAisProgressCodes.Of(parts_->drawing.DrawCorrected(voyage));
}

void VoyPortCallModule::SetCursorSource(std::function<std::pair<int, int>()> source) {
    parts_->clicks.cursor = std::move(source);
}

void VoyPortCallModule::SetRouteListener(std::function<void()> listener) {
    parts_->clicks.routeChosen = std::move(listener);
}

}  // namespace Tarvik::Seaplan
