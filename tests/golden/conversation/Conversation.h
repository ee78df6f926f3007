// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "seaplan/data/VoyageStore.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "tests/protocol/BusServer.h"

namespace Tarvik::Server {

/// The plug-in's protocol against the real server, with everything that crosses the bus written down. At its
/// end the record must be the file of this name, byte by byte.
class Conversation : public ::testing::Test {
  protected:
    /// `file` without folder and ending.
    explicit Conversation(const std::string& file, std::unique_ptr<RouteSource> routes = nullptr);
    void TearDown() override;

    /// Writes down what was done, its result, and what was exchanged since the last note; gives the result.
    int Note(const std::string& what, int result);
    /// Loads everything into a fresh store, as a starting client does.
    void LoadAll(const std::string& what = "load everything");

    BusServer host;
    Seaplan::VoyageStore store;
    Seaplan::VoyCatalogModule module{&store};

  private:
    std::string path_;
    std::string record_;
    std::string exchanges_;  ///< since the last note
};

}  // namespace Tarvik::Server
