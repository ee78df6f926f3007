// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/ScheduleStorage.h"
#include "host/server/storage/contract/tests/StorageContract.h"

namespace Tarvik::Server {

namespace {

using State = DeletionState;

TEST_P(StorageContract, IdsAreDecimalFrom1000001AndUniqueOverOwnersAndKinds) {
    const std::string category = MakeCategory("ann");
    const std::string voyage = MakeVoyage(category, "ann");
    const std::string book = Schedule().CreateBook("ann", voyage, "2026-03-01 08:00:00").Value();
    EXPECT_EQ(category, "1000001");
    EXPECT_EQ(voyage, "1000002");
    EXPECT_EQ(book, "1000003");
    EXPECT_EQ(MakeCategory("bob"), "1000004");
}

TEST_P(StorageContract, IdsAreNotReusedAfterDestructionAndReopening) {
    const std::string first = MakeCategory();
    ASSERT_TRUE(Catalog().MoveCategory("ann", first, State::InBin));
    ASSERT_TRUE(Catalog().MoveCategory("ann", first, State::Destroyed));
    Reopen();
    EXPECT_EQ(MakeCategory(), "1000002");
}

TEST_P(StorageContract, CatalogHoldsWhatWasStoredAfterReopening) {
    const std::string category = MakeCategory("ann", "Åland \"x\" \\ 船");
    VoyageRecord voyage;
    voyage.name = "V";
    voyage.vessel = {"v1", "", 0};
    voyage.routeShown = true;
    const std::string id = Catalog().CreateVoyage("ann", category, voyage).Value();
    ASSERT_TRUE(Catalog().RenameVoyage("ann", id, "W"));
    ASSERT_TRUE(Catalog().ChangeVessel("ann", id, {"v2", "Meridian", 477123456}));
    ASSERT_TRUE(Catalog().ShowRoute("ann", id, false));
    ASSERT_TRUE(Catalog().TraceAis("ann", id, true));
    ASSERT_TRUE(Catalog().SetFigures("ann", id, {1, 2, 3, 4, 5, 6, 2147483647}));
    Reopen();
    const auto catalog = Catalog().LoadCatalog("ann").Value();
    ASSERT_EQ(catalog.size(), 1U);
    EXPECT_EQ(catalog[0].name, "Åland \"x\" \\ 船");
    ASSERT_EQ(catalog[0].voyages.size(), 1U);
    const VoyageRecord& stored = catalog[0].voyages[0];
    EXPECT_EQ(stored.id, id);
    EXPECT_EQ(stored.name, "W");
    EXPECT_EQ(stored.vessel.id, "v2");
    EXPECT_EQ(stored.vessel.name, "Meridian");
    EXPECT_EQ(stored.vessel.mmsi, 477123456);
    EXPECT_FALSE(stored.routeShown);
    EXPECT_TRUE(stored.aisTraced);
    EXPECT_EQ(stored.figures, (Figures{1, 2, 3, 4, 5, 6, 2147483647}));
}

TEST_P(StorageContract, CategoryMovesOnlyFromUseToBinAndFromBinBackOrToDestruction) {
    const std::string id = MakeCategory();
    EXPECT_EQ(ReasonOf(Catalog().MoveCategory("ann", id, State::InUse)), FaultReason::NotInBin);
    EXPECT_EQ(ReasonOf(Catalog().MoveCategory("ann", id, State::Destroyed)), FaultReason::NotInBin);
    EXPECT_TRUE(Catalog().MoveCategory("ann", id, State::InBin));
    EXPECT_EQ(ReasonOf(Catalog().MoveCategory("ann", id, State::InBin)), FaultReason::NotInUse);
    EXPECT_TRUE(Catalog().MoveCategory("ann", id, State::InUse));
    EXPECT_TRUE(Catalog().MoveCategory("ann", id, State::InBin));
    EXPECT_TRUE(Catalog().MoveCategory("ann", id, State::Destroyed));
    EXPECT_EQ(ReasonOf(Catalog().MoveCategory("ann", id, State::InUse)), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().RenameCategory("ann", id, "x")), FaultReason::UnknownCategory);
}

TEST_P(StorageContract, VoyageMovesOnlyFromUseToBinAndFromBinBackOrToDestruction) {
    const std::string id = MakeVoyage();
    EXPECT_EQ(ReasonOf(Catalog().MoveVoyage("ann", id, State::InUse)), FaultReason::NotInBin);
    EXPECT_EQ(ReasonOf(Catalog().MoveVoyage("ann", id, State::Destroyed)), FaultReason::NotInBin);
    EXPECT_TRUE(Catalog().MoveVoyage("ann", id, State::InBin));
    EXPECT_EQ(ReasonOf(Catalog().MoveVoyage("ann", id, State::InBin)), FaultReason::NotInUse);
    EXPECT_TRUE(Catalog().MoveVoyage("ann", id, State::InUse));
    EXPECT_TRUE(Catalog().MoveVoyage("ann", id, State::InBin));
    EXPECT_TRUE(Catalog().MoveVoyage("ann", id, State::Destroyed));
    EXPECT_EQ(ReasonOf(Catalog().MoveVoyage("ann", id, State::InUse)), FaultReason::UnknownVoyage);
}

TEST_P(StorageContract, BinIsLoadedAndDestroyedIsNot) {
    const std::string category = MakeCategory();
    const std::string binned = MakeVoyage(category);
    const std::string destroyed = MakeVoyage(category);
    ASSERT_TRUE(Catalog().MoveVoyage("ann", binned, State::InBin));
    ASSERT_TRUE(Catalog().MoveVoyage("ann", destroyed, State::InBin));
    ASSERT_TRUE(Catalog().MoveVoyage("ann", destroyed, State::Destroyed));
    ASSERT_TRUE(Catalog().MoveCategory("ann", category, State::InBin));
    auto catalog = Catalog().LoadCatalog("ann").Value();
    ASSERT_EQ(catalog.size(), 1U);
    EXPECT_EQ(catalog[0].state, State::InBin);
    ASSERT_EQ(catalog[0].voyages.size(), 1U);
    EXPECT_EQ(catalog[0].voyages[0].id, binned);
    EXPECT_EQ(catalog[0].voyages[0].state, State::InBin);
    ASSERT_TRUE(Catalog().MoveCategory("ann", category, State::Destroyed));
    EXPECT_TRUE(Catalog().LoadCatalog("ann").Value().empty());
}

TEST_P(StorageContract, VoyagesOfADestroyedCategoryAreUnknown) {
    const std::string category = MakeCategory();
    const std::string voyage = MakeVoyage(category);
    const std::string book = Schedule().CreateBook("ann", voyage, "2026-03-01 08:00:00").Value();
    ASSERT_TRUE(Catalog().MoveCategory("ann", category, State::InBin));
    EXPECT_TRUE(Catalog().RenameVoyage("ann", voyage, "still there"));
    ASSERT_TRUE(Catalog().MoveCategory("ann", category, State::Destroyed));
    EXPECT_EQ(ReasonOf(Catalog().RenameVoyage("ann", voyage, "x")), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().LoadBook("ann", voyage)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Schedule().SetBookDate("ann", book, "2026-03-02 08:00:00")), FaultReason::UnknownBook);
}

