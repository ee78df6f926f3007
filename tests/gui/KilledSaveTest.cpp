// SPDX-License-Identifier: MIT
#include <csignal>
#include <random>
#include <set>

#include <gmock/gmock.h>

#include "tests/gui/ClientTree.h"

namespace Tarvik::Programs {

namespace {

using testing::AnyOf;

const std::vector<std::string> kSave{"plan", "Rotterdam", "Hamburg", "Singapore", "--save", "Trade/Next"};

/// The save, with the watcher on the data base's writes.
ChildProcess::Start WatchedSave(const ClientTree& client, long killAt, const std::string& countFile) {
    ChildProcess::Start start = client.Words(kSave);
    start.environment["LD_PRELOAD"] = KILL_LIBRARY;
    start.environment["ASAN_OPTIONS"] += ":verify_asan_link_order=0";
    start.environment["KILL_AT"] = std::to_string(killAt);
    if (!countFile.empty()) {
        start.environment["KILL_COUNT"] = countFile;
    }
    return start;
}

/// A client with one saved voyage.
std::unique_ptr<ClientTree> WithOneVoyage() {
    auto client = std::make_unique<ClientTree>();
    EXPECT_EQ(client->Plan({"Rotterdam", "Hamburg", "--save", "Trade/First"}).exitCode, 0);
    return client;
}

/// Rows of the schedules in the data base.
struct Rows {
    long calls;
    long book;
};

Rows RowsOf(const ClientTree& client) {
    return {client.Number("select count(*) from port_calls"),
            client.Number("select count(*) from book_rows")};
}

class KilledSave : public testing::Test {
  protected:
    KilledSave() {
        const auto client = WithOneVoyage();
        before_ = RowsOf(*client);
        const std::string file = client->Data("writes");
        EXPECT_EQ(RunToEnd(WatchedSave(*client, 0, file)).exitCode, 0);
        after_ = RowsOf(*client);
        std::ifstream(file) >> writes_;
    }

    /// Kills a save at the given write; what is then found must be whole, and the next save must work.
    void KillAt(long write) const {
        SCOPED_TRACE("killed at write " + std::to_string(write) + " of " + std::to_string(writes_));
        const auto client = WithOneVoyage();
        const Ended ended = RunToEnd(WatchedSave(*client, write, {}));
        EXPECT_EQ(ended.signal, SIGKILL) << ended.err;
        ASSERT_EQ(client->Plan({"Rotterdam", "Hamburg"}).exitCode, 0) << "the client starts again";
        EXPECT_EQ(client->Number("select count(*) from pragma_integrity_check where integrity_check='ok'"),
                  1);
        EXPECT_EQ(client->Number("select count(*) from pragma_foreign_key_check"), 0);
        const Rows found = RowsOf(*client);
        EXPECT_THAT(found.calls, AnyOf(before_.calls, after_.calls));
        // A book goes to the server in blocks of a hundred rows, each whole or not at all.
        const bool wholeBlocks = found.book == after_.book || (found.book - before_.book) % 100 == 0;
        EXPECT_TRUE(wholeBlocks) << found.book << " of " << after_.book;
        if (found.book > before_.book) {
            EXPECT_EQ(found.calls, after_.calls);
        }
        EXPECT_EQ(client->Plan({"Rotterdam", "Hamburg", "--save", "Trade/Other"}).exitCode, 0);
    }

    Rows before_{};
    Rows after_{};
    long writes_ = 0;
};

TEST_F(KilledSave, LeavesTheOldOrTheNewScheduleAtEveryMoment) {
    ASSERT_GT(writes_, 10);
    ASSERT_GT(after_.calls, before_.calls);
    std::random_device entropy;
    const unsigned seed = entropy();
    RecordProperty("seed", static_cast<int>(seed));
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::set<long> moments{1, writes_};
    while (moments.size() < 8) {
        moments.insert(1 + static_cast<long>(random() % static_cast<unsigned>(writes_)));
    }
    for (const long write : moments) {
        KillAt(write);
    }
}

}  // namespace
}  // namespace Tarvik::Programs
