// SPDX-License-Identifier: MIT
#include "host/plugins/ais/services/Settings.h"

#include <filesystem>
#include <fstream>

#include <nlohmann/json.hpp>

namespace Tarvik::Ais {

using nlohmann::json;

Settings Settings::Read(const std::string& file) {
    Settings settings;
    std::ifstream in(file, std::ios::binary);
    const json text = json::parse(in, nullptr, false);
    if (!text.is_object()) {
        return settings;
    }
    if (const auto inputs = text.find("inputs"); inputs != text.end() && inputs->is_array()) {
        for (const json& input : *inputs) {
            if (input.is_string()) {
                settings.inputs.push_back(input.get<std::string>());
            }
        }
    }
    if (const auto ships = text.find("showShips"); ships != text.end() && ships->is_boolean()) {
        settings.showShips = ships->get<bool>();
    }
    return settings;
}

bool Settings::Write(const std::string& file) const {
    const json text{{"inputs", inputs}, {"showShips", showShips}};
    const std::string fresh = file + ".new";
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(file).parent_path(), error);
    {
        std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
        out << text.dump(1, ' ', false, json::error_handler_t::replace) << '\n';
        if (!out.flush()) {
            return false;
        }
    }
    std::filesystem::rename(fresh, file, error);
    return !error;
}

}  // namespace Tarvik::Ais
