// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/client/services/LanguageFiles.h"

namespace Tarvik::Client {

/// What the person chose on the command line for every way of running the client.
struct SessionOptions {
    std::string dataFolder;  ///< empty for the usual place
    bool verbose = false;
    std::string language;  ///< empty: the preference
    std::string timeZone;  ///< empty: the preference
    std::string theme;     ///< empty: the preference
    std::string server;    ///< an address or "embedded"; empty: the preference
    bool alone = false;    ///< only where no other client has the data folder open
};

/// The program's words, sorted.
struct CommandLine {
    SessionOptions session;
    bool help = false;
    bool version = false;
    bool plan = false;
    std::vector<std::string> planWords;  ///< what stands behind `plan`, without the options of both
    std::string screenshot;              ///< file for a picture of the window, empty for none
    int panel = 0;                       ///< panel to open for the picture, 0 for none
    std::string error;                   ///< one line about a bad word; the rest is then not valid
};

/// Reads the program's words without its name. The options of both ways of running may stand anywhere before
/// "--". `languages` are those that --lang may name.
CommandLine ParseCommandLine(const std::vector<std::string>& words, const std::vector<Language>& languages);

/// What `--help` prints. `languages` are the codes that --lang may name.
std::string HelpText(const std::vector<std::string>& languages);

}  // namespace Tarvik::Client
