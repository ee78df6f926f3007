// SPDX-License-Identifier: MIT
#include "host/server/net/settings/SettingsReader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <unistd.h>

#include <fmt/format.h>

#include "host/server/net/settings/Settings.h"

namespace Tarvik::Server {

namespace {

std::string_view Trim(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool IsKey(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char sign) {
        return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || (sign >= '0' && sign <= '9') ||
               sign == '_' || sign == '-';
    });
}

/// Gives what is wrong, or an empty text.
std::string SetKey(std::string_view key, std::string_view value, Settings& settings) {
    for (const SettingsEntry& entry : SettingsTable()) {
        if (entry.key != key) {
            continue;
        }
        const std::string complaint = entry.set(settings, value);
        if (complaint.empty()) {
            return {};
        }
        if (entry.secret) {
            return std::string(key) + " " + complaint;
        }
        return std::string(key) + " " + complaint + ", and \"" + std::string(value) + "\" is not";
    }
    return "there is no setting \"" + std::string(key) + "\"";
}

std::string SetLine(std::string_view line, std::set<std::string>& seen, Settings& settings) {
    const std::size_t equals = line.find('=');
    const std::string key(Trim(line.substr(0, equals)));
    // What is no key is not cited either: it may be a value with a password, for want of an earlier "=".
    if (equals == std::string_view::npos || !IsKey(key)) {
        return "a line must be of the form \"key = value\"";
    }
    if (!seen.insert(key).second) {
        return key + " is set twice";
    }
    return SetKey(key, Trim(line.substr(equals + 1)), settings);
}

bool ReadFile(const std::string& name, Settings& settings, std::string& error) {
    std::ifstream file(name, std::ios::binary);
    std::ostringstream text;
    if (file) {
        text << file.rdbuf();
    }
    if (!file || (!text && file.peek() != std::ifstream::traits_type::eof())) {
        error = "the settings file " + name + " cannot be read";
        return false;
    }
    return ReadSettingsText(text.str(), name, settings, error);
}

bool IsLoopback(const std::string& address) {
    return address.starts_with("127.") || address == "::1";
}

}  // namespace

Environment ReadEnvironment() {
    Environment environment;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string text(*entry);
        if (!text.starts_with(kVariablePrefix)) {
            continue;
        }
        const std::size_t equals = text.find('=');
        if (equals != std::string::npos) {
            environment[text.substr(0, equals)] = text.substr(equals + 1);
        }
    }
    return environment;
}

bool ReadSettingsText(std::string_view text, const std::string& name, Settings& settings,
                      std::string& error) {
    std::set<std::string> seen;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::string complaint = SetLine(line, seen, settings);
        if (complaint.empty()) {
            continue;
        }
        error = fmt::format("{}:{}: {}", name, number, complaint);
        return false;
    }
    return true;
}

bool ReadSettingsEnvironment(const Environment& environment, Settings& settings, std::string& error) {
    for (const auto& [name, value] : environment) {
        if (name == kFileVariable || !name.starts_with(kVariablePrefix)) {
            continue;
        }
        std::string key = name.substr(kVariablePrefix.size());
        std::transform(key.begin(), key.end(), key.begin(), [](char sign) {
            return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign + ('a' - 'A')) : sign;
        });
        const std::string complaint = SetKey(key, Trim(value), settings);
        if (complaint.empty()) {
            continue;
        }
        error = fmt::format("environment variable {}: {}", name, complaint);
        return false;
    }
    return true;
}

bool CheckSettings(const Settings& settings, std::string& error) {
    if (settings.data.empty()) {
        error = "data must name a folder";
    } else if (settings.tlsCertificate.empty() != settings.tlsKey.empty()) {
        error = "tls_certificate and tls_key must be set together";
    } else if (settings.tlsCertificate.empty() && !settings.allowPlain && !IsLoopback(settings.address)) {
        error = "at address " + settings.address +
                " passwords would cross the network in the clear: set tls_certificate and tls_key, or "
                "allow_plain = yes behind a proxy that has TLS";
    } else {
        return true;
    }
    return false;
}

bool ReadSettings(const std::string& file, const Environment& environment, Settings& settings,
                  std::string& error) {
    std::string name = file;
    const auto variable = environment.find(std::string(kFileVariable));
    if (name.empty() && variable != environment.end()) {
        name = variable->second;
    }
    std::error_code ignored;
    if (name.empty() && std::filesystem::exists(kUsualFile, ignored)) {
        name = kUsualFile;
    }
    if (!name.empty() && !ReadFile(name, settings, error)) {
        return false;
    }
    return ReadSettingsEnvironment(environment, settings, error) && CheckSettings(settings, error);
}

}  // namespace Tarvik::Server
