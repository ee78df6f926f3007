// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Client {

/// What the person chose on the command line for every way of running the client.
struct SessionOptions {
    std::string dataFolder;  ///< empty for the usual place
    bool verbose = false;
    std::string language;  ///< empty: the preference
    std::string timeZone;  ///< empty: the preference
    std::string theme;     ///< empty: the preference
    std::string server;    ///< an address or "embedded"; empty: the preference
};

}  // namespace Tarvik::Client
