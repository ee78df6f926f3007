// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/client/services/LanguageFiles.h"
#include "host/client/services/SessionOptions.h"

namespace Tarvik::Client {

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

}  // namespace Tarvik::Client
