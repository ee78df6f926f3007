// SPDX-License-Identifier: MIT
#include "host/client/services/Preferences.h"

#include <filesystem>
#include <fstream>
#include <functional>

#include <nlohmann/json.hpp>

#include <tarvik/skin/Colours.h>
#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/ServerUrl.h"

namespace Tarvik::Client {

namespace {

void Take(const nlohmann::json& root, const char* key, std::string& field,
          const std::function<bool(const std::string&)>& valid) {
    const auto member = root.find(key);
    if (member == root.end() || !member->is_string()) {
        return;
    }
    const auto text = member->get<std::string>();
    if (valid(text)) {
        field = text;
    }
}

}  // namespace

Preferences Preferences::Read(const std::string& file, const std::vector<Language>& languages) {
    Preferences read;
    std::ifstream in(file, std::ios::binary);
    const auto root = in ? nlohmann::json::parse(in, nullptr, false) : nlohmann::json();
    if (!root.is_object()) {
        return read;
    }
    Take(root, "language", read.language,
         [&languages](const std::string& text) { return IsOffered(languages, text); });
    Take(root, "timeZone", read.timeZone,
         [](const std::string& text) { return Util::DateTimeUtl::IsKnownZone(text); });
    Take(root, "theme", read.theme,
         [](const std::string& text) { return Skin::FindTheme(text).has_value(); });
    Take(root, "server", read.server,
         [](const std::string& text) { return text.empty() || IsServerAddress(text); });
    Take(root, "user", read.user, [](const std::string&) { return true; });
    const auto first = root.find("firstStart");
    read.firstStart = first != root.end() && first->is_boolean() && first->get<bool>();
    const auto parts = root.find("chart");
    if (parts != root.end() && parts->is_object()) {
        for (const auto& [part, shown] : parts->items()) {
            if (shown.is_boolean()) {
                read.chartParts[part] = shown.get<bool>();
            }
        }
    }
    return read;
}

bool Preferences::Write(const std::string& file, std::string& error) const {
    const nlohmann::json root{{"language", language},    {"timeZone", timeZone}, {"theme", theme},
                              {"server", server},        {"user", user},         {"chart", chartParts},
                              {"firstStart", firstStart}};
    const std::string fresh = file + ".new";
    {
        std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
        out << root.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << "\n";
        out.flush();
        if (!out) {
            error = "The preferences cannot be written to " + file +
                    ". Free some space or make the folder writable.";
            return false;
        }
    }
    std::error_code failed;
    std::filesystem::rename(fresh, file, failed);
    if (failed) {
        error = "The preferences cannot be written to " + file + " (" + failed.message() + ").";
    }
    return !failed;
}

bool IsServerAddress(const std::string& text) {
    return ServerUrl::Parse(text).has_value();
}

}  // namespace Tarvik::Client
