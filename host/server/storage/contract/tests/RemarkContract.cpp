// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/StorageContract.h"

namespace Tarvik::Server {

namespace {

TEST_P(StorageContract, RemarksAreAddedChangedAndDeletedByTheirNumber) {
    const RemarkObject object{kVoyageRemark, MakeVoyage()};
    ASSERT_TRUE(Remarks().AddRemark("ann", object, {3, "c", "three", 100, 100}));
    ASSERT_TRUE(Remarks().AddRemark("ann", object, {1, "a", "one", 200, 200}));
    EXPECT_EQ(ReasonOf(Remarks().AddRemark("ann", object, {3, "x", "x", 300, 300})),
              FaultReason::RemarkExists);
    ASSERT_TRUE(Remarks().ChangeRemark("ann", object, {3, "C", "line\nbreak", 400, 400}));
    Reopen();
    auto remarks = Remarks().LoadRemarks("ann", object).Value();
    ASSERT_EQ(remarks.size(), 2U);
    EXPECT_EQ(remarks[0].seq, 1);
    EXPECT_EQ(remarks[1].subject, "C");
    EXPECT_EQ(remarks[1].body, "line\nbreak");
    EXPECT_EQ(remarks[1].created, 100);
    EXPECT_EQ(remarks[1].updated, 400);
    ASSERT_TRUE(Remarks().DeleteRemark("ann", object, 3));
    EXPECT_EQ(Remarks().LoadRemarks("ann", object).Value().size(), 1U);
    EXPECT_EQ(ReasonOf(Remarks().DeleteRemark("ann", object, 3)), FaultReason::UnknownRemark);
    EXPECT_EQ(ReasonOf(Remarks().ChangeRemark("ann", object, {3, "", "", 1, 1})), FaultReason::UnknownRemark);
}

TEST_P(StorageContract, CatalogTellsWhichObjectsHaveRemarks) {
    const std::string category = MakeCategory();
    const std::string voyage = MakeVoyage(category);
    ASSERT_TRUE(Remarks().AddRemark("ann", {kPortCallRemark, voyage + "Ulsan"}, {1, "", "", 1, 1}));
    auto loaded = Catalog().LoadCatalog("ann").Value();
    EXPECT_FALSE(loaded[0].hasRemark);
    EXPECT_FALSE(loaded[0].voyages[0].hasRemark);
    ASSERT_TRUE(Remarks().AddRemark("ann", {kCategoryRemark, category}, {1, "", "", 1, 1}));
    ASSERT_TRUE(Remarks().AddRemark("ann", {kVoyageRemark, voyage}, {1, "", "", 1, 1}));
    loaded = Catalog().LoadCatalog("ann").Value();
    EXPECT_TRUE(loaded[0].hasRemark);
    EXPECT_TRUE(loaded[0].voyages[0].hasRemark);
    ASSERT_TRUE(Remarks().DeleteRemark("ann", {kVoyageRemark, voyage}, 1));
    EXPECT_FALSE(Catalog().LoadCatalog("ann").Value()[0].voyages[0].hasRemark);
}

TEST_P(StorageContract, PortCallRemarkNeedsAKnownVoyageAndAPortName) {
    const std::string voyage = MakeVoyage();
    EXPECT_TRUE(Remarks().AddRemark("ann", {kPortCallRemark, voyage + "7 Islands"}, {1, "", "", 1, 1}));
    EXPECT_TRUE(Remarks().AddRemark("ann", {kPortCallRemark, voyage + "上海"}, {1, "", "", 1, 1}));
    for (const std::string& object : {std::string(), voyage, std::string("Ulsan"), "9" + voyage + "Ulsan"}) {
        EXPECT_EQ(ReasonOf(Remarks().AddRemark("ann", {kPortCallRemark, object}, {1, "", "", 1, 1})),
                  FaultReason::UnknownObject)
            << object;
    }
}

TEST_P(StorageContract, RemarkObjectOfAnotherKindOrOwnerIsUnknown) {
    const std::string category = MakeCategory();
    const std::string voyage = MakeVoyage(category);
    const RemarkObject objects[] = {
        {kCategoryRemark, category}, {kVoyageRemark, voyage}, {kPortCallRemark, voyage + "Ulsan"}};
    for (const RemarkObject& object : objects) {
        ASSERT_TRUE(Remarks().AddRemark("ann", object, {1, "s", "b", 1, 1}));
        EXPECT_EQ(ReasonOf(Remarks().LoadRemarks("bob", object)), FaultReason::UnknownObject);
        EXPECT_EQ(ReasonOf(Remarks().AddRemark("bob", object, {2, "", "", 1, 1})),
                  FaultReason::UnknownObject);
        EXPECT_EQ(ReasonOf(Remarks().ChangeRemark("bob", object, {1, "", "", 1, 1})),
                  FaultReason::UnknownObject);
        EXPECT_EQ(ReasonOf(Remarks().DeleteRemark("bob", object, 1)), FaultReason::UnknownObject);
        EXPECT_EQ(Remarks().LoadRemarks("ann", object).Value()[0].subject, "s");
    }
    EXPECT_EQ(ReasonOf(Remarks().LoadRemarks("ann", {kCategoryRemark, voyage})), FaultReason::UnknownObject);
    EXPECT_EQ(ReasonOf(Remarks().LoadRemarks("ann", {kVoyageRemark, category})), FaultReason::UnknownObject);
    EXPECT_EQ(ReasonOf(Remarks().LoadRemarks("ann", {9, category})), FaultReason::UnknownObject);
}

}  // namespace
}  // namespace Tarvik::Server
