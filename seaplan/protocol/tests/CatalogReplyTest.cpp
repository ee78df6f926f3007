// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/CatalogMessages.h"

namespace Tarvik::Seaplan {

namespace {

VoyageStore StoreOf(const std::string& json) {
    Util::Jsona reply;
    EXPECT_TRUE(reply.parse(json)) << json;
    VoyageStore store;
    ReadCatalog(reply, store);
    return store;
}

TEST(CatalogReplyTest, ReadsCategoriesAndVoyages) {
    const VoyageStore store = StoreOf(
        R"([{ci:"1",cn:"A",crk:"1",cd:"2",voys:[{vi:"9",vn:"V",vsi:"s",vsn:"Ship",vsmsi:"412000000",vr:"1",va:"1",)"
        R"(vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7",vrk:"1",modais:"8",vd:"1"}]}])");
    EXPECT_EQ(store.categories.at("1").cn, "A");
    EXPECT_EQ(store.categories.at("1").crk, 1);
    EXPECT_EQ(store.categoryStates.at("1"), Destroyed);
    EXPECT_EQ(store.categoryVoyages.at("1").at("9"), InRecycleBin);
    const VoyInfo& voyage = store.voyages.at("9");
    EXPECT_EQ(voyage.vi, "9");
    EXPECT_EQ(voyage.vn, "V");
    EXPECT_EQ(voyage.vsi, "s");
    EXPECT_EQ(voyage.vsn, "Ship");
    EXPECT_EQ(voyage.vsmsi, 412000000);
    EXPECT_EQ(voyage.vr, 1);
    EXPECT_EQ(voyage.va, 1);
    EXPECT_EQ(voyage.vrk, 1);
    EXPECT_EQ(voyage.modais, 8);
}

TEST(CatalogReplyTest, FuelInPortIsZeroWhateverTheReplyHolds) {
    const VoyageStore store = StoreOf(
        R"([{ci:"1",voys:[{vi:"9",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"7"},{vi:"8",vfa:"3"}]}])");
    EXPECT_EQ(store.voyages.at("9").figures, (BunkerFigures{1, 2, 0, 4, 5, 6, 7}));
    EXPECT_EQ(store.voyages.at("8").figures, BunkerFigures{});
}

TEST(CatalogReplyTest, CategoryWithoutIdIsSkippedWithItsVoyages) {
    const VoyageStore store = StoreOf(R"([{cn:"A",voys:[{vi:"9"}]},{ci:"2"}])");
    EXPECT_EQ(store.categories.size(), 1U);
    EXPECT_TRUE(store.voyages.empty());
}

TEST(CatalogReplyTest, VoyageWithoutIdIsSkippedAndItsSiblingsStay) {
    const VoyageStore store = StoreOf(R"([{ci:"1",voys:[{vn:"x"},{vi:"9"}]}])");
    EXPECT_EQ(store.voyages.size(), 1U);
    EXPECT_EQ(store.voyages.count("9"), 1U);
}

TEST(CatalogReplyTest, MissingNumbersAreZero) {
    const VoyageStore store = StoreOf(R"([{ci:"1",voys:[{vi:"9"}]}])");
    EXPECT_EQ(store.categories.at("1").crk, 0);
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    EXPECT_EQ(store.categoryVoyages.at("1").at("9"), InUse);
}

TEST(CatalogReplyTest, NumbersBeyondThirtyTwoBitsAreClamped) {
    const VoyageStore store = StoreOf(
        R"([{ci:"1",voys:[{vi:"8",vsmsi:"99999999999"},{vi:"9",vsmsi:"-99999999999",modais:"4294967296"}]}])");
    EXPECT_EQ(store.voyages.at("8").vsmsi, 2147483647);
    EXPECT_EQ(store.voyages.at("9").vsmsi, -2147483647 - 1);
    EXPECT_EQ(store.voyages.at("9").modais, 2147483647);
}

TEST(CatalogReplyTest, LaterOfTwoRecordsWithOneIdStays) {
    const VoyageStore store = StoreOf(
        R"([{ci:"1",cn:"A",cd:"1",voys:[{vi:"9",vn:"old",vd:"1"}]},{ci:"1",cn:"B",voys:[{vi:"9",vn:"new"}]}])");
    EXPECT_EQ(store.categories.at("1").cn, "B");
    EXPECT_EQ(store.categoryStates.at("1"), InUse);
    EXPECT_EQ(store.voyages.at("9").vn, "new");
    EXPECT_EQ(store.categoryVoyages.at("1").at("9"), InUse);
}

TEST(CatalogReplyTest, ObjectIsWalkedByItsMembers) {
    const VoyageStore store = StoreOf(R"({a:{ci:"1",voys:{b:{vi:"9"}}},eid:0})");
    EXPECT_EQ(store.categories.size(), 1U);
    EXPECT_EQ(store.voyages.count("9"), 1U);
}

TEST(CatalogReplyTest, UnquotedNumbersReadAsMissing) {
    const VoyageStore store = StoreOf(R"([{ci:"1",crk:1,voys:[{vi:"9",vr:1}]}])");
    EXPECT_EQ(store.categories.at("1").crk, 0);
    EXPECT_EQ(store.voyages.at("9").vr, 0);
}

}  // namespace
}  // namespace Tarvik::Seaplan
