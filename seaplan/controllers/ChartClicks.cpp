// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ChartClicks.h"

#include <tuple>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/interface/SiblingRecords.h>

#include "seaplan/calculation/PlannedProgress.h"
#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/controllers/RouteExchange.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

/// Answers of click handlers are texts of small numbers; null is success.
const char* AnswerOf(int result) {
    static const char* const texts[] = {"0", "-1", "-2", "-3", "-4", "-5"};
    return result == 0 ? nullptr : texts[-result];
}

/// The id that a click brings, empty for none.
std::string IdOf(const std::string* id) {
    return id == nullptr ? "" : *id;
}

/// The click channels are made as events and taken down as services; the bus keeps both in one table of
/// names.
Interface::Binding BindClick(const Interface::ClickEvent& click, ChartClicks* clicks,
                             const char* (ChartClicks::*handler)(const std::string*)) {
    return Interface::Announce(click, clicks, handler, Interface::BindingKind::ClickChannel);
}

/// Alternatives of a route point on the route. A point that lies on the way to several stops has those of the
/// last.
std::vector<std::string> AlternativesOf(const RouteStops& stops, const std::string& id) {
    std::vector<std::string> alternatives;
    for (const RouteStop& stop : stops) {
        for (const RoutePointGroup& group : stop.rp_groups) {
            if (group.rp_id == id) {
                alternatives = group.alternatives;
            }
        }
    }
    return alternatives;
}

}  // namespace

ChartClicks::ChartClicks(VoyageStore* store, VoyageLayer& layer, RouteFinder& routes,
                         ProgressDrawing& drawing)
    : store_(store),
      layer_(layer),
      routes_(routes),
      drawing_(drawing),
      routePointClick_(BindClick(Bus::ClickVoyageType, this, &ChartClicks::OnRoutePoint)),
      alternativeClick_(BindClick(Bus::ClickRoutePointType, this, &ChartClicks::OnAlternative)),
      shipClick_(BindClick(Bus::ClickAisShipType, this, &ChartClicks::OnShip)) {}

const char* ChartClicks::OnRoutePoint(const std::string* id) {
    return AnswerOf(kRoutePointClickCodes.Of(ShowAlternatives(IdOf(id))));
}

const char* ChartClicks::OnAlternative(const std::string* id) {
    return AnswerOf(kAlternativeClickCodes.Of(id == nullptr ? ClickStep::Id : ChooseAlternative(IdOf(id))));
}

const char* ChartClicks::OnShip(const std::string* vi) {
    return AnswerOf(kShipClickCodes.Of(ShowVesselCard(IdOf(vi))));
}

Outcome<ClickStep> ChartClicks::ShowAlternatives(const std::string& id) {
    const PortDirectory& ports = routes_.Ports();
    const RoutePointRow* clicked = ports.FindReadRoutePoint(id);
    if (clicked == nullptr) {
        return ClickStep::Id;
    }
    PointTexts extent{clicked->position};
    clickedRoutePoint_ = id;
    layer_.ClearAlternatives();
    for (const std::string& alternative : AlternativesOf(routes_.Pending().Stops(), id)) {
        const RoutePointRow* found = ports.FindReadRoutePoint(alternative);
        if (found == nullptr) {
            return ClickStep::Alternative;
        }
        extent.push_back(found->position);
        layer_.AddAlternativeLabel(*found);
    }
    return layer_.SetExtent(extent) < 0 ? ClickStep::Extent : Outcome<ClickStep>();
}

Outcome<ClickStep> ChartClicks::ChooseAlternative(const std::string& id) {
    if (clickedRoutePoint_.empty()) {
        return ClickStep::Id;
    }
    std::string text;
    if (!AlternativeRequestText(routes_.Pending().Stops(), clickedRoutePoint_, id, text)) {
        return ClickStep::Group;
    }
    RouteStops stops;
    if (const auto asked = AskRoute(text, stops); asked.Failed()) {
        return asked.At() == RouteStep::Send ? ClickStep::Send : ClickStep::Parse;
    }
    routes_.Pending().Change(std::move(stops));
    const int drawn = layer_.DrawRoute(routes_.Pending().Stops(), routes_.Ports());
    if (routeChosen) {
        routeChosen();
    }
    return drawn < 0 ? ClickStep::Draw : Outcome<ClickStep>();
}

Outcome<ClickStep> ChartClicks::ShowVesselCard(const std::string& vi) {
    if (vi.empty()) {
        return ClickStep::Id;
    }
    const VoyInfo* voyage = store_->FindVoyage(vi);
    if (voyage == nullptr) {
        return ClickStep::Voyage;
    }
    Interface::VesselCard card = VesselCardOf(*voyage, drawing_.ShipPosition(vi), Util::_datetime_t::now());
    if (cursor) {
        std::tie(card.cursorX, card.cursorY) = cursor();
    }
    Interface::Call(Bus::ShowVesselCard, &std::as_const(card));
    return {};
}

}  // namespace Tarvik::Seaplan
