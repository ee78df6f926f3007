// SPDX-License-Identifier: MIT
#include <atomic>
#include <future>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "host/server/storage/contract/tests/WriteScript.h"
#include "host/server/storage/postgres/PostgresStorage.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

TEST(PostgresCrash, LosesNothingConfirmedAndTheStorageGoesOn) {
    std::mt19937 random(20260301);
    std::string error;
    const auto storage = PostgresStorage::Open(PostgresServer::Instance().MakeDatabase(), error);
    ASSERT_NE(storage, nullptr) << error;
    ASSERT_TRUE(WriteScript::Prepare(*storage));
    WrittenData expected = WriteScript::Start();
    int number = 0;
    for (int round = 0; round < 4; ++round) {
        const int before = 5 + static_cast<int>(random() % 10);
        std::promise<void> underWay;
        std::atomic<bool> over = false;
        int confirmed = 0;
        std::thread writer([&, from = number] {
            while (!over && WriteScript::Write(*storage, from + confirmed)) {
                if (++confirmed == before) {
                    underWay.set_value();
                }
            }
            if (confirmed < before) {
                underWay.set_value();
            }
        });
        underWay.get_future().wait();
        PostgresServer::Instance().CrashAndRestart();
        over = true;
        writer.join();
        ASSERT_GE(confirmed, before) << "the storage failed before the crash";
        for (int i = 0; i < confirmed; ++i) {
            WriteScript::Apply(expected, number++);
        }
        const WrittenData stored = WriteScript::Read(*storage);
        if (stored != expected) {
            WriteScript::Apply(expected, number++);
        }
        ASSERT_EQ(stored, expected) << "round " << round << ", write " << number;
    }
}

}  // namespace
}  // namespace Tarvik::Server
