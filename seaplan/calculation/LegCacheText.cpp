// SPDX-License-Identifier: MIT
#include "seaplan/calculation/LegCacheText.h"

#include <istream>
#include <ostream>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/Units.h"
#include "seaplan/data/Outcome.h"
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

/// What is wrong with a line.
enum class LineStep {
    Empty,
    Sections,
    SectionCount,
    Head,
    HeadFields,
    Stamp,
    Segments,
    Segment,
    SegmentFields,
    Groups,
    Group,
    GroupFields,
    Alternatives
};
/// Numbers of ParseCacheLine.
constexpr CodeTable kCacheLineCodes{
    Code{LineStep::Empty, -1},        Code{LineStep::Sections, -2},   Code{LineStep::SectionCount, -3},
    Code{LineStep::Head, -4},         Code{LineStep::HeadFields, -5}, Code{LineStep::Stamp, -6},
    Code{LineStep::Segments, -7},     Code{LineStep::Segment, -8},    Code{LineStep::SegmentFields, -9},
    Code{LineStep::Groups, -10},      Code{LineStep::Group, -11},     Code{LineStep::GroupFields, -12},
    Code{LineStep::Alternatives, -13}};

using LineOutcome = Outcome<LineStep>;
using Texts = std::vector<std::string>;
using Util::StringUtl;

LineOutcome ParseHead(const std::string& text, RouteLegCacheEntry& entry) {
    Texts fields;
    if (!StringUtl::split(text, kField, fields)) {
        return LineStep::Head;
    }
    if (fields.size() != kHeadFields) {
        return LineStep::HeadFields;
    }
    const auto stamp = ReadTimeText(fields[0]);
    if (!stamp) {
        return LineStep::Stamp;
    }
    entry.stamp = *stamp;
    entry.from = fields[1];
    entry.to = fields[2];
    entry.stops[0].point_cd = fields[3];
    entry.stops[1].point_cd = fields[4];
    return {};
}

LineOutcome ParseSegments(const std::string& text, std::vector<RouteSegment>& segments) {
    Texts items;
    if (!StringUtl::split(text, kItem, items)) {
        return LineStep::Segments;
    }
    for (const auto& item : items) {
        Texts fields;
        if (!StringUtl::split(item, kField, fields)) {
            return LineStep::Segment;
        }
        if (fields.size() != kSegmentFields) {
            return LineStep::SegmentFields;
        }
        segments.push_back({fields[0], fields[1], fields[2], fields[3], 0});
    }
    return {};
}

LineOutcome ParseGroups(const std::string& text, std::vector<RoutePointGroup>& groups) {
    Texts items;
    if (!StringUtl::split(text, kItem, items)) {
        return LineStep::Groups;
    }
    for (const auto& item : items) {
        Texts fields;
        if (!StringUtl::split(item, kField, fields)) {
            return LineStep::Group;
        }
        if (fields.size() != kGroupFields) {
            return LineStep::GroupFields;
        }
        RoutePointGroup group;
        group.rp_id = fields[0];
        group.range = fields[1];
        if (!StringUtl::split(fields[2], kAlternative, group.alternatives)) {
            return LineStep::Alternatives;
        }
        groups.push_back(std::move(group));
    }
    return {};
}

LineOutcome ParseLine(const std::string& line, RouteLegCacheEntry& out) {
    if (line.empty()) {
        return LineStep::Empty;
    }
    Texts sections;
    if (!StringUtl::split(line, kSection, sections)) {
        return LineStep::Sections;
    }
    if (sections.size() != kSectionCount) {
        return LineStep::SectionCount;
    }
    RouteLegCacheEntry entry;
    entry.stops.resize(2);
    LineOutcome read = ParseHead(sections[0], entry);
    if (!read.Failed()) {
        read = ParseSegments(sections[1], entry.stops[1].routes);
    }
    if (!read.Failed()) {
        read = ParseGroups(sections[2], entry.stops[1].rp_groups);
    }
    if (read.Failed()) {
        return read;
    }
    entry.stops[1].rp_id_str = sections[3];
    out = std::move(entry);
    return {};
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
    return kCacheLineCodes.Of(ParseLine(line, out));
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
