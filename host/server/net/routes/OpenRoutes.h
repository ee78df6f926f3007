// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/api/RouteSource.h"

#include <memory>
#include <string>

namespace Tarvik::Server {

/// The source of routes over a network file; for an empty name one that refuses every request. Null, with an
/// English text in `error`, when the file cannot be used.
std::unique_ptr<RouteSource> OpenRoutes(const std::string& networkFile, std::string& error);

}  // namespace Tarvik::Server
