// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanCommand.h"

#include <utility>

#include <tarvik/bus/BusCall.h>

#include "host/client/plan/PlanFormats.h"

namespace Tarvik::Client {

namespace {

std::string CandidateText(const Port& port) {
    return port.name + " (" + (port.unlocode.empty() ? "" : port.unlocode + ", ") + port.id + ")";
}

std::string MismatchText(const std::string& word, const PortMatch& match) {
    std::string text = match.kind == PortMatch::Kind::Ambiguous ? "The port \"" + word + "\" is ambiguous."
                                                                : "Unknown port \"" + word + "\".";
    if (match.candidates.empty()) {
        return text + " Give a port's name, UN/LOCODE or id.";
    }
    text += " Did you mean ";
    for (std::size_t i = 0; i < match.candidates.size(); ++i) {
        if (i > 0) {
            text += i + 1 == match.candidates.size() ? " or " : ", ";
        }
        text += CandidateText(match.candidates[i]);
    }
    return text + "?";
}

PlanOutcome FailureOf(const Seaplan::PlanResult& plan, const std::string& reason) {
    const bool badInput = plan.code == Seaplan::PlanUnknownPort || plan.code == Seaplan::PlanTooFewPorts ||
                          plan.code == Seaplan::PlanNameMissing || plan.code == Seaplan::PlanNameTaken;
    const char* advice = "See that the data folder has space and can be written, then try again.";
    if (badInput) {
        advice = "Change the command and try again.";
    }
    if (plan.code == Seaplan::PlanNotConnected) {
        advice = "Start the server or check its address in the preferences.";
    }
    if (plan.code == Seaplan::PlanNotCalculated) {
        advice = "Try other ports, speed or weather.";
    }
    std::string why = plan.step;
    if (!badInput && !reason.empty()) {
        why += " (" + reason + ")";
    }
    return {badInput ? kExitBadInput : kExitFailed, "The voyage was not planned: " + why + ". " + advice};
}

}  // namespace

PlanOutcome MakePlanRequest(const PlanArguments& arguments, const PortLookup& lookup,
                            Seaplan::PlanRequest& request) {
    request = {};
    std::string before;
    for (std::size_t i = 0; i < arguments.ports.size(); ++i) {
        const PortMatch match = lookup.Find(arguments.ports[i]);
        if (match.kind != PortMatch::Kind::Found) {
            return {kExitBadInput, MismatchText(arguments.ports[i], match)};
        }
        if (match.port.id == before) {
            return {kExitBadInput,
                    "The port \"" + arguments.ports[i] + "\" follows itself: leave it out once."};
        }
        before = match.port.id;
        request.ports.push_back({match.port.name, arguments.purposes[i], static_cast<float>(arguments.speed),
                                 static_cast<float>(arguments.weather),
                                 static_cast<float>(arguments.stays[i])});
    }
    if (arguments.depart) {
        request.start = *arguments.depart;
    }
    request.save = !arguments.saveVoyage.empty();
    request.category = arguments.saveCategory;
    request.voyage = arguments.saveVoyage;
    return {};
}

PlanOutcome CallPlanService(const Seaplan::PlanRequest& request, const Seaplan::PlanResult*& result,
                            const HostServices* services) {
    result = Interface::Call(Seaplan::kPlanVoyage, &request);
    if (!result) {
        return {kExitFailed,
                "The voyage plug-in is not loaded. Build or install the client again; --verbose tells why."};
    }
    if (result->code == Seaplan::PlanDone) {
        return {};
    }
    return FailureOf(*result, services ? services->LastFailure() : std::string());
}

std::string FormatPlan(const PlanArguments& arguments, const Seaplan::PlanResult& plan,
                       const std::string& zone, const LanguageFiles& texts) {
    const Seaplan::UnitSet units{arguments.speedUnit, arguments.distanceUnit, arguments.timeUnit};
    switch (arguments.format) {
        case PlanFormat::Json:
            return PlanJson(plan);
        case PlanFormat::GeoJson:
            return PlanGeoJson(plan);
        case PlanFormat::Csv:
            return PlanCsv(plan, units, texts);
        case PlanFormat::Table:
            break;
    }
    return PlanTable(plan, units, zone, texts);
}

}  // namespace Tarvik::Client
