// SPDX-License-Identifier: MIT
#include <algorithm>
#include <arpa/inet.h>
#include <thread>

#include "host/server/api/Numbers.h"
#include "host/server/net/settings/Settings.h"
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

namespace {

constexpr int kMostThreads = 64;

SettingsEntry Text(std::string_view key, std::string Settings::*field, std::string_view meaning) {
    return {key, meaning,
            [field](Settings& settings, std::string_view text) {
                settings.*field = text;
                return std::string();
            },
            [field](const Settings& settings) { return settings.*field; }};
}

template <class Number>
SettingsEntry Whole(std::string_view key, Number Settings::*field, Number least, Number most,
                    std::string_view meaning) {
    return {key, meaning,
            [=](Settings& settings, std::string_view text) {
                const auto number = ParseInteger(text, least, most);
                if (!number) {
                    return "must be a whole number from " + std::to_string(least) + " to " +
                           std::to_string(most);
                }
                settings.*field = static_cast<Number>(*number);
                return std::string();
            },
            [field](const Settings& settings) { return std::to_string(settings.*field); }};
}

/// Degrees of latitude between two whole ones.
SettingsEntry Latitude(std::string_view key, double Settings::*field, int least, int most,
                       std::string_view meaning) {
    return {key, meaning,
            [=](Settings& settings, std::string_view text) {
                const auto number = ParseDecimal(text, least, most);
                if (!number) {
                    return "must be degrees from " + std::to_string(least) + " to " + std::to_string(most);
                }
                settings.*field = *number;
                return std::string();
            },
            [field](const Settings& settings) { return PrintDecimal(settings.*field, 0); }};
}

SettingsEntry YesNo(std::string_view key, bool Settings::*field, std::string_view meaning) {
    return {key, meaning,
            [field](Settings& settings, std::string_view text) {
                if (text != "yes" && text != "no") {
                    return std::string("must be yes or no");
                }
                settings.*field = text == "yes";
                return std::string();
            },
            [field](const Settings& settings) { return std::string(settings.*field ? "yes" : "no"); }};
}

SettingsEntry Address() {
    SettingsEntry entry =
        Text("address", &Settings::address, "numeric address to listen at; 0.0.0.0 or :: for all");
    const auto keep = entry.set;
    entry.set = [keep](Settings& settings, std::string_view text) {
        const std::string address(text);
        in6_addr room{};
        const bool numeric = inet_pton(AF_INET, address.c_str(), &room) == 1 ||
                             inet_pton(AF_INET6, address.c_str(), &room) == 1;
        return numeric ? keep(settings, text) : std::string("must be a numeric IPv4 or IPv6 address");
    };
    return entry;
}

SettingsEntry Database() {
    SettingsEntry entry = Text("database", &Settings::database,
                               "PostgreSQL data base instead of files in data: key=value pairs or a "
                               "postgresql:// address");
    const auto keep = entry.set;
    entry.set = [keep](Settings& settings, std::string_view text) {
        const std::string complaint = ComplaintAboutConnection(std::string(text));
        return complaint.empty() ? keep(settings, text) : complaint;
    };
    entry.secret = true;
    return entry;
}

std::vector<SettingsEntry> MakeTable() {
    return {
        Text("data", &Settings::data, "folder of the data bases; made when it is not there"),
        Database(),
        Text("network", &Settings::network,
             "file of the sea network; empty: the one beside the program; none: routes are refused"),
        Text("passages_forbidden", &Settings::passagesForbidden,
             "passages that no route uses, by name or id, parted by commas"),
        Text("passages_opened", &Settings::passagesOpened,
             "passages that routes use although they are shut unless asked for"),
        Text("areas_forbidden", &Settings::areasForbidden,
             "file of waters that no route touches, with the columns name and ring"),
        Latitude("northern_limit", &Settings::northernLimit, 0, 90, "no route runs north of this latitude"),
        Latitude("southern_limit", &Settings::southernLimit, -90, 0, "no route runs south of this latitude"),
        Address(),
        Whole<std::uint16_t>("port", &Settings::port, 0, 65535, "TCP port; 0 for any free one"),
        Text("tls_certificate", &Settings::tlsCertificate, "PEM file of the certificate chain"),
        Text("tls_key", &Settings::tlsKey, "PEM file of the certificate's key"),
        YesNo("allow_plain", &Settings::allowPlain,
              "listen beyond this machine without TLS, behind a proxy that has it"),
        Whole("workers", &Settings::workers, 1, kMostThreads, "threads that read for exchanges"),
        Whole("writers", &Settings::writers, 0, kMostThreads,
              "threads that change; 0: as many as the storage can use"),
        Whole("session_hours", &Settings::sessionHours, 1, 8760, "a login lasts this long"),
        Whole("login_attempts_per_user", &Settings::loginAttemptsPerUser, 0, 1000000,
              "failed logins of a user name before it has to wait; 0: no limit"),
        Whole("login_attempts_per_address", &Settings::loginAttemptsPerAddress, 0, 1000000,
              "failed logins from an address before it has to wait; 0: no limit"),
        Whole("login_window_minutes", &Settings::loginWindowMinutes, 1, 1440,
              "failed logins are forgotten after this"),
        Whole("max_body_kilobytes", &Settings::maxBodyKilobytes, 1, 16384, "largest request body"),
        Whole("max_connections", &Settings::maxConnections, 1, 100000, "open connections"),
        Whole("max_connections_per_address", &Settings::maxConnectionsPerAddress, 0, 100000,
              "open connections from one address; 0: no limit"),
        Whole("max_queue", &Settings::maxQueue, 1, 100000, "requests that may wait for a thread"),
        Whole("idle_seconds", &Settings::idleSeconds, 1, 3600, "a connection may be silent between requests"),
        Whole("request_seconds", &Settings::requestSeconds, 1, 3600,
              "for a request to arrive whole and for a reply to be taken"),
        Whole("stop_seconds", &Settings::stopSeconds, 0, 3600, "for begun requests when the server stops"),
        YesNo("log_requests", &Settings::logRequests, "a log line for every request"),
    };
}

}  // namespace

int DefaultWorkers() {
    constexpr int kLeast = 2;
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), kLeast, kMostThreads);
}

int WritersOf(const Settings& settings) {
    constexpr int kWithFiles = 32;
    constexpr int kLeast = 16;
    constexpr int kPerCore = 8;
    if (settings.writers > 0) {
        return settings.writers;
    }
    return settings.database.empty() ? kWithFiles
                                     : std::clamp(kPerCore * DefaultWorkers(), kLeast, kMostThreads);
}

const std::vector<SettingsEntry>& SettingsTable() {
    static const std::vector<SettingsEntry> table = MakeTable();
    return table;
}

}  // namespace Tarvik::Server
