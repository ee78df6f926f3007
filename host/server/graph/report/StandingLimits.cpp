// SPDX-License-Identifier: MIT
#include "host/server/graph/report/StandingLimits.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "host/server/graph/report/Places.h"

namespace Tarvik::Server {

namespace {

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

}  // namespace Tarvik::Server
