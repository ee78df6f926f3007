// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanFormats.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/PointText.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Client {

namespace {

using Json = nlohmann::ordered_json;
using Interface::WaypointKind;
using Util::StringUtl;

std::string TimeText(const Util::_datetime_t& time) {
    return time.fmt(Util::kTimeFormat);
}

std::string Dump(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

Util::GeoPoint PlaceOf(const std::string& text) {
    return Util::ReadPoint(text).value_or(Util::GeoPoint());
}

Json Feature(const char* type, Json coordinates, Json properties) {
    return {{"type", "Feature"},
            {"geometry", {{"type", type}, {"coordinates", std::move(coordinates)}}},
            {"properties", std::move(properties)}};
}

Json PointFeature(const Interface::PlanWaypoint& point) {
    const auto [x, y] = PlaceOf(point.position);
    return Feature("Point", Json::array({x, y}),
                   {{"kind", point.kind == WaypointKind::Port ? "port" : "routePoint"},
                    {"id", point.id},
                    {"name", point.name},
                    {"eta", TimeText(point.eta)},
                    {"etd", TimeText(point.etd)}});
}

std::vector<std::string> Header(const Interface::PlanTable& table) {
    std::vector<std::string> header;
    for (const Interface::PlanColumn& column : table.columns) {
        header.push_back(column.unit.empty() ? column.title : column.title + " (" + column.unit + ")");
    }
    return header;
}

std::string CsvField(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') {
            quoted += '"';
        }
        quoted += c;
    }
    return quoted + "\"";
}

/// The summary figures as one row.
std::string SummaryLine(const Interface::PlanResult& plan) {
    std::string line;
    for (const Interface::PlanFigure& figure : plan.figures) {
        line += (line.empty() ? "" : ", ") + figure.title + " " + figure.text + " " + figure.unit;
    }
    return line + "\n";
}

}  // namespace

std::string PlanJson(const Interface::PlanResult& plan) {
    Json rows = Json::array();
    for (const Interface::PlanRow& row : plan.rows) {
        rows.push_back({{"ppi", row.portId},
                        {"ppn", row.portName},
                        {"pp", row.purpose},
                        {"psp", double{row.speed}},
                        {"pw", double{row.weather}},
                        {"steamTime", double{row.steamTime}},
                        {"apt", double{row.portTime}},
                        {"eta", TimeText(row.eta)},
                        {"etd", TimeText(row.etd)},
                        {"distance", double{row.distance}}});
    }
    Json route = Json::array();
    for (const Interface::PlanWaypoint& point : plan.route) {
        const auto [x, y] = PlaceOf(point.position);
        route.push_back({{"x", x},
                         {"y", y},
                         {"kind", static_cast<int>(point.kind)},
                         {"id", point.id},
                         {"name", point.name},
                         {"psr", point.sailing},
                         {"psp", double{point.speed}},
                         {"eta", TimeText(point.eta)},
                         {"etd", TimeText(point.etd)}});
    }
    const Json totals{{"portTime", double{plan.totals.portTime}},
                      {"steamTime", double{plan.totals.steamTime}},
                      {"distance", double{plan.totals.distance}},
                      {"eta", TimeText(plan.totals.eta)},
                      {"etd", TimeText(plan.totals.etd)}};
    const Json summary{{"averageSpeed", double{plan.summary.averageSpeed}},
                       {"totalTime", double{plan.summary.totalTime}},
                       {"totalDistance", double{plan.summary.totalDistance}}};
    return Dump(Json{{"rows", rows}, {"totals", totals}, {"summary", summary}, {"route", route}});
}

std::string PlanGeoJson(const Interface::PlanResult& plan) {
    Json features = Json::array();
    for (std::size_t i = 0; i < plan.linePieces.size(); ++i) {
        Json line = Json::array();
        for (const std::string& text : plan.linePieces[i]) {
            const auto [x, y] = PlaceOf(text);
            line.push_back(Json::array({x, y}));
        }
        features.push_back(Feature("LineString", std::move(line), {{"kind", "route"}, {"piece", i}}));
    }
    for (const Interface::PlanWaypoint& point : plan.route) {
        const bool named = point.kind == WaypointKind::Port || point.kind == WaypointKind::LongIdRoutePoint ||
                           point.kind == WaypointKind::ShortIdRoutePoint;
        if (named) {
            features.push_back(PointFeature(point));
        }
    }
    return Dump(Json{{"type", "FeatureCollection"}, {"features", features}});
}

std::vector<std::vector<std::string>> PlanCells(const Interface::PlanResult& plan) {
    std::vector<std::vector<std::string>> cells{Header(plan.table)};
    cells.insert(cells.end(), plan.table.rows.begin(), plan.table.rows.end());
    cells.push_back(plan.table.totals);
    return cells;
}

std::string PlanCsv(const Interface::PlanResult& plan) {
    std::string out;
    for (const auto& row : PlanCells(plan)) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            out += (i == 0 ? "" : ",") + CsvField(row[i]);
        }
        out += "\n";
    }
    return out;
}

std::string PlanTable(const Interface::PlanResult& plan, const std::string& zone,
                      const LanguageFiles& texts) {
    const auto cells = PlanCells(plan);
    const auto& columns = plan.table.columns;
    std::vector<int> widths(columns.size(), 0);
    for (const auto& row : cells) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], StringUtl::Width(row[i]));
        }
    }
    std::string out = texts.Text("Client", "ZONE_NAME") + ": " + zone + "\n";
    for (const auto& row : cells) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string pad(static_cast<std::size_t>(widths[i] - StringUtl::Width(row[i])), ' ');
            line += (i == 0 ? "" : "  ") + (columns[i].right ? pad + row[i] : row[i] + pad);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out += line + "\n";
    }
    return out + SummaryLine(plan);
}

std::string FormatPlan(const PlanArguments& arguments, const Interface::PlanResult& plan,
                       const std::string& zone, const LanguageFiles& texts) {
    switch (arguments.format) {
        case PlanFormat::Json:
            return PlanJson(plan);
        case PlanFormat::GeoJson:
            return PlanGeoJson(plan);
        case PlanFormat::Csv:
            return PlanCsv(plan);
        case PlanFormat::Table:
            break;
    }
    return PlanTable(plan, zone, texts);
}

}  // namespace Tarvik::Client
