// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/KilledWriter.h"

#include <array>
#include <csignal>
#include <random>
#include <set>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "host/server/storage/contract/CatalogStorage.h"
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

/// Many that write at the same time: which of them made a category, and how many it has made.
constexpr int kTogether = 8;

std::string NameOf(int thread, int number) {
    return std::to_string(thread) + "-" + std::to_string(number);
}

/// The life of the process in which many write: each tells by its number what was confirmed.
[[noreturn]] void WriteTogetherForEver(const StorageOpener& open, int round, int out) {
    const auto storage = open();
    std::vector<std::thread> threads;
    for (int t = 0; storage != nullptr && t < kTogether; ++t) {
        threads.emplace_back([&, t] {
            const std::string owner = "round" + std::to_string(round);
            const char word = static_cast<char>(t);
            for (int i = 0; storage->Catalog().CreateCategory(owner, NameOf(t, i)); ++i) {
                if (write(out, &word, 1) != 1) {
                    break;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    _exit(1);
}

using Confirmed = std::array<int, kTogether>;

/// How many writes of each were confirmed until the process was killed.
Confirmed WriteTogetherAndKill(const StorageOpener& open, int round, std::mt19937& random) {
    Confirmed confirmed{};
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t writer = fork();
    if (writer == 0) {
        close(ends[0]);
        WriteTogetherForEver(open, round, ends[1]);
    }
    close(ends[1]);
    const int before = 20 + static_cast<int>(random() % 60);
    char word = 0;
    for (int count = 0; read(ends[0], &word, 1) == 1; ++count) {
        ++confirmed.at(static_cast<std::size_t>(word));
        if (count == before) {
            kill(writer, SIGKILL);
        }
    }
    close(ends[0]);
    int status = 0;
    waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the writers ended by themselves";
    return confirmed;
}

}  // namespace

void ExpectKilledGroupsLoseNothingConfirmed(const StorageOpener& open, const std::function<void()>& settled) {
    std::mt19937 random{20260302};
    constexpr int kRounds = 12;
    for (int round = 0; round < kRounds; ++round) {
        const Confirmed confirmed = WriteTogetherAndKill(open, round, random);
        settled();
        const auto storage = open();
        ASSERT_NE(storage, nullptr);
        std::set<std::string> stored;
        const auto catalog = storage->Catalog().LoadCatalog("round" + std::to_string(round));
        ASSERT_TRUE(catalog) << catalog.GetFault().detail;
        for (const CategoryRecord& category : catalog.Value()) {
            EXPECT_TRUE(stored.insert(category.name).second) << category.name << " twice";
        }
        std::size_t unconfirmed = stored.size();
        for (int t = 0; t < kTogether; ++t) {
            for (int i = 0; i < confirmed.at(static_cast<std::size_t>(t)); ++i, --unconfirmed) {
                ASSERT_TRUE(stored.contains(NameOf(t, i))) << NameOf(t, i) << " in round " << round;
            }
        }
        // Each had asked for one more at most.
        EXPECT_LE(unconfirmed, static_cast<std::size_t>(kTogether));
    }
}

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
