// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/server/api/Errors.h"
#include "host/server/api/RouteSource.h"
#include "host/server/api/VoyageService.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

/// Answers both route commands with its name and the request.
class EchoRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view requestJson) override { return "plan " + std::string(requestJson); }
    std::string Nearest(std::string_view requestJson) override {
        return "nearest " + std::string(requestJson);
    }
    std::string PlanWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) override {
        return Plan(requestJson) + NamesOf(own);
    }
    std::string NearestWith(std::string_view requestJson, const std::vector<PlaceRecord>& own) override {
        return Nearest(requestJson) + NamesOf(own);
    }
    bool KnowsPort(const std::string& id) override { return id != unknownPort; }

    std::string unknownPort;

  private:
    static std::string NamesOf(const std::vector<PlaceRecord>& own) {
        std::string names;
        for (const PlaceRecord& place : own) {
            names += " of " + place.name;
        }
        return names;
    }
};

/// One request text, with the remark module meant by `command` kRemark, and the reply that it must get.
struct Step {
    int command;
    std::string text;
    std::string reply;
};

/// Stands for command 9 of the remark module.
inline constexpr int kRemark = 0x9009;

/// Ids of what MakeWorld made.
struct World {
    std::string category;
    std::string voyage;
    std::string book;
    std::string binnedCategory;
    std::string binnedVoyage;  ///< in `category`
    std::string emptyBook;     ///< of `binnedVoyage`
};

/// The service on a data base in memory, with a clock that the test sets.
class ServiceTest : public ::testing::Test {
  protected:
    ServiceTest();

    /// The reply to one request of a user.
    std::string Send(int command, const std::string& text, const std::string& user = "ann");
    /// Sends each text and compares its reply byte by byte.
    void Converse(const std::vector<Step>& steps, const std::string& user = "ann");
    /// Makes for a user one record of each kind, over the protocol.
    World MakeWorld(const std::string& user = "ann");
    /// Everything that requests of a user can read of ids up to 1000030, as one text.
    std::string Everything(const std::string& user = "ann");
    /// Member `eid` of a reply; -1 when it has none or does not parse.
    static int Eid(const std::string& reply);
    static std::string Emsg(const std::string& reply);

    std::int64_t now_ = 1772323200;
    EchoRoutes routes_;

  private:
    std::string Create(int command, const std::string& text, const char* key, const std::string& user);

    std::unique_ptr<SqliteStorage> storage_;
    std::unique_ptr<VoyageService> service_;
};

}  // namespace Tarvik::Server
