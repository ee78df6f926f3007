// SPDX-License-Identifier: MIT
#include "host/server/transfer/tests/SampleOwner.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class ImporterTest : public TransferTest {
  protected:
    ImporterTest() {
        MakeSmall(*from.storage, "ann");
        MakeSmall(*from.storage, "bert");
        from.accounts.users["ann"] = {"ann", "$argon2id$a", false};
        from.accounts.users["bert"] = {"bert", "$argon2id$b", false};
    }
    /// Expects that the place is as empty as it was.
    void ExpectNothing() {
        EXPECT_TRUE(to.storage->Transfer().ListOwners().Value().empty());
        EXPECT_TRUE(to.accounts.users.empty());
    }
};

TEST_F(ImporterTest, UserWithoutAccountIsRefusedAndNothingChanges) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    EXPECT_FALSE(Import(to));
    EXPECT_EQ(
        error,
        "there is no user ann here: seaplan-server user add NAME adds one, --user NAME gives the voyages to "
        "another");
    ExpectNothing();
}

TEST_F(ImporterTest, OneUserWithoutAccountKeepsAllOut) {
    MakeSmall(*from.storage, "not a name");
    from.accounts.users["not a name"] = {"not a name", "$argon2id$c", false};
    ASSERT_TRUE(Export(from, {"", true}));
    EXPECT_FALSE(Import(to));
    ExpectNothing();
}

TEST_F(ImporterTest, ExistingRecordsAreRefusedUnlessAdded) {
    ASSERT_TRUE(Export(from, {"", true}));
    ASSERT_TRUE(Import(to)) << error;
    const std::string before = to.Everything("ann");
    EXPECT_FALSE(Import(to));
    EXPECT_EQ(error, "ann has voyages here already; --add puts those of the file beside them");
    EXPECT_EQ(to.Everything("ann"), before);
    ASSERT_TRUE(Import(to, {"", true})) << error;
    const auto catalog = to.storage->Catalog().LoadCatalog("ann").Value();
    ASSERT_EQ(catalog.size(), 2U);
    EXPECT_NE(catalog[0].id, catalog[1].id);
    EXPECT_EQ(catalog[1].voyages.size(), 1U);
}

TEST_F(ImporterTest, OneUserWithRecordsKeepsAllOut) {
    ASSERT_TRUE(Export(from, {"", true}));
    MakeSmall(*to.storage, "bert");
    const std::string before = to.Everything("bert");
    EXPECT_FALSE(Import(to));
    EXPECT_EQ(error.find("bert has voyages here already"), 0U);
    EXPECT_EQ(to.Everything("bert"), before);
    EXPECT_TRUE(to.storage->Catalog().LoadCatalog("ann").Value().empty());
    EXPECT_TRUE(to.accounts.users.empty());
}

TEST_F(ImporterTest, UserWhoDestroyedEverythingHasNoRecords) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    to.accounts.users["ann"] = {"ann", "hash", false};
    ASSERT_TRUE(Import(to));
    auto& catalog = to.storage->Catalog();
    const std::string id = catalog.LoadCatalog("ann").Value()[0].id;
    ASSERT_TRUE(catalog.MoveCategory("ann", id, DeletionState::InBin).Succeeded());
    ASSERT_TRUE(catalog.MoveCategory("ann", id, DeletionState::Destroyed).Succeeded());
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_NE(catalog.LoadCatalog("ann").Value()[0].id, id) << "no id is given out twice";
}

TEST_F(ImporterTest, FileOfSeveralUsersGoesToNoOneUser) {
    ASSERT_TRUE(Export(from, {"", true}));
    EXPECT_FALSE(Import(to, {"carl", false}));
    EXPECT_EQ(error, "the file holds 2 users; --user is for a file of one");
    ExpectNothing();
}

TEST_F(ImporterTest, FailingAccountsLetNothingIn) {
    ASSERT_TRUE(Export(from, {"", true}));
    to.accounts.fault = "the disk is full";
    EXPECT_FALSE(Import(to));
    EXPECT_EQ(error, "the disk is full");
    to.accounts.fault.clear();
    ExpectNothing();
}

TEST_F(ImporterTest, RowThatTheStorageRefusesUndoesEverythingBeforeIt) {
    CopyManifest manifest{{"ann", "bert"}, 1000001, 1000003, false};
    OwnerCopy good{"ann", {{"1000001", "A", DeletionState::InUse, {}}}, {}};
    VoyageCopy voyage;
    voyage.voyage.id = "1000003";
    voyage.calls = {{0, "1", "x", "", 0, 0, 0}, {0, "1", "x", "", 0, 0, 0}};
    OwnerCopy bad{"bert", {{"1000002", "B", DeletionState::InUse, {voyage}}}, {}};
    std::vector<OwnerCopy> owners{good, bad};
    std::size_t next = 0;
    const auto source = [&]() -> Outcome<std::optional<OwnerCopy>> {
        return next < owners.size() ? std::optional(owners[next++]) : std::optional<OwnerCopy>();
    };
    const auto report = to.storage->Transfer().AddOwners(manifest, source);
    ASSERT_FALSE(report.Succeeded());
    EXPECT_EQ(report.GetFault().reason, FaultReason::RowExists);
    EXPECT_EQ(next, 2U);
    ExpectNothing();
}

TEST_F(ImporterTest, FileThatChangesBetweenCheckAndReadingIsNotReadIn) {
    ASSERT_TRUE(Export(from, {"", true}));
    const auto reader = TransferReader::Open(Path(), error);
    TransferContent content;
    ASSERT_TRUE(reader->ReadContent(content, error));
    std::string bytes = Bytes();
    bytes[bytes.find("\"V\"") + 1] = 'W';
    WriteBytes(bytes);
    reader->Rewind();
    std::optional<UserCopy> user;
    EXPECT_TRUE(reader->Next(user, error));
    EXPECT_FALSE(reader->Next(user, error));
    EXPECT_NE(error.find("the file was altered"), std::string::npos) << error;
}

}  // namespace
}  // namespace Tarvik::Server
