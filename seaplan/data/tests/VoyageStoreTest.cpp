// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

namespace {

TEST(VoyageStore, ThereIsOneStore) {
    EXPECT_EQ(VoyageStore::Instance(), VoyageStore::Instance());
}

TEST(VoyageStore, IdsAreOrderedAsText) {
    VoyageStore store;
    store.categories["999"];
    store.categories["1000010"];
    EXPECT_EQ(store.categories.begin()->first, "1000010");
}

TEST(VoyageStore, RecordsDoNotMoveWhenOthersCome) {
    VoyageStore store;
    const VoyInfo* first = &store.voyages["5"];
    for (int i = 0; i < 1000; ++i) {
        store.voyages[std::to_string(i + 10)];
    }
    EXPECT_EQ(store.FindVoyage("5"), first);
    EXPECT_EQ(store.FindVoyage("none"), nullptr);
}

TEST(VoyageStore, CategoriesDoNotMoveWhenOthersComeOrAreReplaced) {
    VoyageStore store;
    const VoyCategory* first = &store.categories["5"];
    for (int i = 0; i < 1000; ++i) {
        store.categories[std::to_string(i + 10)];
    }
    VoyCategory renamed;
    renamed.cn = "Baltic";
    store.categories["5"] = renamed;
    EXPECT_EQ(&store.categories["5"], first);
    EXPECT_EQ(first->cn, "Baltic");
}

TEST(VoyageStore, AnEntryMadeByItsKeyHasTheDefaults) {
    VoyageStore store;
    EXPECT_EQ(store.voyages["5"].vi, "1000000");
    EXPECT_EQ(store.categories["5"].ci, "1000000");
    EXPECT_EQ(store.categoryStates["5"], InUse);
    EXPECT_EQ(store.categoryVoyages["5"]["6"], InUse);
}

TEST(VoyageStore, FoundVoyageIsTheOneInTheMap) {
    VoyageStore store;
    store.voyages["7"].vn = "Spring";
    ASSERT_NE(store.FindVoyage("7"), nullptr);
    store.FindVoyage("7")->vn = "Autumn";
    EXPECT_EQ(store.voyages["7"].vn, "Autumn");
    EXPECT_EQ(store.FindVoyage(""), nullptr);
}

TEST(VoyageStore, ClearEmptiesAllFourMaps) {
    VoyageStore store;
    store.categories["1"];
    store.voyages["2"];
    store.categoryStates["1"] = InUse;
    store.categoryVoyages["1"]["2"] = InUse;
    store.Clear();
    EXPECT_TRUE(store.categories.empty());
    EXPECT_TRUE(store.voyages.empty());
    EXPECT_TRUE(store.categoryStates.empty());
    EXPECT_TRUE(store.categoryVoyages.empty());
}

}  // namespace
}  // namespace Tarvik::Seaplan