TEST_P(StorageContract, VoyageIsMadeOnlyInACategoryInUse) {
    const std::string category = MakeCategory();
    EXPECT_EQ(ReasonOf(Catalog().CreateVoyage("ann", "", {})), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().CreateVoyage("bob", category, {})), FaultReason::UnknownCategory);
    ASSERT_TRUE(Catalog().MoveCategory("ann", category, State::InBin));
    EXPECT_EQ(ReasonOf(Catalog().CreateVoyage("ann", category, {})), FaultReason::CategoryNotInUse);
    EXPECT_TRUE(Catalog().LoadCatalog("ann").Value()[0].voyages.empty());
}

TEST_P(StorageContract, RefusedOperationTakesNoId) {
    EXPECT_FALSE(Catalog().CreateVoyage("ann", "1000001", {}));
    EXPECT_EQ(MakeCategory(), "1000001");
}

TEST_P(StorageContract, OwnersDoNotSeeEachOther) {
    const std::string category = MakeCategory("ann");
    const std::string voyage = MakeVoyage(category, "ann");
    EXPECT_TRUE(Catalog().LoadCatalog("bob").Value().empty());
    EXPECT_EQ(ReasonOf(Catalog().RenameCategory("bob", category, "x")), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().MoveCategory("bob", category, State::InBin)), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().RenameVoyage("bob", voyage, "x")), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Catalog().MoveVoyage("bob", voyage, State::InBin)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Catalog().ChangeVessel("bob", voyage, {"v", "n", 1})), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Catalog().ShowRoute("bob", voyage, true)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Catalog().TraceAis("bob", voyage, true)), FaultReason::UnknownVoyage);
    EXPECT_EQ(ReasonOf(Catalog().SetFigures("bob", voyage, {})), FaultReason::UnknownVoyage);
}

TEST_P(StorageContract, IdIsComparedAsTextAndNotAsNumber) {
    MakeCategory();
    EXPECT_EQ(ReasonOf(Catalog().RenameCategory("ann", "01000001", "x")), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().RenameCategory("ann", " 1000001", "x")), FaultReason::UnknownCategory);
    EXPECT_EQ(ReasonOf(Catalog().RenameCategory("ann", "1000001' OR '1'='1", "x")),
              FaultReason::UnknownCategory);
}

}  // namespace
}  // namespace Tarvik::Server
