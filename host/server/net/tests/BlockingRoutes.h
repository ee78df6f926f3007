// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <future>

#include "host/server/api/RouteSource.h"

namespace Tarvik::Server {

/// Answers a route only when the test lets it.
class BlockingRoutes : public RouteSource {
  public:
    struct Gate {
        std::promise<void> entered;
        std::promise<void> released;
        std::atomic<int> finished{0};
    };
    explicit BlockingRoutes(Gate& gate) : gate_(gate), released_(gate.released.get_future()) {}

    std::string Plan(std::string_view /*requestJson*/) override {
        gate_.entered.set_value();
        released_.wait();
        ++gate_.finished;
        return "{\"eid\":0}";
    }
    std::string Nearest(std::string_view /*requestJson*/) override { return "{\"eid\":0}"; }

  private:
    Gate& gate_;
    std::shared_future<void> released_;
};

}  // namespace Tarvik::Server
