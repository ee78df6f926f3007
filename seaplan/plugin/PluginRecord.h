// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/core/PluginInfo.h>

namespace Tarvik::Seaplan {

/// The plug-in's one description record, the same at every call.
Plugin::CPluginInfo* PluginRecord();

}  // namespace Tarvik::Seaplan
