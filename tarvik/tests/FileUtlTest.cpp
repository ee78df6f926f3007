// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>

#include <tarvik/util/FileUtl.h>

namespace Tarvik::Util {

namespace {

TEST(FileUtlTest, StartsBesideTheProgram) {
    FileUtl::SetCurrentAppDirectory("");
    const std::string folder = FileUtl::GetCurrentAppDirectory();
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(folder) / "tarvik_test")) << folder;
    EXPECT_FALSE(folder.ends_with('/'));
}

TEST(FileUtlTest, FolderThatTheHostSetsHasNoSeparatorAtItsEnd) {
    FileUtl::SetCurrentAppDirectory("/data/app//");
    EXPECT_EQ(FileUtl::GetCurrentAppDirectory(), "/data/app");
    FileUtl::SetCurrentAppDirectory("/");
    EXPECT_EQ(FileUtl::GetCurrentAppDirectory(), "/");
    FileUtl::SetCurrentAppDirectory("");
}

TEST(FileUtlTest, TheSharedFilesLieBelowTheHostsFolder) {
    FileUtl::SetCurrentAppDirectory("/data/app/");
    EXPECT_EQ(FileUtl::BusinessData(kPointTableFile), "/data/app/businessdata/trvdb.db");
    EXPECT_EQ(FileUtl::BusinessData("ais"), "/data/app/businessdata/ais");
    FileUtl::SetCurrentAppDirectory("");
}

TEST(FileUtlTest, BackslashesBecomeTheSystemsSeparator) {
    EXPECT_EQ(FileUtl::NativePath("\\businessdata\\trvdb.db"), "/businessdata/trvdb.db");
    EXPECT_EQ(FileUtl::NativePath("a/b"), "a/b");
    EXPECT_EQ(FileUtl::NativePath(""), "");
}

}  // namespace
}  // namespace Tarvik::Util
