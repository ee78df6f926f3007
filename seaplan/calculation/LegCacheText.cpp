// SPDX-License-Identifier: MIT
#include "seaplan/calculation/LegCacheText.h"

#include <istream>
#include <ostream>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/data/TimeText.h"

namespace Tarvik::Seaplan {

namespace {

// From the outside in. Nothing is escaped: a name that holds a separator breaks its line.
constexpr const char* kSection = ":---:";
constexpr const char* kItem = ":--:";
constexpr const char* kField = ":-:";
constexpr const char* kAlternative = "::";
constexpr std::size_t kSectionCount = 4;
constexpr std::size_t kHeadFields = 5;
constexpr std::size_t kSegmentFields = 4;
constexpr std::size_t kGroupFields = 3;

using Texts = std::vector<std::string>;
using Util::StringUtl;

int ParseHead(const std::string& text, RouteLegCacheEntry& entry) {
    Texts fields;
    if (!StringUtl::split(text, kField, fields)) {
        return -4;
    }
    if (fields.size() != kHeadFields) {
        return -5;
    }
    const auto stamp = ReadTimeText(fields[0]);
    if (!stamp) {
        return -6;
    }
    entry.stamp = *stamp;
    entry.from = fields[1];
    entry.to = fields[2];
    entry.stops[0].point_cd = fields[3];
    entry.stops[1].point_cd = fields[4];
    return 0;
}

int ParseSegments(const std::string& text, std::vector<RouteSegment>& segments) {
    Texts items;
    if (!StringUtl::split(text, kItem, items)) {
        return -7;
    }
    for (const auto& item : items) {
        Texts fields;
        if (!StringUtl::split(item, kField, fields)) {
            return -8;
        }
        if (fields.size() != kSegmentFields) {
            return -9;
        }
        segments.push_back({fields[0], fields[1], fields[2], fields[3], 0});
    }
    return 0;
}

int ParseGroups(const std::string& text, std::vector<RoutePointGroup>& groups) {
    Texts items;
    if (!StringUtl::split(text, kItem, items)) {
        return -10;
    }
    for (const auto& item : items) {
        Texts fields;
        if (!StringUtl::split(item, kField, fields)) {
            return -11;
        }
        if (fields.size() != kGroupFields) {
            return -12;
        }
        RoutePointGroup group;
        group.rp_id = fields[0];
        group.range = fields[1];
        if (!StringUtl::split(fields[2], kAlternative, group.alternatives)) {
            return -13;
        }
        groups.push_back(std::move(group));
    }
    return 0;
}

void WriteSegments(std::ostream& out, const std::vector<RouteSegment>& segments) {
    for (const auto& segment : segments) {
        out << segment.route << kField << segment.from_cd << kField << segment.end_cd << kField
            << segment.pointset << (&segment == &segments.back() ? kSection : kItem);
    }
}

void WriteGroups(std::ostream& out, const std::vector<RoutePointGroup>& groups) {
    if (groups.empty()) {
        out << kSection;
    }
    for (const auto& group : groups) {
        out << group.rp_id << kField << group.range << kField;
        for (const auto& alternative : group.alternatives) {
            out << (&alternative == &group.alternatives.front() ? "" : kAlternative) << alternative;
        }
        out << (&group == &groups.back() ? kSection : kItem);
    }
}

}  // namespace

std::string LegCacheKey(const std::string& from, const std::string& to) {
    return from + "-" + to;
}

int ParseCacheLine(const std::string& line, RouteLegCacheEntry& out) {
    if (line.empty()) {
        return -1;
    }
    Texts sections;
    if (!StringUtl::split(line, kSection, sections)) {
        return -2;
    }
    if (sections.size() != kSectionCount) {
        return -3;
    }
    RouteLegCacheEntry entry;
    entry.stops.resize(2);
    int code = ParseHead(sections[0], entry);
    if (code == 0) {
        code = ParseSegments(sections[1], entry.stops[1].routes);
    }
    if (code == 0) {
        code = ParseGroups(sections[2], entry.stops[1].rp_groups);
    }
    if (code != 0) {
        return code;
    }
    entry.stops[1].rp_id_str = sections[3];
    out = std::move(entry);
    return 0;
}

void ReadCache(std::istream& in, LegCache& cache) {
    std::string line;
    while (std::getline(in, line)) {
        while (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        RouteLegCacheEntry entry;
        if (ParseCacheLine(line, entry) == 0) {
            cache[LegCacheKey(entry.from, entry.to)] = std::move(entry);
        }
    }
}

// A leg without segments writes no section for them. Its line is one section short and will not be read
// again, so the leg is fetched anew.
int WriteCache(std::ostream& out, const LegCache& cache) {
    for (const auto& [key, entry] : cache) {
        if (entry.stops.size() != 2) {
            return -1;
        }
        const auto& end = entry.stops[1];
        out << entry.stamp.fmt(kTimeFormat) << kField << entry.from << kField << entry.to << kField
            << entry.stops[0].point_cd << kField << end.point_cd << kSection;
        WriteSegments(out, end.routes);
        WriteGroups(out, end.rp_groups);
        out << end.rp_id_str << '\n';
    }
    return 0;
}

int IsStale(const RouteLegCacheEntry& entry, const Util::_datetime_t& epoch, float maxAgeHours,
            const Util::_datetime_t& now) {
    if (epoch > entry.stamp) {
        return 1;
    }
    Util::_datetime_t limit = now;
    if (AddHours(-maxAgeHours, limit) != 0) {
        return -5;
    }
    return limit > entry.stamp ? 1 : 0;
}

}  // namespace Tarvik::Seaplan
