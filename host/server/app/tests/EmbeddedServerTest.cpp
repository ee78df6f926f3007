// SPDX-License-Identifier: MIT
#include <cstring>
#include <fstream>
#include <new>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/server/app/EmbeddedServer.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

class NamedRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view) override { return "[]"; }
    std::string Nearest(std::string_view) override { return R"({"pointset":""})"; }
};

/// A request block as it crosses the bus.
class Block {
  public:
    Block(std::uint16_t command, std::uint16_t moduleWord, const std::string& payload)
        : bytes_(sizeof(Interface::VoyServerRequest) + payload.size()) {
        head_ = new (bytes_.data()) Interface::VoyServerRequest;
        head_->length = static_cast<std::uint32_t>(payload.size());
        head_->command = command;
        head_->moduleWord = moduleWord;
        std::memcpy(head_->Payload(), payload.data(), payload.size());
    }
    Interface::VoyServerRequest* Get() { return head_; }

  private:
    std::vector<char> bytes_;
    Interface::VoyServerRequest* head_;
};

class EmbeddedServerTest : public ::testing::Test {
  protected:
    std::unique_ptr<EmbeddedServer> Open(const std::string& path) {
        return EmbeddedServer::Open(path, std::make_unique<NamedRoutes>(), error_);
    }
    static std::string Ask(EmbeddedServer& server, std::uint16_t command, const std::string& payload,
                           std::uint16_t moduleWord = Interface::kVoyageModuleWord) {
        return server.Exchange("ann", Block(command, moduleWord, payload).Get());
    }

    std::string error_;
};

TEST_F(EmbeddedServerTest, PayloadMayEndWithItsNulOrNot) {
    const auto server = Open(":memory:");
    ASSERT_NE(server, nullptr) << error_;
    EXPECT_EQ(Ask(*server, 4, R"({ci:"",cn:"A",type:0})"), R"({"eid":0,"ci":"1000001"})");
    EXPECT_EQ(Ask(*server, 4, std::string(R"({ci:"",cn:"B",type:0})") + '\0'), R"({"eid":0,"ci":"1000002"})");
    EXPECT_EQ(Ask(*server, 9, std::string(R"({optype:"4",type:"2",objectid:"1000001"})") + '\0',
                  Interface::kRemarkModuleWord),
              "[]");
}

TEST_F(EmbeddedServerTest, OnlyOneNulBelongsToTheEnvelope) {
    const auto server = Open(":memory:");
    EXPECT_THAT(Ask(*server, 3, std::string(R"({ui:"ann"})") + std::string(2, '\0')),
                HasSubstr(R"("eid":1,)"));
}

TEST_F(EmbeddedServerTest, EmptyPayloadAndNoRequestAreRefused) {
    const auto server = Open(":memory:");
    EXPECT_THAT(Ask(*server, 3, ""), HasSubstr(R"({"eid":1,"emsg":"the request does not parse)"));
    EXPECT_EQ(server->Exchange("ann", nullptr),
              R"({"eid":1,"emsg":"the request does not parse: there is no request"})");
}

TEST_F(EmbeddedServerTest, LengthBeyondTheLimitIsRefusedUnread) {
    const auto server = Open(":memory:");
    Block block(3, Interface::kVoyageModuleWord, "");
    block.Get()->length = Interface::kMaxPayloadBytes + 1;
    EXPECT_EQ(server->Exchange("ann", block.Get()), R"({"eid":14,"emsg":"the request is too long"})");
}

TEST_F(EmbeddedServerTest, NobodyLoggedInIsRefused) {
    const auto server = Open(":memory:");
    Block block(3, Interface::kVoyageModuleWord, R"({ui:""})");
    EXPECT_EQ(server->Exchange("", block.Get()), R"({"eid":21,"emsg":"nobody is logged in"})");
}

TEST_F(EmbeddedServerTest, RouteCommandsAreAnsweredByTheRouteSource) {
    const auto server = Open(":memory:");
    EXPECT_EQ(Ask(*server, 1, "{}"), "[]");
    EXPECT_EQ(Ask(*server, 2, "{}"), R"({"pointset":""})");
}

TEST_F(EmbeddedServerTest, DataAreThereAfterAReopening) {
    const TempFolder folder;
    const std::string path = folder.File("voyages.db");
    EXPECT_EQ(Ask(*Open(path), 4, R"({ci:"",cn:"A",type:0})"), R"({"eid":0,"ci":"1000001"})");
    EXPECT_THAT(Ask(*Open(path), 3, R"({ui:"ann"})"), HasSubstr(R"("cn":"A")"));
}

TEST_F(EmbeddedServerTest, MissingFolderAndMissingRoutesAreToldApart) {
    const TempFolder folder;
    EXPECT_EQ(Open(folder.File("none/voyages.db")), nullptr);
    EXPECT_THAT(error_, HasSubstr("cannot open the data base"));
    EXPECT_EQ(EmbeddedServer::Open(folder.File("voyages.db"), nullptr, error_), nullptr);
    EXPECT_EQ(error_, "there is no source of routes");
    EXPECT_FALSE(std::ifstream(folder.File("voyages.db")).good());
}

}  // namespace
}  // namespace Tarvik::Server
