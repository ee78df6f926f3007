// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gmock/gmock.h>

#include "host/geo/ByteWriter.h"
#include "host/server/graph/SeaNetworkFile.h"
#include "host/server/graph/tests/SmallSea.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

constexpr std::size_t kHead = 24;

/// A file around a payload whose length and sum are right.
std::string Sealed(const std::string& payload) {
    ByteWriter head;
    head.U64(payload.size());
    head.U64(SeaNetworkFile::Checksum(payload));
    return "SEANET05" + head.Bytes() + payload;
}

std::string ErrorOf(const std::string& bytes) {
    std::string error;
    const bool good = SeaNetworkFile::Decode(bytes, error).has_value();
    return good ? "none" : error;
}

std::string ErrorOf(const NetworkData& data) {
    return ErrorOf(SeaNetworkFile::Encode(data));
}

TEST(SeaNetworkFile, ReadsWhatItWrote) {
    NetworkData before = SmallSea();
    before.areas = {{{1, 1}, {2, 1}, {2, 2}}};
    before.routePoints[1].cost = 30.0F;
    before.reach.assign(3, std::vector<ReachEntry>(8, {12.5F, 2}));
    const std::string bytes = SeaNetworkFile::Encode(before);
    std::string error;
    const auto after = SeaNetworkFile::Decode(bytes, error);
    ASSERT_TRUE(after) << error;
    EXPECT_EQ(SeaNetworkFile::Encode(*after), bytes);
    EXPECT_EQ(after->nodes, before.nodes);
    EXPECT_EQ(after->masks, before.masks);
    EXPECT_EQ(after->land, before.land);
    EXPECT_EQ(after->areas, before.areas);
    EXPECT_EQ(after->routePoints[1].cost, 30.0F);
    EXPECT_EQ(after->reach[2][7].nm, 12.5F);
    EXPECT_EQ(after->reach[2][7].side, 2);
    ASSERT_EQ(after->routePoints.size(), 3u);
    EXPECT_EQ(after->routePoints[2].name, "Canal");
    EXPECT_TRUE(after->routePoints[2].shut);
    EXPECT_EQ(after->routePoints[2].groups, before.routePoints[2].groups);
    EXPECT_EQ(after->ports[1].unlocode, "BBBBB");
    EXPECT_EQ(after->edges[4].kind, EdgeKind::Chain);
}

TEST(SeaNetworkFile, RefusesAFileCutAnywhere) {
    const std::string bytes = SeaNetworkFile::Encode(SmallSea());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const std::string error = ErrorOf(bytes.substr(0, length));
        EXPECT_EQ(error, length < kHead ? "this is not a sea network file"
                                        : "the sea network file is cut or has grown")
            << length;
    }
    EXPECT_EQ(ErrorOf(bytes + "x"), "the sea network file is cut or has grown");
}

TEST(SeaNetworkFile, RefusesAPayloadThatEndsInsideAnyOfItsLists) {
    const std::string payload = SeaNetworkFile::Encode(SmallSea()).substr(kHead);
    for (std::size_t length = 0; length < payload.size(); ++length) {
        EXPECT_THAT(ErrorOf(Sealed(payload.substr(0, length))), HasSubstr("inconsistent")) << length;
    }
    EXPECT_EQ(ErrorOf(Sealed(payload)), "none");
    EXPECT_THAT(ErrorOf(Sealed(payload + "x")), HasSubstr("inconsistent"));
}

TEST(SeaNetworkFile, AnyDamagedByteOfThePayloadIsFound) {
    const std::string bytes = SeaNetworkFile::Encode(SmallSea());
    for (std::size_t i = kHead; i < bytes.size(); ++i) {
        std::string damaged = bytes;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x10);
        EXPECT_EQ(ErrorOf(damaged), "the sea network file is damaged") << i;
    }
}

TEST(SeaNetworkFile, RefusesAForeignFile) {
    std::string bytes = SeaNetworkFile::Encode(SmallSea());
    bytes[0] = 'X';
    EXPECT_EQ(ErrorOf(bytes), "this is not a sea network file");
}

TEST(SeaNetworkFile, TellsTheVersionOfAFileThatItDoesNotRead) {
    std::string bytes = SeaNetworkFile::Encode(SmallSea());
    bytes[7] = '2';
    EXPECT_EQ(ErrorOf(bytes), "the sea network file is of version 02, where this program reads version 05");
}

TEST(SeaNetworkFile, RefusesReferencesToWhatIsNotThere) {
    NetworkData data = SmallSea();
    data.edges[0].b = 8;
    EXPECT_THAT(ErrorOf(data), HasSubstr("an edge names a node that does not exist"));
    data = SmallSea();
    data.edges[0].mask = 99;
    EXPECT_THAT(ErrorOf(data), HasSubstr("gate mask"));
    data = SmallSea();
    data.edges[0].nm = -1.0F;
    EXPECT_THAT(ErrorOf(data), HasSubstr("impossible length"));
    data = SmallSea();
    data.edges[0].kind = static_cast<EdgeKind>(7);
    EXPECT_THAT(ErrorOf(data), HasSubstr("unknown kind"));
    data = SmallSea();
    data.routePoints[0].groups[0][0] = 3;
    EXPECT_THAT(ErrorOf(data), HasSubstr("an alternative does not exist"));
    data = SmallSea();
    data.routePoints[0].gate.clear();
    EXPECT_THAT(ErrorOf(data), HasSubstr("no gate"));
    data = SmallSea();
    data.ports[0].node = 8;
    EXPECT_THAT(ErrorOf(data), HasSubstr("a port has no node"));
    data = SmallSea();
    data.nodes[0].y = 91;
    EXPECT_THAT(ErrorOf(data), HasSubstr("outside the earth"));
}

class SeaNetworkFileOnDisk : public ::testing::Test {
  protected:
    TestSupport::TemporaryFolder folder_;
    const std::string path_ = folder_.File("network.bin");
};

TEST_F(SeaNetworkFileOnDisk, IsLoadedAsANetwork) {
    ASSERT_EQ(SeaNetworkFile::Write(path_, SmallSea()), "");
    std::string error;
    const auto network = SeaNetwork::Load(path_, error);
    ASSERT_TRUE(network) << error;
    EXPECT_EQ(network->NodeOf("40002"), 3u);
    EXPECT_EQ(network->RoutePointIndex("2"), 1u);
    EXPECT_FALSE(network->NodeOf("4"));
}

TEST_F(SeaNetworkFileOnDisk, AMissingOrCutFileIsNamedWithWhatToDo) {
    std::string error;
    EXPECT_FALSE(SeaNetwork::Load(path_, error));
    EXPECT_EQ(error, "cannot open the sea network file " + path_ + ". Build or install the client again.");
    ASSERT_EQ(SeaNetworkFile::Write(path_, SmallSea()), "");
    std::filesystem::resize_file(path_, 100);
    EXPECT_FALSE(SeaNetwork::Load(path_, error));
    EXPECT_EQ(error,
              "the sea network file is cut or has grown: " + path_ + ". Build or install the client again.");
}

TEST_F(SeaNetworkFileOnDisk, WritingWhereThereIsNoFolderTellsThePath) {
    const std::string path = path_ + "/none/network.bin";
    EXPECT_EQ(SeaNetworkFile::Write(path, SmallSea()), "cannot write " + path);
}

}  // namespace
}  // namespace Tarvik::Server
