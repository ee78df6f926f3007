// SPDX-License-Identifier: MIT
// Ids of a file that are higher than those that are given out: whatever is taken can be backed up and brought
// back, and so can what is made behind it.
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class HighIdsTest : public TransferTest {
  protected:
    static std::string Id(std::int64_t id) { return std::to_string(id); }
    /// Makes a category behind what was imported, and expects that the next backup can be brought back.
    std::string MakeAndBackUp() {
        std::string made = to.storage->Catalog().CreateCategory("ann", "B").Value();
        EXPECT_TRUE(Export(to, {"", true}, "backup"));
        Place empty;
        EXPECT_TRUE(Import(empty, {}, "backup")) << error;
        EXPECT_EQ(empty.storage->Catalog().LoadCatalog("ann").Value().size(),
                  to.storage->Catalog().LoadCatalog("ann").Value().size());
        return made;
    }
};

TEST_F(HighIdsTest, HighestThatIsKeptIsCountedOnFrom) {
    WriteBytes(Ended(Head() + User() + Category(Id(kMostKeptId))));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(MakeAndBackUp(), Id(kMostKeptId + 1));
}

TEST_F(HighIdsTest, ThoseThatAServerMayHaveCountedToAreGivenAnew) {
    for (const std::int64_t id : {kMostKeptId + 1, kMostCopiedId}) {
        WriteBytes(Ended(Head() + User() + Category(Id(id))));
        ASSERT_TRUE(Import(to, {"", true})) << error;
        EXPECT_LT(MakeAndBackUp().size(), 10U);
    }
}

TEST_F(HighIdsTest, ThoseBehindWhichABackupWouldFailAreRefused) {
    const std::string vessel =
        R"(,"name":"M","mmsi":0,"imo":0,"callsign":"","type":"","length":1,"speed":1})";
    const std::string place = R"(,"name":"P","position":[1,2]})";
    for (const std::string& high : {Id(kMostCopiedId + 1), std::string("999999999999999")}) {
        const std::string told = "line 3: the id is so high that a later backup would fail";
        for (const std::string& line : {Category(high), R"({"vessel":")" + high + "\"" + vessel + "\n",
                                        R"({"place":")" + high + "\"" + place + "\n"}) {
            WriteBytes(Ended(Head() + User() + line));
            EXPECT_FALSE(Import(to));
            EXPECT_EQ(error, Path() + ", " + told);
        }
    }
    EXPECT_TRUE(to.storage->Transfer().ListOwners().Value().empty());
    EXPECT_TRUE(to.accounts.users.empty());
}

TEST_F(HighIdsTest, RefusedOnesAreLeftOutByNameWhenThatIsWished) {
    WriteBytes(Ended(Head() + User() + Category("999999999999999") + Category()));
    ASSERT_TRUE(Import(to, {"", false, true})) << error;
    EXPECT_EQ(done,
              "imported 1 user, 1 category, 0 voyages, 0 remarks\n"
              "left out: category \"999999999999999\" \"A\" of line 3: the id is so high that a later backup "
              "would fail");
    EXPECT_EQ(MakeAndBackUp(), "1000002");
}

}  // namespace
}  // namespace Tarvik::Server
