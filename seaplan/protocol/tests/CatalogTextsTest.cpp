// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/protocol/CatalogMessages.h"

namespace Tarvik::Seaplan {

namespace {

TEST(CatalogTextsTest, EveryTextIsByteExact) {
    EXPECT_EQ(LoadAllText("u1"), R"({ui:"u1"})");
    EXPECT_EQ(CreateCategoryText("Asia"), R"({ci:"",cn:"Asia",type:0})");
    EXPECT_EQ(CategoryStateText("11", 1), R"({ci:"11",type:"1"})");
    EXPECT_EQ(CategoryStateText("11", 2), R"({ci:"11",type:"2"})");
    EXPECT_EQ(CategoryStateText("11", 3), R"({ci:"11",type:"3"})");
    EXPECT_EQ(RenameCategoryText("11", "B"), R"({ci:"11",cn:"B",type:"4"})");
    EXPECT_EQ(CreateVoyageText("11", "V"), R"({ci:"11",vi:"",vn:"V",type:"0",vsi:"",vr:"0",va:"0"})");
    EXPECT_EQ(RenameVoyageText("21", "W"), R"({vi:"21",vn:"W",type:"1"})");
    EXPECT_EQ(VoyageStateText("21", 2), R"({vi:"21",type:"2"})");
    EXPECT_EQ(VoyageStateText("21", 3), R"({vi:"21",type:"3"})");
    EXPECT_EQ(VoyageStateText("21", 4), R"({vi:"21",type:"4"})");
    EXPECT_EQ(ChangeVesselText("21", "s", "Ship", 123456789),
              R"({vi:"21",type:"5",vsi:"s",vsn:"Ship",vsmsi:"123456789"})");
    EXPECT_EQ(RouteDisplayText("21", true), R"({vi:"21",type:"6",vr:"1"})");
    EXPECT_EQ(RouteDisplayText("21", false), R"({vi:"21",type:"6",vr:"0"})");
    EXPECT_EQ(AisTracingText("21", true), R"({vi:"21",type:"7",va:"1"})");
    EXPECT_EQ(AisTracingText("21", false), R"({vi:"21",type:"7",va:"0"})");
    EXPECT_EQ(AddAisModTimeText("21", "2024-01-01 00:00:00"), R"({vi:"21",time:"2024-01-01 00:00:00"})");
    EXPECT_EQ(VoyageIdText("21"), R"({vi:"21"})");
}

TEST(CatalogTextsTest, LongNamesAreNotCut) {
    const std::string name(3000, 'n');
    EXPECT_EQ(RenameVoyageText("21", name), "{vi:\"21\",vn:\"" + name + "\",type:\"1\"}");
}

TEST(CatalogTextsTest, QuotesInNamesAreNotEscaped) {
    EXPECT_EQ(ChangeVesselText("21", "", "50%s\\", -1),
              R"({vi:"21",type:"5",vsi:"",vsn:"50%s\",vsmsi:"-1"})");
    EXPECT_EQ(CreateCategoryText("a\"b"), R"({ci:"",cn:"a"b",type:0})");
}

}  // namespace
}  // namespace Tarvik::Seaplan
