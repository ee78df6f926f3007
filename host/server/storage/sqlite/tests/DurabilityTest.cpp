// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/WriteScript.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/FaultyVfs.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using ::testing::HasSubstr;

class DurabilityTest : public ::testing::Test {
  protected:
    void SetUp() override {
        storage_ = Open(folder_);
        ASSERT_NE(storage_, nullptr) << error_;
        ASSERT_TRUE(WriteScript::Prepare(*storage_));
    }
    std::unique_ptr<SqliteStorage> Open(const TempFolder& folder) {
        return SqliteStorage::Open(folder.File("voyages.db"), error_);
    }
    /// Runs writes from `number_` on until one fails, at most `most`.
    void WriteUntilFailure(int most) {
        for (int i = 0; i < most && WriteScript::Write(*storage_, number_); ++i) {
            WriteScript::Apply(expected_, number_++);
        }
    }

    FaultyVfs vfs_;
    TempFolder folder_;
    std::string error_;
    std::unique_ptr<SqliteStorage> storage_;
    WrittenData expected_ = WriteScript::Start();
    int number_ = 0;
};

TEST_F(DurabilityTest, EveryConfirmedChangeSurvivesALossOfPower) {
    for (int i = 0; i < 40; ++i) {
        WriteUntilFailure(3);
        const TempFolder after;
        vfs_.CutPower(folder_.File("."), after.File("."));
        const auto restarted = Open(after);
        ASSERT_NE(restarted, nullptr) << error_;
        ASSERT_EQ(WriteScript::Read(*restarted), expected_) << "after write " << number_;
    }
    EXPECT_EQ(number_, 120);
}

TEST_F(DurabilityTest, FullDiskFailsOneChangeWholeAndTheNextSucceedsWhenThereIsRoom) {
    for (int room = 0; room < 40; ++room) {
        vfs_.FailWritesAfter(room);
        WriteUntilFailure(1000);
        EXPECT_EQ(WriteScript::Read(*storage_), expected_) << "with room for " << room;
        vfs_.FailWritesAfter(-1);
        EXPECT_EQ(WriteScript::Read(*storage_), expected_) << "with room for " << room;
        const int before = number_;
        WriteUntilFailure(4);
        ASSERT_EQ(number_, before + 4) << "with room for " << room;
        ASSERT_EQ(WriteScript::Read(*storage_), expected_);
    }
}

TEST_F(DurabilityTest, FullDiskIsNamedInTheFault) {
    vfs_.FailWritesAfter(0);
    const auto outcome = storage_->Catalog().CreateCategory("ann", "x");
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.GetFault().Kind(), FaultKind::Failed);
    EXPECT_THAT(outcome.GetFault().detail, HasSubstr("full"));
}

TEST_F(DurabilityTest, ChangeThatDoesNotReachTheDiskIsNoSuccess) {
    WriteUntilFailure(7);
    ASSERT_EQ(number_, 7);
    vfs_.FailSyncs(true);
    EXPECT_FALSE(WriteScript::Write(*storage_, number_));
    EXPECT_EQ(WriteScript::Read(*storage_), expected_);
    vfs_.FailSyncs(false);
    WriteUntilFailure(5);
    EXPECT_EQ(number_, 12);
    storage_ = Open(folder_);
    ASSERT_NE(storage_, nullptr) << error_;
    EXPECT_EQ(WriteScript::Read(*storage_), expected_);
}

TEST_F(DurabilityTest, DataOfAFullDiskAreThereAfterARestart) {
    WriteUntilFailure(9);
    vfs_.FailWritesAfter(2);
    WriteUntilFailure(1000);
    storage_.reset();
    vfs_.FailWritesAfter(-1);
    storage_ = Open(folder_);
    ASSERT_NE(storage_, nullptr) << error_;
    EXPECT_EQ(WriteScript::Read(*storage_), expected_);
}

}  // namespace
}  // namespace Tarvik::Server
