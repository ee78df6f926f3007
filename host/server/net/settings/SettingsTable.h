// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/server/net/settings/Settings.h"

namespace Tarvik::Server {

/// One key of the settings.
struct SettingsEntry {
    std::string_view key;
    std::string_view meaning;
    /// Sets the value; gives what it must be when the text is none, else an empty text.
    std::function<std::string(Settings&, std::string_view)> set;
    std::function<std::string(const Settings&)> print;
    bool secret = false;  ///< whether the value must not be shown
};

/// All keys in the order of the documentation.
const std::vector<SettingsEntry>& SettingsTable();

}  // namespace Tarvik::Server
