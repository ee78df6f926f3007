// SPDX-License-Identifier: MIT
#include "seaplan/controllers/ProgressDrawing.h"

#include <tarvik/bus/BusCall.h>
#include <tarvik/util/DateTimeUtl.h>

#include "seaplan/calculation/PositionBook.h"

namespace Tarvik::Seaplan {

namespace {

using BookGroups = std::map<int, BookPoints>;

bool HasRows(const VoyInfo& voyage) {
    return voyage.portCalls.size() >= 2 && voyage.positionBook.points.size() >= 2;
}

/// The book's rows by port, one group for each port of the schedule.
Outcome<ProgressStep> GroupByPort(const PortCallRows& ports, const BookPoints& rows, BookGroups& groups) {
    if (GroupBookByPort(rows, groups) < 0) {
        return ProgressStep::Groups;
    }
    return groups.size() == ports.size() ? Outcome<ProgressStep>() : ProgressStep::GroupCount;
}

}  // namespace

Outcome<ProgressStep> ProgressDrawing::DrawPlanned(const VoyInfo& voyage) {
    if (!HasRows(voyage)) {
        return ProgressStep::TooFewRows;
    }
    if (layer_.SetupLayer() < 0) {
        return ProgressStep::Layer;
    }
    if (layer_.ClearRouteObjects() < 0) {
        return ProgressStep::Clear;
    }
    BookGroups groups;
    if (const auto failed = GroupByPort(voyage.portCalls, voyage.positionBook.points, groups);
        failed.Failed()) {
        return failed;
    }
    PlannedProgress progress;
    const int code = PlanProgress(voyage.portCalls, groups, Util::_datetime_t::now(), progress);
    return code < 0 ? Outcome<ProgressStep>(ProgressStep::Reckoning, code) : Show(voyage, progress);
}

Outcome<ProgressStep> ProgressDrawing::DrawCorrected(const VoyInfo& voyage) {
    if (!HasRows(voyage)) {
        return ProgressStep::TooFewRows;
    }
    if (layer_.SetupLayer() < 0) {
        return ProgressStep::Layer;
    }
    BookPoints rows = voyage.positionBook.points;
    if (ComputeBookTimes(voyage.positionBook.eta, voyage.portCalls, rows) < 0) {
        return ProgressStep::Times;
    }
    BookGroups groups;
    if (const auto failed = GroupByPort(voyage.portCalls, rows, groups); failed.Failed()) {
        return failed;
    }
    const std::string last = voyage.aisModTimes.empty() ? "" : voyage.aisModTimes.back();
    const auto correction = Util::DateTimeUtl::Parse(last);
    if (!correction) {
        return ProgressStep::NoCorrection;
    }
    PlannedProgress progress;
    const int code =
        CorrectedProgress(voyage.portCalls, groups, *correction, Util::_datetime_t::now(), progress);
    return code < 0 ? Outcome<ProgressStep>(ProgressStep::Reckoning, code) : Show(voyage, progress);
}

Outcome<ProgressStep> ProgressDrawing::Show(const VoyInfo& voyage, const PlannedProgress& progress) {
    const std::string& vi = voyage.vi;
    if (vi.empty()) {
        return ProgressStep::Id;
    }
    layer_.remainingLine.ref.id = vi;
    layer_.sailedLine.ref.id = vi;
    layer_.shipIcon.ref.id = vi;
    const PointTexts& remaining = progress.remaining;
    const PointTexts& sailed = progress.sailed;
    if (remaining.size() > 1 && layer_.DrawLine(layer_.remainingLine, remaining, 1) < 0) {
        return ProgressStep::Remaining;
    }
    if (sailed.size() > 1 && layer_.DrawLine(layer_.sailedLine, sailed, 0) < 0) {
        return ProgressStep::Sailed;
    }
    if (layer_.PlaceShip(layer_.shipIcon, progress.current) < 0) {
        return ProgressStep::Ship;
    }
    shipPositions_[vi] = progress.current;
    const Interface::TrvMapPlan plan = PlanOf(voyage, layer_.shipIcon.ref);
    Interface::Call(Interface::Bus::MapSetPlan, &plan);
    PointTexts all = remaining;
    all.insert(all.end(), sailed.begin(), sailed.end());
    return layer_.SetExtent(all) < 0 ? ProgressStep::Extent : Outcome<ProgressStep>();
}

std::string ProgressDrawing::ShipPosition(const std::string& vi) const {
    const auto found = shipPositions_.find(vi);
    return found == shipPositions_.end() ? "" : found->second;
}

}  // namespace Tarvik::Seaplan
