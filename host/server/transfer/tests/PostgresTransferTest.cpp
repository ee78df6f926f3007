// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"
#include "host/server/transfer/tests/SampleOwner.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

/// A file of one place goes into PostgreSQL and out again.
class PostgresTransferTest : public TransferTest {
  protected:
    PostgresTransferTest() {
        storage_ = PostgresStorage::Open(connection_, error);
        transfer_ = PostgresStorage::Open(connection_, error, {1});
        EXPECT_TRUE(storage_ && transfer_) << error;
        MakeSample(*from.storage, "ann");
        EXPECT_TRUE(Export(from, {}));
    }
    bool ImportThere(const ImportChoice& choice = {}) {
        const auto reader = TransferReader::Open(Path(), error);
        return Importer(transfer_->Transfer(), nullptr, [](const std::string&) { return true; })
            .Run(choice, *reader, done, error);
    }
    bool ExportThere() {
        TransferContent content;
        return Exporter(transfer_->Transfer(), nullptr, [] { return std::int64_t{1772323200}; })
            .Run({"ann", false}, Path("again"), content, error);
    }

    std::string connection_ = PostgresServer::Instance().MakeDatabase();
    std::unique_ptr<PostgresStorage> storage_;
    std::unique_ptr<PostgresStorage> transfer_;
};

TEST_F(PostgresTransferTest, UserComesOutAsItWentInToTheByte) {
    ASSERT_TRUE(ImportThere()) << error;
    EXPECT_EQ(done, "imported 1 user, 2 categories, 3 voyages, 5 remarks");
    ASSERT_TRUE(ExportThere()) << error;
    EXPECT_EQ(Bytes("again"), Bytes());
    const auto last = std::stoll(storage_->Catalog().LoadCatalog("ann").Value().back().id);
    EXPECT_GT(std::stoll(storage_->Catalog().CreateCategory("bob", "x").Value()), last);
}

TEST_F(PostgresTransferTest, SampleMadeThereIsReadOutLikeOneOfAFile) {
    MakeSample(*storage_, "ann");
    ASSERT_TRUE(ExportThere()) << error;
    EXPECT_EQ(Bytes("again"), Bytes());
}

TEST_F(PostgresTransferTest, TakenIdsGiveNewOnesToAll) {
    MakeSmall(*storage_, "bob");
    ASSERT_TRUE(ImportThere()) << error;
    EXPECT_NE(done.find("all records got new ones"), std::string::npos);
    const OwnerCopy before = from.storage->Transfer().ReadOwner("ann").Value();
    const OwnerCopy after = transfer_->Transfer().ReadOwner("ann").Value();
    ASSERT_EQ(after.categories.size(), 2U);
    const VoyageCopy& voyage = after.categories[1].voyages.at(0);
    EXPECT_NE(voyage.voyage.id, before.categories[1].voyages[0].voyage.id);
    EXPECT_EQ(voyage.calls, before.categories[1].voyages[0].calls);
    EXPECT_EQ(voyage.book->rows, before.categories[1].voyages[0].book->rows);
    const RemarkObject port{kPortCallRemark, voyage.voyage.id + "5 Sea \"x\""};
    EXPECT_EQ(storage_->Remarks().LoadRemarks("ann", port).Value().size(), 1U);
    EXPECT_EQ(transfer_->Transfer().ListOwners().Value(), (std::vector<std::string>{"ann", "bob"}));
}

TEST_F(PostgresTransferTest, ExistingRecordsAreRefusedUnlessAdded) {
    ASSERT_TRUE(ImportThere()) << error;
    EXPECT_FALSE(ImportThere());
    EXPECT_EQ(error, "ann has voyages here already; --add puts those of the file beside them");
    ASSERT_TRUE(ImportThere({"", true})) << error;
    EXPECT_EQ(storage_->Catalog().LoadCatalog("ann").Value().size(), 4U);
}

TEST_F(PostgresTransferTest, RowThatTheDataBaseRefusesUndoesEverythingBeforeIt) {
    VoyageCopy voyage;
    voyage.voyage.id = "1000003";
    voyage.calls = {{0, "1", "x", "", 0, 0, 0}, {0, "1", "x", "", 0, 0, 0}};
    std::vector<OwnerCopy> owners{{"ann", {{"1000001", "A", DeletionState::InUse, {}}}, {}},
                                  {"bert", {{"1000002", "B", DeletionState::InUse, {voyage}}}, {}}};
    std::size_t next = 0;
    const auto report = transfer_->Transfer().AddOwners(
        {{"ann", "bert"}, 1000001, 1000003, false}, [&]() -> Outcome<std::optional<OwnerCopy>> {
            return next < owners.size() ? std::optional(owners[next++]) : std::optional<OwnerCopy>();
        });
    ASSERT_FALSE(report.Succeeded());
    EXPECT_TRUE(transfer_->Transfer().ListOwners().Value().empty());
    ASSERT_TRUE(ImportThere()) << error;
    EXPECT_EQ(done, "imported 1 user, 2 categories, 3 voyages, 5 remarks") << "the ids are still free";
}

}  // namespace
}  // namespace Tarvik::Server
