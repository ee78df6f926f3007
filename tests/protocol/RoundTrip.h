// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <tarvik/core/TObject.h>

#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "tarvik/src/core/BusTesting.h"
#include "tests/protocol/BusServer.h"

namespace Tarvik::Server {

/// The plug-in's protocol over the bus to the real server and back. Every block that crossed the bus must be
/// freed at the end.
class RoundTrip : public ::testing::Test {
  protected:
    ~RoundTrip() override { EXPECT_EQ(Core::BusTesting::LiveBlocks(), blocksBefore_); }

    /// What a plug-in knows that has just been started.
    Seaplan::VoyageStore Load() {
        Seaplan::VoyageStore fresh;
        EXPECT_EQ(Seaplan::VoyCatalogModule(&fresh).LoadAll(host.user), 0);
        return fresh;
    }

  private:
    const long blocksBefore_ = Core::BusTesting::LiveBlocks();

  protected:
    BusServer host;
    Seaplan::VoyageStore store;
    Seaplan::VoyCatalogModule module{&store};
};

}  // namespace Tarvik::Server
