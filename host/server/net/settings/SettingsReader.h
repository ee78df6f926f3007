// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "host/server/net/settings/Settings.h"

namespace Tarvik::Server {

using Environment = std::map<std::string, std::string>;

/// Beginning of the name of every environment variable that sets a key: SEAPLAN_SERVER_PORT sets `port`.
inline constexpr std::string_view kVariablePrefix = "SEAPLAN_SERVER_";
/// Names the settings file in the environment.
inline constexpr std::string_view kFileVariable = "SEAPLAN_SERVER_SETTINGS";
/// Settings file that is read, if it is there, when none is named.
inline constexpr std::string_view kUsualFile = "/etc/seaplan-server.conf";

/// The variables of this process that begin with the prefix.
Environment ReadEnvironment();

/// Takes lines "key = value" into `settings`; blank lines and lines that begin with "#" are skipped. False,
/// with one line "NAME:LINE: …" in `error`, for an unknown or repeated key or a bad value.
bool ReadSettingsText(std::string_view text, const std::string& name, Settings& settings, std::string& error);

/// Takes the variables into `settings`. False, with one line in `error`, for an unknown one or a bad value.
bool ReadSettingsEnvironment(const Environment& environment, Settings& settings, std::string& error);

/// What only all settings together can break. False with one line in `error`.
bool CheckSettings(const Settings& settings, std::string& error);

/// Defaults, then the settings file, then the environment. `file` is the one of the command line, empty for
/// none; then the environment's or the usual one is read. False with one line in `error`.
bool ReadSettings(const std::string& file, const Environment& environment, Settings& settings,
                  std::string& error);

}  // namespace Tarvik::Server
