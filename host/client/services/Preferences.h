// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/LanguageFiles.h"

namespace Tarvik::Client {

/// What the person chose; kept in one JSON file of the data folder.
struct Preferences {
    std::string language = kReferenceLanguage;
    /// Zone in which times are shown and typed. Plan times are stored in this very zone's reading, so that
    /// with it what was saved comes back as it was.
    std::string timeZone = Util::kPlanZone;
    /// "light", "dark" or "night".
    std::string theme = "light";
    /// Address of a voyage server, "https://host:port" or "http://host:port"; empty for the one inside the
    /// client.
    std::string server;
    /// Who logged in at that server last.
    std::string user;
    /// Parts of the chart that a person showed or hid, by the chart's names; the others are as the chart has
    /// them.
    std::map<std::string, bool> chartParts{};
    /// Whether a person who started for the first time has still to choose how to begin.
    bool firstStart = false;

    /// What the file says; the usual values for whatever it lacks or says wrongly, and for a file that is
    /// none. A language that is not among `languages` is wrong.
    static Preferences Read(const std::string& file, const std::vector<Language>& languages);
    /// Replaces the file in one step. False with a line that says what to do.
    bool Write(const std::string& file, std::string& error) const;
    bool operator==(const Preferences&) const = default;
};

/// Whether a text has the form of a voyage server's address.
bool IsServerAddress(const std::string& text);

}  // namespace Tarvik::Client
