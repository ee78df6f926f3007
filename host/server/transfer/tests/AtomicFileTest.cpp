// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "host/server/storage/sqlite/tests/TempFolder.h"
#include "host/server/transfer/AtomicFile.h"

namespace Tarvik::Server {

namespace {

namespace fs = std::filesystem;

class AtomicFileTest : public ::testing::Test {
  protected:
    std::string Bytes() const {
        std::ifstream in(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    std::size_t Files() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(fs::path(path_).parent_path()), {}));
    }

    TempFolder folder_;
    std::string path_ = folder_.File("users");
    std::string error_;
};

TEST_F(AtomicFileTest, CommittedFileReplacesAnotherAndIsForItsOwnerOnly) {
    std::ofstream(path_) << "before";
    const std::string large(1000000, 'x');
    AtomicFile file(path_);
    ASSERT_TRUE(file.Open(error_));
    file.Write("a");
    file.Write(large);
    EXPECT_EQ(Bytes(), "before");
    ASSERT_TRUE(file.Commit(error_)) << error_;
    EXPECT_EQ(Bytes(), "a" + large);
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Files(), 1U);
}

TEST_F(AtomicFileTest, FileThatIsNotCommittedLeavesNothing) {
    std::ofstream(path_) << "before";
    {
        AtomicFile file(path_);
        ASSERT_TRUE(file.Open(error_));
        file.Write(std::string(1000000, 'x'));
    }
    EXPECT_EQ(Bytes(), "before");
    EXPECT_EQ(Files(), 1U);
}

TEST_F(AtomicFileTest, LinksAndDevicesAreNotReplaced) {
    const std::string target = folder_.File("target");
    std::ofstream(target) << "before";
    fs::create_symlink(target, path_);
    for (const std::string& place : {path_, std::string("/dev/null"), std::string("/dev/stdout")}) {
        AtomicFile file(place);
        EXPECT_FALSE(file.Open(error_));
        EXPECT_TRUE(error_.starts_with("cannot write " + place + ": it is ")) << error_;
    }
    EXPECT_TRUE(fs::is_symlink(path_));
    EXPECT_EQ(Bytes(), "before");
    EXPECT_EQ(Files(), 2U);
}

TEST_F(AtomicFileTest, LinkThatComesMeanwhileIsNotReplaced) {
    AtomicFile file(path_);
    ASSERT_TRUE(file.Open(error_));
    file.Write("x");
    fs::create_symlink(folder_.File("target"), path_);
    EXPECT_FALSE(file.Commit(error_));
    EXPECT_TRUE(fs::is_symlink(path_));
}

TEST_F(AtomicFileTest, MissingFolderIsToldByName) {
    const std::string nowhere = folder_.File("none/users");
    AtomicFile file(nowhere);
    EXPECT_FALSE(file.Open(error_));
    EXPECT_EQ(error_, "cannot write " + nowhere + ": No such file or directory");
}

TEST_F(AtomicFileTest, PlaceThatIsAFolderIsRefused) {
    fs::create_directories(path_ + "/inside");
    AtomicFile file(path_);
    ASSERT_TRUE(file.Open(error_));
    EXPECT_FALSE(file.Commit(error_));
    EXPECT_EQ(error_, "cannot write " + path_ + ": Is a directory");
}

}  // namespace
}  // namespace Tarvik::Server
