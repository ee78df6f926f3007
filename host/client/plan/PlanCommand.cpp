// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanCommand.h"

#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/VoyageContract.h>

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

PlanOutcome FailureOf(const Interface::PlanResult& plan, const std::string& reason) {
    const bool badInput = plan.code == Interface::PlanUnknownPort ||
                          plan.code == Interface::PlanTooFewPorts ||
                          plan.code == Interface::PlanNameMissing || plan.code == Interface::PlanNameTaken;
    const char* advice = "See that the data folder has space and can be written, then try again.";
    if (badInput) {
        advice = "Change the command and try again.";
    }
    if (plan.code == Interface::PlanNotConnected) {
        advice = "Start the server or check its address in the preferences.";
    }
    if (plan.code == Interface::PlanNotCalculated) {
        advice = "Try other ports, speed or weather.";
    }
    std::string why = plan.step;
    if (!badInput && !reason.empty()) {
        why += " (" + reason + ")";
    }
    return {badInput ? kExitBadInput : kExitFailed, "The voyage was not planned: " + why + ". " + advice};
}

std::string LinesOf(const std::vector<std::string>& notes) {
    std::string lines;
    for (const std::string& note : notes) {
        lines += (lines.empty() ? "" : "\n") + note;
    }
    return lines;
}

}  // namespace

PlanOutcome MakePlanRequest(const PlanArguments& arguments, const PortLookup& lookup, const std::string& zone,
                            Interface::PlanRequest& request) {
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
        request.start = arguments.depart->In(zone);
    }
    request.save = !arguments.saveVoyage.empty();
    request.category = arguments.saveCategory;
    request.voyage = arguments.saveVoyage;
    request.units = {arguments.speedUnit, arguments.distanceUnit, arguments.timeUnit};
    return {};
}

PlanOutcome CallPlanService(const Interface::PlanRequest& request, const Interface::PlanResult*& result,
                            const HostServices* services) {
    result = Interface::Call(Interface::Bus::PlanVoyage, &request);
    if (!result) {
        return {kExitFailed,
                "The voyage plug-in is not loaded. Build or install the client again; --verbose tells why."};
    }
    if (result->code == Interface::PlanDone) {
        return {kExitDone, LinesOf(result->notes)};
    }
    return FailureOf(*result, services ? services->LastFailure() : std::string());
}

}  // namespace Tarvik::Client
