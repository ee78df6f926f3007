// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/WriteScript.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"

namespace Tarvik::Server {

namespace {

using std::filesystem::perms;

constexpr perms kReadFolder = perms::owner_read | perms::owner_exec | perms::group_read | perms::group_exec |
                              perms::others_read | perms::others_exec;
constexpr perms kReadFile = perms::owner_read | perms::group_read | perms::others_read;
constexpr perms kWriteFile = kReadFile | perms::owner_write | perms::group_write | perms::others_write;
constexpr unsigned kNobody = 65534;

/// Whether `check` holds in a process whom permissions bind: the administrator, whom they do not, becomes
/// nobody there.
bool HoldsWithoutRights(const std::function<bool()>& check) {
    const pid_t child = fork();
    if (child == 0) {
        const bool bound = geteuid() != 0 || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
        _exit(bound && check() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

class ReadOnlyFolderTest : public ::testing::Test {
  protected:
    ~ReadOnlyFolderTest() override { Allow(folder_.File("."), perms::owner_all); }

    static void Allow(const std::string& path, perms rights) { std::filesystem::permissions(path, rights); }
    void MakeData() {
        std::string error;
        ASSERT_TRUE(WriteScript::Prepare(*SqliteStorage::Open(path_, error))) << error;
    }
    /// Refused with a text that holds `part`.
    bool IsRefused(const std::string& part) const {
        return HoldsWithoutRights([&] {
            std::string error;
            const auto storage = SqliteStorage::Open(path_, error);
            const bool refused = storage == nullptr && error.find(part) != std::string::npos;
            if (!refused) {
                fprintf(stderr, "opened: %d, text: %s\n", storage != nullptr, error.c_str());
            }
            return refused;
        });
    }
    std::string Bytes() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void ExpectDataAreThere() {
        std::string error;
        Allow(folder_.File("."), perms::owner_all);
        Allow(path_, kWriteFile);
        const auto storage = SqliteStorage::Open(path_, error);
        ASSERT_NE(storage, nullptr) << error;
        EXPECT_EQ(WriteScript::Read(*storage), WriteScript::Start());
    }

    TempFolder folder_;
    std::string path_ = folder_.File("voyages.db");
};

TEST_F(ReadOnlyFolderTest, FolderWithoutDataIsRefused) {
    Allow(folder_.File("."), kReadFolder);
    EXPECT_TRUE(IsRefused("cannot open the data base"));
}

TEST_F(ReadOnlyFolderTest, DataThatMayOnlyBeReadAreRefusedAndStay) {
    MakeData();
    const std::string before = Bytes();
    Allow(path_, kReadFile);
    Allow(folder_.File("."), kReadFolder);
    EXPECT_TRUE(IsRefused("read-only"));
    EXPECT_EQ(Bytes(), before);
    ExpectDataAreThere();
}

TEST_F(ReadOnlyFolderTest, WritableDataInAFolderWithoutRoomForTheLogAreRefusedAndStay) {
    MakeData();
    const std::string before = Bytes();
    Allow(path_, kWriteFile);
    Allow(folder_.File("."), kReadFolder);
    EXPECT_TRUE(IsRefused("readonly database"));
    EXPECT_EQ(Bytes(), before);
    ExpectDataAreThere();
}

}  // namespace
}  // namespace Tarvik::Server
