// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/calculation/PortCallColumns.h"
#include "seaplan/panels/window/KeptColumns.h"
#include "testsupport/DataFolder.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::Optional;

namespace {

class KeptColumnsTest : public ::testing::Test {
  protected:
    std::filesystem::path File() const { return folder.Path() / "businessdata" / "seaplan" / "columns.txt"; }
    void Write(const std::string& text) const {
        std::filesystem::create_directories(File().parent_path());
        std::ofstream(File(), std::ios::binary) << text;
    }
    std::string Kept() const {
        std::ostringstream out;
        out << std::ifstream(File(), std::ios::binary).rdbuf();
        return out.str();
    }
    static KeptColumns Sample(const std::string& table = "one") {
        return {table, {{"A", false}, {"B"}, {"C"}}};
    }

    TestSupport::DataFolder folder;
};

}  // namespace

TEST_F(KeptColumnsTest, WhatWasChosenIsThereAgain) {
    KeptColumns columns = Sample();
    columns.SetWidth(1, 77);
    columns.SetHidden(2, true);
    ASSERT_TRUE(columns.Save());
    EXPECT_EQ(Kept(), "one B 77\none C hidden\n");
    const KeptColumns again = Sample();
    EXPECT_THAT(again.Columns()[1].width, Optional(77));
    EXPECT_TRUE(again.Columns()[2].hidden);
    EXPECT_FALSE(again.Columns()[0].width.has_value());
}

TEST_F(KeptColumnsTest, AnotherTableKeepsItsOwn) {
    KeptColumns other = Sample("two");
    other.SetWidth(1, 60);
    ASSERT_TRUE(other.Save());
    KeptColumns columns = Sample();
    columns.SetWidth(1, 70);
    ASSERT_TRUE(columns.Save());
    EXPECT_EQ(Kept(), "two B 60\none B 70\n");
    columns.Reset();
    ASSERT_TRUE(columns.Save());
    EXPECT_EQ(Kept(), "two B 60\n");
}

TEST_F(KeptColumnsTest, WidthsStayWithinLimitsAndSomeColumnsInSight) {
    KeptColumns columns = Sample();
    columns.SetWidth(1, 3);
    EXPECT_THAT(columns.Columns()[1].width, Optional(20));
    columns.SetWidth(1, 9000);
    EXPECT_THAT(columns.Columns()[1].width, Optional(400));
    columns.SetHidden(0, true);
    EXPECT_FALSE(columns.Columns()[0].hidden);
    columns.SetWidth(3, 50);
    columns.SetHidden(3, true);
    EXPECT_EQ(columns.Columns().size(), 3U);
}

TEST_F(KeptColumnsTest, ADamagedFileCountsForNothing) {
    Write("one A hidden\none B wide\none B\none Z 50\n\none C -4\ngarbage\n");
    const KeptColumns columns = Sample();
    for (const KeptColumn& column : columns.Columns()) {
        EXPECT_FALSE(column.hidden) << column.key;
        EXPECT_FALSE(column.width.has_value()) << column.key;
    }
}

TEST_F(KeptColumnsTest, AFolderThatTakesNoFileIsTold) {
    std::filesystem::create_directories(File().parent_path().parent_path());
    std::ofstream(File().parent_path(), std::ios::binary) << "a file where the folder should be";
    KeptColumns columns = Sample();
    columns.SetWidth(1, 77);
    EXPECT_FALSE(columns.Save());
    EXPECT_THAT(columns.Columns()[1].width, Optional(77)) << "it counts for now";
}

TEST_F(KeptColumnsTest, WhatTabLeadsThroughStaysInSight) {
    std::vector<int> hideable;
    const KeptColumns calls = KeptPortCallColumns();
    for (std::size_t i = 0; i < calls.Columns().size(); ++i) {
        if (calls.Columns()[i].canHide) {
            hideable.push_back(static_cast<int>(i));
        }
    }
    EXPECT_THAT(hideable, ElementsAre(ColPurpose, ColSteamTime, ColPortTime, ColEta, ColEtd, ColDistance));
    EXPECT_FALSE(KeptBookColumns().Columns()[1].canHide);
    EXPECT_TRUE(KeptBookColumns().Columns()[2].canHide);
}

}  // namespace Tarvik::Seaplan
