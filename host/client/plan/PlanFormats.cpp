// SPDX-License-Identifier: MIT
#include "host/client/plan/PlanFormats.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include <tarvik/util/StringUtl.h>

#include "seaplan/calculation/PortCallColumns.h"

namespace Tarvik::Client {

namespace {

using Json = nlohmann::ordered_json;
using Seaplan::PortCallRows;
using Util::StringUtl;

std::string TimeText(const Util::_datetime_t& time) {
    return time.fmt(Seaplan::kTimeFormat);
}

std::string Dump(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

/// "x,y" as two numbers.
std::pair<double, double> Position(const std::string& text) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const std::string y = comma < text.size() ? text.substr(comma + 1) : std::string();
    return {StringUtl::ToDouble(text.substr(0, comma)), StringUtl::ToDouble(y)};
}

Json Feature(const char* type, Json coordinates, Json properties) {
    return {{"type", "Feature"},
            {"geometry", {{"type", type}, {"coordinates", std::move(coordinates)}}},
            {"properties", std::move(properties)}};
}

Json PointFeature(const Seaplan::PosBookPoint& point) {
    const auto [x, y] = Position(point.position);
    return Feature("Point", Json::array({x, y}),
                   {{"kind", point.pst == Seaplan::PortPoint ? "port" : "routePoint"},
                    {"id", point.pointId},
                    {"name", point.psn},
                    {"eta", TimeText(point.eta)},
                    {"etd", TimeText(point.etd)}});
}

/// Rows in the units on show; those already standard stay as they are.
PortCallRows Shown(const PortCallRows& rows, const Seaplan::UnitSet& units) {
    PortCallRows shown;
    return Seaplan::FromStandardUnits(rows, units, shown) == 0 ? shown : rows;
}

std::vector<std::string> Header(const Seaplan::UnitSet& units, const LanguageFiles& texts) {
    std::vector<std::string> header;
    for (const Seaplan::PortCallColumnEntry& column : Seaplan::kPortCallColumns) {
        std::string text = texts.Text("Seaplan", column.title);
        if (const std::string unit = Seaplan::UnitLabel(units, column.unit); !unit.empty()) {
            text.append(" (").append(unit).append(")");
        }
        header.push_back(std::move(text));
    }
    return header;
}

std::vector<std::string> TotalsCells(const PortCallRows& shown) {
    Seaplan::CellTexts cells;
    cells[Seaplan::ColOrder] = Seaplan::kTotalsLabel;
    Seaplan::TotalsToCells(shown, cells);
    return {cells.begin(), cells.end()};
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

bool IsNumberColumn(std::size_t column) {
    return Seaplan::kPortCallColumns[column].kind == Seaplan::CellKind::Number;
}

/// The summary figures in the units on show.
std::string SummaryLine(const Seaplan::PlanResult& plan, const Seaplan::UnitSet& units,
                        const LanguageFiles& texts) {
    Seaplan::SummaryTexts shown;
    Seaplan::SummaryToTexts(plan.summary, units, shown);
    const auto label = [&units](Seaplan::UnitKind kind) { return Seaplan::UnitLabel(units, kind); };
    return texts.Text("Seaplan", "IDS_PORTCALL_AVARGERSPD") + " " + shown.averageSpeed + " " +
           label(Seaplan::UnitKind::Speed) + ", " + texts.Text("Seaplan", "IDS_PORTCALL_TOTLEDISTANCE") +
           " " + shown.totalDistance + " " + label(Seaplan::UnitKind::Distance) + ", " +
           texts.Text("Seaplan", "IDS_PORTCALL_TOTALTIME") + " " + shown.totalTime + " " +
           label(Seaplan::UnitKind::Time) + "\n";
}

}  // namespace

std::string PlanJson(const Seaplan::PlanResult& plan) {
    Json rows = Json::array();
    for (const Seaplan::VoyPortCall& row : plan.rows) {
        rows.push_back({{"ppi", row.ppi},
                        {"ppn", row.ppn},
                        {"pp", row.pp},
                        {"psp", double{row.psp}},
                        {"pw", double{row.pw}},
                        {"steamTime", double{row.steamTime}},
                        {"apt", double{row.apt}},
                        {"eta", TimeText(row.eta)},
                        {"etd", TimeText(row.etd)},
                        {"distance", double{row.distance}}});
    }
    Json route = Json::array();
    for (const Seaplan::PosBookPoint& point : plan.book) {
        const auto [x, y] = Position(point.position);
        route.push_back({{"x", x},
                         {"y", y},
                         {"kind", point.pst},
                         {"id", point.pointId},
                         {"name", point.psn},
                         {"psr", point.psr},
                         {"psp", double{point.psp}},
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

std::string PlanGeoJson(const Seaplan::PlanResult& plan) {
    Json features = Json::array();
    for (std::size_t i = 0; i < plan.linePieces.size(); ++i) {
        Json line = Json::array();
        for (const std::string& text : plan.linePieces[i]) {
            const auto [x, y] = Position(text);
            line.push_back(Json::array({x, y}));
        }
        features.push_back(Feature("LineString", std::move(line), {{"kind", "route"}, {"piece", i}}));
    }
    for (const Seaplan::PosBookPoint& point : plan.book) {
        const bool named = point.pst == Seaplan::PortPoint || point.pst == Seaplan::LongIdRoutePoint ||
                           point.pst == Seaplan::ShortIdRoutePoint;
        if (named) {
            features.push_back(PointFeature(point));
        }
    }
    return Dump(Json{{"type", "FeatureCollection"}, {"features", features}});
}

std::vector<std::vector<std::string>> PlanCells(const Seaplan::PlanResult& plan,
                                                const Seaplan::UnitSet& units, const LanguageFiles& texts) {
    const PortCallRows shown = Shown(plan.rows, units);
    std::vector<std::vector<std::string>> table{Header(units, texts)};
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Seaplan::CellTexts cells = Seaplan::RowToCells(static_cast<int>(i), shown[i]);
        table.emplace_back(cells.begin(), cells.end());
    }
    table.push_back(TotalsCells(shown));
    return table;
}

std::string PlanCsv(const Seaplan::PlanResult& plan, const Seaplan::UnitSet& units,
                    const LanguageFiles& texts) {
    std::string out;
    for (const auto& row : PlanCells(plan, units, texts)) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            out += (i == 0 ? "" : ",") + CsvField(row[i]);
        }
        out += "\n";
    }
    return out;
}

std::string PlanTable(const Seaplan::PlanResult& plan, const Seaplan::UnitSet& units, const std::string& zone,
                      const LanguageFiles& texts) {
    const auto table = PlanCells(plan, units, texts);
    std::vector<int> widths(Seaplan::PortCallColumnCount, 0);
    for (const auto& row : table) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], StringUtl::Width(row[i]));
        }
    }
    std::string out = texts.Text("Client", "ZONE_NAME") + ": " + zone + "\n";
    for (const auto& row : table) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string pad(static_cast<std::size_t>(widths[i] - StringUtl::Width(row[i])), ' ');
            line += (i == 0 ? "" : "  ") + (IsNumberColumn(i) ? pad + row[i] : row[i] + pad);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out += line + "\n";
    }
    return out + SummaryLine(plan, units, texts);
}

}  // namespace Tarvik::Client
