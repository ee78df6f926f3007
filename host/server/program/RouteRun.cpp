// SPDX-License-Identifier: MIT
// The commands about routes: they read the network's file and need neither data bases nor a running server.
#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>

#include "host/server/graph/report/DistanceTable.h"
#include "host/server/graph/report/PortTable.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/program/Program.h"

namespace Tarvik::Server {

namespace {

constexpr std::string_view kAllPorts = "--all";

}  // namespace

bool IsRouteCommand(const std::vector<std::string>& words) {
    return !words.empty() && (words[0] == "route" || (words[0] == "distances" && words.size() == 2));
}

bool RunRouteCommand(const std::vector<std::string>& words, const std::string& networkFile,
                     const OperatorRules& rules, std::string& said) {
    std::optional<RuledNetwork> ruled = LoadUnderRules(networkFile, rules, said);
    if (!ruled) {
        return false;
    }
    const auto& network = ruled->network;
    if (words[0] == "distances" && words[1] == kAllPorts) {
        const PortTable table(*network, ruled->limits, std::max(1U, std::thread::hardware_concurrency()));
        said = table.Text(*network);
        return true;
    }
    if (words[0] == "distances") {
        try {
            const Data::CsvTable table(Data::ReadFile(words[1]));
            const auto lines =
                MeasureDistances(*network, RouteEngine(network, std::move(ruled->limits)), table);
            said = DistanceText(lines) + DistanceStatistics(lines);
            return true;
        } catch (const std::runtime_error& error) {
            said = error.what();
            return false;
        }
    }
    auto question = ReadRouteQuestion({words.begin() + 1, words.end()}, said);
    if (!question) {
        return false;
    }
    question->standing = std::move(ruled->limits);
    question->waters = std::move(ruled->waters);
    try {
        const auto text = RouteText(*network, RouteFiles::Beside(networkFile), *question, said);
        said = text ? *text : said;
        return text.has_value();
    } catch (const std::runtime_error& error) {
        said = error.what();
        return false;
    }
}

}  // namespace Tarvik::Server
