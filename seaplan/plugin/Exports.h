// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/core/PluginInfo.h>

/// What the exports of the library answer with.
namespace Tarvik::Seaplan {

/// The plug-in's one description record, the same at every call.
Plugin::CPluginInfo* PluginRecord();

/// Makes the main view and has it register with the host. False when no window could be made. Built in two
/// ways, with windows and without.
bool CreateMainView();

}  // namespace Tarvik::Seaplan
