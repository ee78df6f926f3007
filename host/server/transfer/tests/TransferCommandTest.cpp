// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/transfer/TransferCommand.h"

namespace Tarvik::Server {

namespace {

using Words = std::vector<std::string>;

TEST(TransferCommandTest, ExportTakesAUserOrAll) {
    const auto one = TransferCommand::Parse({"export", "--user", "anna", "file"});
    ASSERT_TRUE(one);
    EXPECT_FALSE(one->import);
    EXPECT_EQ(one->exporting.user, "anna");
    EXPECT_EQ(one->file, "file");
    const auto all = TransferCommand::Parse({"export", "file", "--all", "--data=folder"});
    ASSERT_TRUE(all);
    EXPECT_TRUE(all->exporting.all);
    EXPECT_EQ(all->data, "folder");
    EXPECT_EQ(TransferCommand::Parse({"export", "file"})->exporting.user, "");
}

TEST(TransferCommandTest, ImportTakesAUserAndAdd) {
    const auto command =
        TransferCommand::Parse({"import", "--user=anna", "--add", "--data", "folder", "file"});
    ASSERT_TRUE(command);
    EXPECT_TRUE(command->import);
    EXPECT_TRUE(command->importing.add);
    EXPECT_EQ(command->importing.user, "anna");
    EXPECT_EQ(command->data, "folder");
    EXPECT_FALSE(TransferCommand::Parse({"import", "file"})->importing.add);
    EXPECT_FALSE(command->importing.skipBad);
    EXPECT_TRUE(TransferCommand::Parse({"import", "--skip-bad", "file"})->importing.skipBad);
    EXPECT_FALSE(TransferCommand::Parse({"export", "--skip-bad", "file"}));
}

TEST(TransferCommandTest, OtherFormsAreNone) {
    for (const Words& words :
         {Words{}, Words{"export"}, Words{"import"}, Words{"serve", "file"}, Words{"export", "file", "file"},
          Words{"export", "--user"}, Words{"export", "--user", "", "file"},
          Words{"export", "--user=", "file"}, Words{"export", "--all", "--user", "anna", "file"},
          Words{"import", "--all", "file"}, Words{"export", "--add", "file"},
          Words{"export", "--what", "file"}, Words{"export", ""},
          Words{"import", "--user", "a", "--user", "b", "file"}, Words{"export", "--username", "file"}}) {
        EXPECT_FALSE(TransferCommand::Parse(words)) << testing::PrintToString(words);
    }
}

}  // namespace
}  // namespace Tarvik::Server
