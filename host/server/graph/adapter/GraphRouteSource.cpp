// SPDX-License-Identifier: MIT
#include "host/server/graph/adapter/GraphRouteSource.h"

#include <utility>

#include "host/server/api/Errors.h"
#include "host/server/graph/adapter/RouteMessages.h"

namespace Tarvik::Server {

// The protocol's one list of numbers has those of the search.
static_assert(static_cast<int>(ErrorCode::TooFewStops) == kRouteTooFewPoints);
static_assert(static_cast<int>(ErrorCode::UnknownStop) == kRouteUnknownPoint);
static_assert(static_cast<int>(ErrorCode::NoWay) == kRouteNoWay);
static_assert(static_cast<int>(ErrorCode::BadPosition) == kRouteBadPosition);

namespace {

std::vector<OwnPort> PortsOf(const std::vector<PlaceRecord>& places) {
    std::vector<OwnPort> ports;
    ports.reserve(places.size());
    for (const PlaceRecord& place : places) {
        ports.push_back({place.id, {place.longitude, place.latitude}});
    }
    return ports;
}

}  // namespace

std::unique_ptr<GraphRouteSource> GraphRouteSource::Open(const std::string& networkFile, std::string& error) {
    std::shared_ptr<const SeaNetwork> network = SeaNetwork::Load(networkFile, error);
    return network ? std::make_unique<GraphRouteSource>(std::move(network)) : nullptr;
}

GraphRouteSource::GraphRouteSource(std::shared_ptr<const SeaNetwork> network, RouteLimits standing)
    : engine_(std::move(network), std::move(standing)) {}

std::string GraphRouteSource::Plan(std::string_view requestJson) {
    return PlanWith(requestJson, {});
}

std::string GraphRouteSource::Nearest(std::string_view requestJson) {
    return NearestWith(requestJson, {});
}

std::string GraphRouteSource::PlanWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) {
    std::string error;
    const auto points = RouteMessages::ReadPlan(requestJson, error);
    return points ? RouteMessages::WritePlan(engine_.Plan(*points, PortsOf(own)))
                  : RouteMessages::WriteError(kRouteBadRequest, error);
}

std::string GraphRouteSource::NearestWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) {
    std::string error;
    const auto request = RouteMessages::ReadNearest(requestJson, error);
    return request ? RouteMessages::WriteNearest(
                         engine_.Nearest(request->position, request->destPort, PortsOf(own)))
                   : RouteMessages::WriteError(kRouteBadRequest, error);
}

}  // namespace Tarvik::Server
