// SPDX-License-Identifier: MIT
// The commands about routes: they read the network's file and need neither data bases nor a running server.
#include <optional>
#include <stdexcept>
#include <utility>

#include "host/server/graph/report/DistanceTable.h"
#include "host/server/graph/report/Places.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/program/Program.h"

namespace Tarvik::Server {

bool IsRouteCommand(const std::vector<std::string>& words) {
    return !words.empty() && (words[0] == "route" || (words[0] == "distances" && words.size() == 2));
}

bool RunRouteCommand(const std::vector<std::string>& words, const std::string& networkFile,
                     const PassageLists& lists, std::string& said) {
    const auto network = SeaNetwork::Load(networkFile, said);
    if (network == nullptr) {
        return false;
    }
    std::optional<RouteLimits> standing = ReadStandingLimits(Places(*network), lists, said);
    if (!standing) {
        return false;
    }
    if (words[0] == "distances") {
        try {
            const Data::CsvTable table(Data::ReadFile(words[1]));
            const auto lines = MeasureDistances(*network, RouteEngine(network, std::move(*standing)), table);
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
    question->standing = std::move(*standing);
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
