// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteDatabase.h"
#include "host/server/storage/sqlite/SqliteStorage.h"
#include "host/server/storage/sqlite/tests/TempFolder.h"
#include "host/server/storage/sqlite/tests/WriteScript.h"

#include <gtest/gtest.h>

#include <csignal>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace Tarvik::Server {
namespace {

constexpr char kBegun = 'b';
constexpr char kConfirmed = 'c';

/// The life of the writing process: it tells before and after each write, and goes on until it is killed.
[[noreturn]] void WriteForEver(const std::string& path, int number, int out) {
    std::string error;
    const auto storage = SqliteStorage::Open(path, error);
    bool good = storage != nullptr;
    for (; good; ++number) {
        good = write(out, &kBegun, 1) == 1 && WriteScript::Write(*storage, number) &&
               write(out, &kConfirmed, 1) == 1;
    }
    _exit(1);
}

/// Busy for a while that has no clock in it.
void Spin(unsigned turns) {
    volatile unsigned turn = 0;
    while (turn < turns) turn = turn + 1;
}

/// What a writing process said before it was killed.
struct Said {
    int begun = 0;
    int confirmed = 0;
    bool killed = false;

    void Take(char word) { (word == kBegun ? begun : confirmed) += 1; }
};

class KillTest : public ::testing::Test {
  protected:
    /// Runs a writer from write `number` on and kills it at a random moment behind its `writes`-th write.
    Said WriteAndKill(int number, int writes) {
        int ends[2];
        if (pipe(ends) != 0) return {};
        const pid_t writer = fork();
        if (writer == 0) {
            close(ends[0]);
            WriteForEver(path_, number, ends[1]);
        }
        close(ends[1]);
        Said said;
        char word = 0;
        while (said.begun < writes && read(ends[0], &word, 1) == 1) said.Take(word);
        Spin(static_cast<unsigned>(random_() % 3000000));
        kill(writer, SIGKILL);
        while (read(ends[0], &word, 1) == 1) said.Take(word);
        close(ends[0]);
        int status = 0;
        waitpid(writer, &status, 0);
        said.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
        return said;
    }

    TempFolder folder_;
    std::string path_ = folder_.File("voyages.db");
    std::string error_;
    std::mt19937 random_{20260301};
};

TEST_F(KillTest, KilledWriterLeavesEveryConfirmedChangeAndNoHalfOne) {
    ASSERT_TRUE(WriteScript::Prepare(*SqliteStorage::Open(path_, error_))) << error_;
    WrittenData expected = WriteScript::Start();
    int number = 0;
    int halfWay = 0;
    constexpr int kRounds = 24;
    for (int round = 0; round < kRounds; ++round) {
        const Said said = WriteAndKill(number, 10 + static_cast<int>(random_() % 10));
        ASSERT_TRUE(said.killed) << "the writer ended by itself in round " << round;
        ASSERT_GE(said.begun, said.confirmed);
        ASSERT_LE(said.begun, said.confirmed + 1);
        halfWay += said.begun - said.confirmed;
        for (int i = 0; i < said.confirmed; ++i) WriteScript::Apply(expected, number++);
        const auto storage = SqliteStorage::Open(path_, error_);
        ASSERT_NE(storage, nullptr) << error_;
        const WrittenData stored = WriteScript::Read(*storage);
        if (stored != expected && said.begun > said.confirmed) WriteScript::Apply(expected, number++);
        ASSERT_EQ(stored, expected) << "round " << round << ", write " << number;
    }
    EXPECT_GE(number, 200);
    EXPECT_GT(halfWay, 0) << "no round killed a writer within a write";
    SqliteDatabase database(path_);
    EXPECT_EQ(
        database.QueryInteger("SELECT count(*) FROM pragma_integrity_check WHERE integrity_check = 'ok'"), 1);
}

}  // namespace
}  // namespace Tarvik::Server
