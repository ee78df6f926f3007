// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/client/services/AppFolders.h"
#include "host/client/tests/PortDatabase.h"
#include "testsupport/TemporaryFolder.h"

namespace Tarvik::Client {

namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

/// A land file with a given content.
std::string Land(const std::string& content) {
    return "LANDV001" + std::string(1, static_cast<char>(content.size())) + std::string(7, '\0') + content;
}

/// A program's tree: bin, lib and share, with all that is shipped.
class AppFoldersTest : public testing::Test {
  protected:
    AppFoldersTest() {
        for (const char* name : {"bin", "lib", "share/seaplan"}) {
            fs::create_directories(root_.File(name));
        }
        MakePortDatabase(root_.File("share/seaplan/trvdb.db"));
        root_.Write("share/seaplan/land.bin", Land("land"));
        root_.Write("share/seaplan/ship.png", "ship");
    }
    AppFolders Folders() const { return AppFolders(root_.File("bin"), root_.File("data")); }

    TestSupport::TemporaryFolder root_;
    std::string error_;
};

TEST_F(AppFoldersTest, FillsTheDataFolderAtFirstStart) {
    ASSERT_TRUE(Folders().Prepare(error_)) << error_;
    EXPECT_EQ(root_.Read("data/businessdata/land.bin"), Land("land"));
    EXPECT_EQ(root_.Read("data/businessdata/seaplan/ship.png"), "ship");
    EXPECT_TRUE(fs::exists(root_.File("data/businessdata/trvdb.db")));
    EXPECT_FALSE(fs::exists(root_.File("data/.writable")));
}

TEST_F(AppFoldersTest, FindsShippedFilesInTheirNestedPlaceToo) {
    fs::create_directories(root_.File("share/seaplan/businessdata"));
    fs::rename(root_.File("share/seaplan/land.bin"), root_.File("share/seaplan/businessdata/land.bin"));
    ASSERT_TRUE(Folders().Prepare(error_)) << error_;
    EXPECT_EQ(root_.Read("data/businessdata/land.bin"), Land("land"));
}

TEST_F(AppFoldersTest, KeepsThePersonsFilesAndMendsACopyThatWasCut) {
    ASSERT_TRUE(Folders().Prepare(error_));
    root_.Write("data/businessdata/seaplan/Ports.dat", "mine");
    root_.Write("data/businessdata/land.bin", "la");
    ASSERT_TRUE(Folders().Prepare(error_));
    EXPECT_EQ(root_.Read("data/businessdata/seaplan/Ports.dat"), "mine");
    EXPECT_EQ(root_.Read("data/businessdata/land.bin"), Land("land"));
}

TEST_F(AppFoldersTest, TakesOverAShippedFileThatBecameNewer) {
    ASSERT_TRUE(Folders().Prepare(error_));
    root_.Write("share/seaplan/land.bin", Land("isle"));
    fs::last_write_time(
        root_.File("share/seaplan/land.bin"),
        fs::last_write_time(root_.File("data/businessdata/land.bin")) + std::chrono::hours(1));
    ASSERT_TRUE(Folders().Prepare(error_));
    EXPECT_EQ(root_.Read("data/businessdata/land.bin"), Land("isle"));
}

TEST_F(AppFoldersTest, NamesAMissingShippedFile) {
    fs::remove(root_.File("share/seaplan/land.bin"));
    EXPECT_FALSE(Folders().Prepare(error_));
    EXPECT_THAT(error_, testing::AllOf(HasSubstr("land.bin is missing"), HasSubstr("again")));
}

TEST_F(AppFoldersTest, NamesAPortTableThatIsCutShort) {
    const auto size = fs::file_size(root_.File("share/seaplan/trvdb.db"));
    fs::resize_file(root_.File("share/seaplan/trvdb.db"), size / 2);
    EXPECT_FALSE(Folders().Prepare(error_));
    EXPECT_THAT(error_, HasSubstr("trvdb.db is missing or cut short"));
}

TEST_F(AppFoldersTest, NamesALandFileThatIsCutShort) {
    root_.Write("share/seaplan/land.bin", Land("land").substr(0, 19));
    EXPECT_FALSE(Folders().Prepare(error_));
    EXPECT_THAT(error_, HasSubstr("land.bin is missing or cut short"));
    EXPECT_FALSE(fs::exists(root_.File("data/businessdata/trvdb.db")));
}

TEST_F(AppFoldersTest, ADataFolderThatCannotBeMadeIsNamedWithAdvice) {
    root_.Write("plainfile", "");
    const AppFolders folders(root_.File("bin"), root_.File("plainfile/data"));
    EXPECT_FALSE(folders.Prepare(error_));
    EXPECT_THAT(error_, testing::AllOf(HasSubstr("plainfile/data"), HasSubstr("--data DIR")));
}

TEST_F(AppFoldersTest, ADataFolderThatTakesNoFileIsNamedWithAdvice) {
    // A folder in the place of the probe file refuses the write, whoever runs the test.
    fs::create_directories(root_.File("data/.writable/full"));
    EXPECT_FALSE(Folders().Prepare(error_));
    EXPECT_THAT(error_, testing::AllOf(HasSubstr("cannot be written or is full"), HasSubstr("--data DIR")));
}

TEST(DatabaseFile, OfAnotherKindOrMissingIsRefused) {
    TestSupport::TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(CheckDatabaseFile(folder.File("none.db"), error));
    folder.Write("text.db", std::string(4096, 'x'));
    EXPECT_FALSE(CheckDatabaseFile(folder.File("text.db"), error));
    MakePortDatabase(folder.File("good.db"));
    EXPECT_TRUE(CheckDatabaseFile(folder.File("good.db"), error));
}

TEST(FramedFile, OfAnotherKindCutOrGrownIsRefused) {
    TestSupport::TemporaryFolder folder;
    std::string error;
    const std::string whole = Land("land");
    folder.Write("whole", whole);
    EXPECT_TRUE(CheckLandFile(folder.File("whole"), error));
    EXPECT_FALSE(CheckNetworkFile(folder.File("whole"), error));
    for (const std::string& bad : {whole.substr(0, 19), whole.substr(0, 10), whole + "x", std::string()}) {
        folder.Write("bad", bad);
        EXPECT_FALSE(CheckLandFile(folder.File("bad"), error)) << bad.size();
    }
    EXPECT_FALSE(CheckLandFile(folder.File("none"), error));
}

}  // namespace
}  // namespace Tarvik::Client
