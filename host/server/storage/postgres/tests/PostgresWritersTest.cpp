// SPDX-License-Identifier: MIT
// A data base that is killed, or loses connections, while many write: what was confirmed is there, what is
// not known is told to be unknown, and the storage goes on by itself.
#include <atomic>
#include <chrono>
#include <set>
#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "host/server/storage/postgres/tests/PostgresTest.h"

namespace Tarvik::Server {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Eight that write at the same time while something happens to the data base; each goes on until the end.
class WritersInChaos : public PostgresTest {
  protected:
    static constexpr int kWriters = 8;

    void WriteWhile(Storage& storage, const std::function<void()>& happening) {
        std::atomic<bool> over = false;
        std::thread writers([&] {
            Together(kWriters, [&](int writer) {
                for (int number = 0; !over; ++number) {
                    Write(storage, fmt::format("{}-{}", writer, number));
                }
            });
        });
        // On this thread: a data base server ends with the one that started it.
        happening();
        over = true;
        writers.join();
    }
    void Write(Storage& storage, const std::string& name) {
        const auto made = storage.Catalog().CreateCategory("ann", name);
        const std::scoped_lock lock(mutex_);
        if (made) {
            confirmed_.insert(name);
        } else if (made.GetFault().reason == FaultReason::MaybeStored) {
            unknown_.insert(name);
        }
    }
    void ExpectWhatWasTold(Storage& storage) {
        std::set<std::string> stored;
        const auto catalog = storage.Catalog().LoadCatalog("ann");
        ASSERT_TRUE(catalog) << catalog.GetFault().detail;
        for (const CategoryRecord& category : catalog.Value()) {
            EXPECT_TRUE(stored.insert(category.name).second) << category.name;
        }
        for (const std::string& name : confirmed_) {
            EXPECT_TRUE(stored.contains(name)) << name << " was confirmed";
        }
        for (const std::string& name : stored) {
            EXPECT_TRUE(confirmed_.contains(name) || unknown_.contains(name)) << name << " was refused";
        }
    }
    void WaitForConfirmed(std::size_t more) {
        const auto end = steady_clock::now() + std::chrono::seconds(20);
        std::size_t wanted = 0;
        for (bool first = true; steady_clock::now() < end; first = false) {
            {
                const std::scoped_lock lock(mutex_);
                wanted = first ? confirmed_.size() + more : wanted;
                if (confirmed_.size() >= wanted) {
                    return;
                }
            }
            std::this_thread::sleep_for(milliseconds(2));
        }
        ADD_FAILURE() << "the storage does not go on";
    }

    std::mutex mutex_;
    std::set<std::string> confirmed_;
    std::set<std::string> unknown_;
};

TEST_F(WritersInChaos, KillsOfTheDataBaseLoseNothingConfirmed) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    WriteWhile(*storage, [&] {
        for (int round = 0; round < 4; ++round) {
            WaitForConfirmed(40);
            PostgresServer::Instance().CrashAndRestart();
        }
        WaitForConfirmed(40);
    });
    ExpectWhatWasTold(*storage);
}

TEST_F(WritersInChaos, KillsOfSingleConnectionsAreToldAsWhatTheyWere) {
    const auto storage = Open();
    ASSERT_NE(storage, nullptr) << error_;
    WriteWhile(*storage, [&] {
        for (int round = 0; round < 10; ++round) {
            WaitForConfirmed(20);
            BreakConnections();
        }
        WaitForConfirmed(20);
    });
    ExpectWhatWasTold(*storage);
}

}  // namespace
}  // namespace Tarvik::Server
