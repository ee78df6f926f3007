// SPDX-License-Identifier: MIT
#pragma once

#include <future>
#include <memory>
#include <string>

#include "host/server/api/RouteSource.h"

namespace Tarvik::Client {

/// Routes from a network file that is read on a thread of its own; the first request waits for the end of the
/// reading.
class LateRouteSource : public Server::RouteSource {
  public:
    explicit LateRouteSource(const std::string& networkFile);
    std::string Plan(std::string_view requestJson) override;
    std::string Nearest(std::string_view requestJson) override;

  private:
    struct Loaded {
        std::unique_ptr<Server::RouteSource> source;
        std::string failure;  ///< reply to every request when there is no source
    };
    static Loaded Load(const std::string& networkFile);

    std::shared_future<std::shared_ptr<Loaded>> loaded_;
};

}  // namespace Tarvik::Client
