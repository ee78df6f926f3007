// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/KilledWriter.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/WriteScript.h"

namespace Tarvik::Server {

namespace {

constexpr char kBegun = 'b';
constexpr char kConfirmed = 'c';

/// What a writing process said before it was killed.
struct WriterWords {
    int begun = 0;        ///< writes that it set out to do
    int confirmed = 0;    ///< writes that the storage has confirmed
    bool killed = false;  ///< false when it ended by itself
};

/// The life of the writing process: it tells before and after each write, and goes on until it is killed.
[[noreturn]] void WriteForEver(const StorageOpener& open, int number, int out) {
    const auto storage = open();
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
    while (turn < turns) {
        turn = turn + 1;
    }
}

bool TakeWord(int in, WriterWords& words) {
    char word = 0;
    if (read(in, &word, 1) != 1) {
        return false;
    }
    (word == kBegun ? words.begun : words.confirmed) += 1;
    return true;
}

/// Starts a process that writes from `number` on, and kills it at a random moment behind its `writes`-th
/// write.
WriterWords WriteAndKill(const StorageOpener& open, int number, int writes, std::mt19937& random) {
    WriterWords words;
    int ends[2];
    if (pipe(ends) != 0) {
        return words;
    }
    const pid_t writer = fork();
    if (writer == 0) {
        close(ends[0]);
        WriteForEver(open, number, ends[1]);
    }
    close(ends[1]);
    while (words.begun < writes && TakeWord(ends[0], words)) {
    }
    Spin(static_cast<unsigned>(random() % 3000000));
    kill(writer, SIGKILL);
    while (TakeWord(ends[0], words)) {
    }
    close(ends[0]);
    int status = 0;
    waitpid(writer, &status, 0);
    words.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    return words;
}

/// What should be stored, and how far the writing has come.
struct Progress {
    WrittenData expected = WriteScript::Start();
    int number = 0;
    int halfWay = 0;
};

void KillOne(const StorageOpener& open, const std::function<void()>& settled, std::mt19937& random,
             Progress& progress) {
    const int writes = 10 + static_cast<int>(random() % 10);
    const WriterWords words = WriteAndKill(open, progress.number, writes, random);
    ASSERT_TRUE(words.killed) << "the writer ended by itself";
    ASSERT_GE(words.begun, words.confirmed);
    ASSERT_LE(words.begun, words.confirmed + 1);
    progress.halfWay += words.begun - words.confirmed;
    for (int i = 0; i < words.confirmed; ++i) {
        WriteScript::Apply(progress.expected, progress.number++);
    }
    settled();
    const auto storage = open();
    ASSERT_NE(storage, nullptr);
    const WrittenData stored = WriteScript::Read(*storage);
    if (stored != progress.expected && words.begun > words.confirmed) {
        WriteScript::Apply(progress.expected, progress.number++);
    }
    ASSERT_EQ(stored, progress.expected) << "write " << progress.number;
}

}  // namespace

void ExpectKilledWritersLeaveNoHalfChange(const StorageOpener& open, const std::function<void()>& settled) {
    {
        const auto storage = open();
        ASSERT_NE(storage, nullptr);
        ASSERT_TRUE(WriteScript::Prepare(*storage));
    }
    std::mt19937 random{20260301};
    Progress progress;
    constexpr int kRounds = 24;
    for (int round = 0; round < kRounds && !testing::Test::HasFatalFailure(); ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        KillOne(open, settled, random, progress);
    }
    EXPECT_GE(progress.number, 200);
    EXPECT_GT(progress.halfWay, 0) << "no round killed a writer within a write";
}

}  // namespace Tarvik::Server
