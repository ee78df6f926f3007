// SPDX-License-Identifier: MIT
#include <cmath>

#include <tarvik/interface/PlanTerms.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/panels/tree/TreeRules.h"
#include "seaplan/plugin/PlanAnswer.h"

namespace Tarvik::Seaplan {

using Interface::PlanPort;

PortCallRows RowsOf(const Interface::PlanRequest& request) {
    PortCallRows rows;
    for (const PlanPort& port : request.ports) {
        VoyPortCall row;
        row.ppn = port.name;
        row.pp = port.purpose;
        row.psp = port.speed;
        row.pw = port.weather;
        row.apt = port.portTime;
        row.eta = request.start;
        rows.push_back(row);
    }
    return rows;
}

std::string ComplaintOf(const PlanPort& port) {
    if (!(static_cast<double>(port.speed) >= Interface::kLeastKnots) || !std::isfinite(port.speed)) {
        return Util::StringUtl::Format("the speed must be above %g knots", Interface::kLeastKnots);
    }
    if (!(port.weather >= 0) || static_cast<double>(port.weather) >= Interface::kLeastFullWeather) {
        return "the weather factor must be from 0 to below 100 %";
    }
    return port.portTime >= 0 ? "" : "the hours in port must be 0 or more";
}

std::string ComplaintOfNames(const std::string& category, const std::string& voyage) {
    using Util::StringUtl;
    const bool fit =
        StringUtl::Width(category) <= kCategoryNameWidth && StringUtl::Width(voyage) <= kVoyageNameWidth;
    return fit ? ""
               : StringUtl::Format(
                     "a category's name has at most %d characters and a voyage's at most %d, wide "
                     "ones counted twice",
                     kCategoryNameWidth, kVoyageNameWidth);
}

}  // namespace Tarvik::Seaplan
