// SPDX-License-Identifier: MIT
#include "host/server/graph/report/StandingLimits.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "host/geo/CsvTable.h"
#include "host/server/graph/SeaNetwork.h"
#include "host/server/graph/report/Places.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kFewestCorners = 3;

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

/// The ids of a list of names; false for a name that no passage has.
bool ReadNames(const Places& places, std::string_view list, const char* key, std::vector<std::string>& ids,
               std::string& error) {
    while (!Trimmed(list).empty()) {
        const std::size_t comma = list.find(',');
        const std::string name = Trimmed(list.substr(0, comma));
        const std::string id = name.empty() ? name : places.PassageId(name);
        if (id.empty()) {
            error = std::string(key).append(": there is no passage \"").append(name).append("\"");
            return false;
        }
        ids.push_back(id);
        list = comma == std::string_view::npos ? std::string_view() : list.substr(comma + 1);
    }
    return true;
}

std::vector<std::string> TextsOf(const ForbiddenWaters& waters) {
    std::vector<std::string> texts;
    texts.reserve(waters.areas.size() + 2);
    for (const ForbiddenWaters::Area& area : waters.areas) {
        texts.push_back("area " + area.name);
    }
    if (waters.north < 90.0) {
        texts.push_back(fmt::format("north of {}", waters.north));
    }
    if (waters.south > -90.0) {
        texts.push_back(fmt::format("south of {}", waters.south));
    }
    return texts;
}

}  // namespace

std::optional<RouteLimits> ReadStandingLimits(const Places& places, const PassageLists& lists,
                                              std::string& error) {
    RouteLimits limits;
    if (!ReadNames(places, lists.forbidden, "passages_forbidden", limits.forbidden, error) ||
        !ReadNames(places, lists.opened, "passages_opened", limits.opened, error)) {
        return std::nullopt;
    }
    for (const std::string& id : limits.opened) {
        if (std::find(limits.forbidden.begin(), limits.forbidden.end(), id) != limits.forbidden.end()) {
            error = "passages_opened: passage " + id + " stands in passages_forbidden, too";
            return std::nullopt;
        }
    }
    return limits;
}

std::optional<ForbiddenWaters> ReadForbiddenWaters(const OperatorRules& rules, std::string& error) {
    ForbiddenWaters waters{{}, rules.north, rules.south};
    if (rules.areas.empty()) {
        return waters;
    }
    try {
        const Data::CsvTable table(Data::ReadFile(rules.areas));
        for (std::size_t i = 0; i < table.size(); ++i) {
            ForbiddenWaters::Area area{table.At(i, "name"), Data::ToLine(table.At(i, "ring"))};
            if (area.name.empty() || area.ring.size() < kFewestCorners) {
                throw std::runtime_error(
                    fmt::format("area {} \"{}\" needs a name and three corners", i + 1, area.name));
            }
            waters.areas.push_back(std::move(area));
        }
    } catch (const std::runtime_error& fault) {
        error = "areas_forbidden: " + rules.areas + ": " + fault.what();
        return std::nullopt;
    }
    return waters;
}

std::optional<RuledNetwork> LoadUnderRules(const std::string& networkFile, const OperatorRules& rules,
                                           std::string& error) {
    RuledNetwork ruled{SeaNetwork::Load(networkFile, error), {}, {}};
    if (ruled.network == nullptr) {
        return std::nullopt;
    }
    auto limits = ReadStandingLimits(Places(*ruled.network), rules.passages, error);
    const auto waters = limits ? ReadForbiddenWaters(rules, error) : std::nullopt;
    if (!waters) {
        return std::nullopt;
    }
    ruled.limits = std::move(*limits);
    ruled.waters = TextsOf(*waters);
    if (waters->Any()) {
        ruled.network = std::make_shared<const SeaNetwork>(Narrowed(ruled.network->data(), *waters));
    }
    return ruled;
}

}  // namespace Tarvik::Server
