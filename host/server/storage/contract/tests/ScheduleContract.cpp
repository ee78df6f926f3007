// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/ScheduleStorage.h"
#include "host/server/storage/contract/tests/StorageContract.h"

namespace Tarvik::Server {

namespace {

constexpr const char* kDate = "2026-03-01 08:00:00";

PortCallRecord Call(std::int32_t order, const std::string& name) {
    return {order, "id", name, "L", 18.52, 0.1, 24.5};
}

BookRowRecord Row(std::int32_t order) {
    return {order, "", 117.75, -38.983, "GC", 5, 18.52, 0};
}

TEST_P(StorageContract, PortCallsAreReplacedAsAWholeAndReadInOrder) {
    const std::string voyage = MakeVoyage();
    EXPECT_TRUE(Schedule().LoadPortCalls("ann", voyage).Value().empty());
    ASSERT_TRUE(Schedule().ReplacePortCalls("ann", voyage, {Call(0, "A"), Call(1, "B"), Call(2, "C")}));
    ASSERT_TRUE(Schedule().ReplacePortCalls("ann", voyage, {Call(10, "Z"), Call(9, "Y")}));
    Reopen();
    const auto calls = Schedule().LoadPortCalls("ann", voyage).Value();
    EXPECT_EQ(calls, (std::vector{Call(9, "Y"), Call(10, "Z")}));
}

TEST_P(StorageContract, PortCallsOfOneNumberAreRefusedAndTheOldOnesStay) {
    const std::string voyage = MakeVoyage();
    ASSERT_TRUE(Schedule().ReplacePortCalls("ann", voyage, {Call(0, "A")}));
    EXPECT_EQ(ReasonOf(Schedule().ReplacePortCalls("ann", voyage, {Call(0, "B"), Call(0, "C")})),
              FaultReason::RowExists);
    EXPECT_EQ(Schedule().LoadPortCalls("ann", voyage).Value(), std::vector{Call(0, "A")});
}

TEST_P(StorageContract, VoyageHasAtMostOneBook) {
    const std::string voyage = MakeVoyage();
    EXPECT_FALSE(Schedule().LoadBook("ann", voyage).Value().has_value());
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    EXPECT_EQ(ReasonOf(Schedule().CreateBook("ann", voyage, "2027-01-01 00:00:00")), FaultReason::BookExists);
    const auto stored = Schedule().LoadBook("ann", voyage).Value();
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->id, book);
    EXPECT_EQ(stored->date, kDate);
    EXPECT_TRUE(stored->rows.empty());
}

TEST_P(StorageContract, BookDateIsChanged) {
    const std::string voyage = MakeVoyage();
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    ASSERT_TRUE(Schedule().SetBookDate("ann", book, "2027-01-01 00:00:00"));
    EXPECT_EQ(Schedule().LoadBook("ann", voyage).Value()->date, "2027-01-01 00:00:00");
    EXPECT_EQ(ReasonOf(Schedule().SetBookDate("ann", voyage, kDate)), FaultReason::UnknownBook);
}

TEST_P(StorageContract, BookRowsAreReplacedAndAppended) {
    const std::string voyage = MakeVoyage();
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    EXPECT_EQ(ReasonOf(Schedule().AppendBookRows("ann", book, "w", {Row(0)})),
              FaultReason::NothingToAppendTo);
    ASSERT_TRUE(Schedule().ReplaceBookRows("ann", book, "w", {Row(1), Row(0)}));
    ASSERT_TRUE(Schedule().AppendBookRows("ann", book, "w", {Row(2)}));
    Reopen();
    EXPECT_EQ(Schedule().LoadBook("ann", voyage).Value()->rows, (std::vector{Row(0), Row(1), Row(2)}));
    ASSERT_TRUE(Schedule().ReplaceBookRows("ann", book, "w", {}));
    EXPECT_TRUE(Schedule().LoadBook("ann", voyage).Value()->rows.empty());
}

TEST_P(StorageContract, OfTwoWhoWriteABookAtOnceTheLastWhoBeganWins) {
    const std::string voyage = MakeVoyage();
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    ASSERT_TRUE(Schedule().ReplaceBookRows("ann", book, "one", {Row(0)}));
    ASSERT_TRUE(Schedule().AppendBookRows("ann", book, "one", {Row(1)}));
    ASSERT_TRUE(Schedule().ReplaceBookRows("ann", book, "two", {Row(10)}));
    EXPECT_EQ(ReasonOf(Schedule().AppendBookRows("ann", book, "one", {Row(2)})), FaultReason::BookTakenOver);
    ASSERT_TRUE(Schedule().AppendBookRows("ann", book, "two", {Row(11)}));
    Reopen();
    EXPECT_EQ(Schedule().LoadBook("ann", voyage).Value()->rows, (std::vector{Row(10), Row(11)}));
    EXPECT_EQ(ReasonOf(Schedule().AppendBookRows("ann", book, "one", {Row(12)})), FaultReason::BookTakenOver);
}

TEST_P(StorageContract, BookRowOfATakenNumberIsRefusedAndNothingOfTheRequestStays) {
    const std::string voyage = MakeVoyage();
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    ASSERT_TRUE(Schedule().ReplaceBookRows("ann", book, "w", {Row(0), Row(1)}));
    EXPECT_EQ(ReasonOf(Schedule().AppendBookRows("ann", book, "w", {Row(2), Row(1)})),
              FaultReason::RowExists);
    EXPECT_EQ(ReasonOf(Schedule().ReplaceBookRows("ann", book, "w", {Row(5), Row(5)})),
              FaultReason::RowExists);
    EXPECT_EQ(Schedule().LoadBook("ann", voyage).Value()->rows, (std::vector{Row(0), Row(1)}));
}

TEST_P(StorageContract, AisTimesStandInOrderOfAdditionOnceEachAndAreCounted) {
    const std::string voyage = MakeVoyage();
    ASSERT_TRUE(Schedule().AddAisTime("ann", voyage, "2026-03-02 00:00:00"));
    ASSERT_TRUE(Schedule().AddAisTime("ann", voyage, "2026-03-01 00:00:00"));
    ASSERT_TRUE(Schedule().AddAisTime("ann", voyage, "2026-03-02 00:00:00"));
    EXPECT_EQ(Schedule().LoadAisTimes("ann", voyage).Value(),
              (std::vector<std::string>{"2026-03-02 00:00:00", "2026-03-01 00:00:00"}));
    EXPECT_EQ(Catalog().LoadCatalog("ann").Value()[0].voyages[0].aisTimes, 2);
}

TEST_P(StorageContract, ScheduleOfAnotherOwnerIsUnknown) {
    const std::string voyage = MakeVoyage();
    const std::string book = Schedule().CreateBook("ann", voyage, kDate).Value();
    EXPECT_EQ(ReasonOf(Schedule().LoadPortCalls("bob", voyage)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().ReplacePortCalls("bob", voyage, {Call(0, "A")})),
              FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().LoadBook("bob", voyage)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().CreateBook("bob", voyage, kDate)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().SetBookDate("bob", book, kDate)), FaultReason::UnknownBook);
    EXPECT_EQ(ReasonOf(Schedule().ReplaceBookRows("bob", book, "w", {Row(0)})), FaultReason::UnknownBook);
    EXPECT_EQ(ReasonOf(Schedule().AppendBookRows("bob", book, "w", {Row(0)})), FaultReason::UnknownBook);
    EXPECT_EQ(ReasonOf(Schedule().LoadAisTimes("bob", voyage)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().AddAisTime("bob", voyage, kDate)), FaultReason::UnknownVoyage);
}

}  // namespace
}  // namespace Tarvik::Server
