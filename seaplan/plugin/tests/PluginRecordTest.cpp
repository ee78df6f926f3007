// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tarvik/util/StringUtl.h>

#include "seaplan/plugin/Exports.h"

namespace Tarvik::Seaplan {

namespace {

TEST(PluginRecordTest, TellsNameVersionAndPurpose) {
    const Plugin::CPluginInfo& record = *PluginRecord();
    EXPECT_EQ(record.name, "Seaplan");
    EXPECT_EQ(Util::StringUtl::TranslateString(std::u16string(record.DisplayName())), "Seaplan");
    EXPECT_EQ(record.version, "2.0.1.0");
    EXPECT_EQ(Util::StringUtl::TranslateString(std::u16string(record.Description())), "Voyage Management");
    EXPECT_EQ(Util::StringUtl::TranslateString(std::u16string(record.Company())), "Seaplan project");
    EXPECT_EQ(record.flag, 0);
    EXPECT_EQ(record.EMail(), nullptr);
    EXPECT_EQ(record.Website(), nullptr);
}

TEST(PluginRecordTest, DependsOnHostAndChart) {
    const Plugin::CPluginInfo& record = *PluginRecord();
    EXPECT_EQ(record.dependencyText, "TRV,1.1.4|PlgSeamap,1.1");
    EXPECT_EQ(record.dependencies.Text(), record.dependencyText);
    EXPECT_EQ(record.dependencies.Flag(), 1);
    ASSERT_EQ(record.dependencies.Entries().size(), 2U);
    EXPECT_EQ(record.dependencies.Entries()[0].name, "TRV");
    EXPECT_EQ(record.dependencies.Entries()[0].version, (Core::Version{1, 1, 4, -1}));
    EXPECT_EQ(record.dependencies.Entries()[1].name, "PlgSeamap");
    EXPECT_EQ(record.dependencies.Entries()[1].version, (Core::Version{1, 1, -1, -1}));
}

TEST(PluginRecordTest, IsTheSameAtEveryCall) {
    EXPECT_EQ(PluginRecord(), PluginRecord());
}

}  // namespace
}  // namespace Tarvik::Seaplan
