// SPDX-License-Identifier: MIT
#include "host/server/graph/report/RouteFiles.h"

#include <filesystem>
#include <stdexcept>

namespace Tarvik::Server {

namespace {

template <typename Content>
std::optional<Content> Read(const std::filesystem::path& folder, const std::string& name) {
    const std::filesystem::path file = folder / name;
    if (!std::filesystem::exists(file)) {
        return std::nullopt;
    }
    try {
        return Content(Data::CsvTable(Data::ReadFile(file.string())));
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(name + ": " + error.what());
    }
}

}  // namespace

RouteFiles RouteFiles::Beside(const std::string& networkFile) {
    const std::filesystem::path folder = std::filesystem::path(networkFile).parent_path();
    return {Read<EmissionAreas>(folder, "emission_areas.csv"),
            Read<PassageLimits>(folder, "passage_limits.csv")};
}

}  // namespace Tarvik::Server
