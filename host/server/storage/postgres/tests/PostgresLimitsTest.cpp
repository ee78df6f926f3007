// SPDX-License-Identifier: MIT
// A data base that hangs, is full, or grants too little: who asks is told in time, and what can wait waits.
#include <chrono>
#include <csignal>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "host/server/storage/postgres/tests/PostgresTest.h"

namespace Tarvik::Server {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class PostgresLimitsTest : public PostgresTest {
  protected:
    std::unique_ptr<PostgresStorage> OpenWith(int connections, milliseconds patience) {
        return PostgresStorage::Open(connection_, error_, {connections, patience});
    }
    /// The process in the data base that serves the only other connection.
    pid_t Backend() {
        return std::stoi(
            Query("SELECT pid FROM pg_stat_activity WHERE datname = current_database() "
                  "AND pid <> pg_backend_pid()"));
    }
    /// A role that nobody had before, since roles are those of all data bases, and its connection text.
    std::string MakeRole(std::string& name, const std::string& rights) {
        static int made = 0;
        name += std::to_string(++made);
        Execute(fmt::format("CREATE ROLE {} LOGIN {}", name, rights));
        std::string text = connection_;
        text.replace(text.find("user=seaplan"), 12, "user=" + name);
        return text;
    }
};

TEST_F(PostgresLimitsTest, EveryConnectionHasTheLimitsThatAreDocumented) {
    PostgresConnection connection(connection_);
    connection.Begin(PostgresConnection::Mode::Read);
    EXPECT_EQ(connection.Execute("SHOW lock_timeout").Text(0, 0), "10s");
    EXPECT_EQ(connection.Execute("SHOW statement_timeout").Text(0, 0), "14s");
    EXPECT_EQ(PostgresOptions().patience, milliseconds(15000));
}

TEST_F(PostgresLimitsTest, SilentDataBaseIsGivenUpAndTheNextRequestIsAnswered) {
    const auto storage = OpenWith(1, milliseconds(500));
    ASSERT_NE(storage, nullptr) << error_;
    const pid_t backend = Backend();
    ASSERT_EQ(::kill(backend, SIGSTOP), 0);
    const auto begin = steady_clock::now();
    const auto loaded = storage->Catalog().LoadCatalog("ann");
    const auto time = steady_clock::now() - begin;
    ::kill(backend, SIGCONT);
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.GetFault().detail, "the data base did not answer in time");
    EXPECT_GE(time, milliseconds(500));
    EXPECT_LT(time, milliseconds(3000));
    EXPECT_TRUE(storage->Catalog().CreateCategory("ann", "A"));
}

TEST_F(PostgresLimitsTest, GivingUpEndsWhatWaits) {
    const auto storage = OpenWith(2, milliseconds(15000));
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    PostgresConnection holder(connection_);
    holder.Begin(PostgresConnection::Mode::Write);
    holder.Execute("LOCK TABLE port_calls IN ACCESS EXCLUSIVE MODE");
    std::thread writer([&] { EXPECT_FALSE(storage->Schedule().ReplacePortCalls("ann", voyage, {})); });
    while (holder.Execute("SELECT count(*) FROM pg_locks WHERE NOT granted").Integer(0, 0) == 0) {
    }
    const auto begin = steady_clock::now();
    storage->GiveUp();
    writer.join();
    EXPECT_LT(steady_clock::now() - begin, milliseconds(2000));
    EXPECT_FALSE(storage->Catalog().LoadCatalog("ann"));
}

TEST_F(PostgresLimitsTest, RequestsWaitWhereTheDataBaseGrantsFewerConnectionsThanThePool) {
    {
        const auto made = Open();
        ASSERT_NE(made, nullptr) << error_;
    }
    std::string guest = "guest";
    const std::string text = MakeRole(guest, "CONNECTION LIMIT 2");
    Execute(
        fmt::format("GRANT ALL ON ALL TABLES IN SCHEMA public TO {0}; GRANT ALL ON SEQUENCE ids TO {0}; "
                    "GRANT ALL ON SCHEMA public TO {0}",
                    guest));
    const auto storage = PostgresStorage::Open(text, error_, {8});
    ASSERT_NE(storage, nullptr) << error_;
    Together(8, [&](int) {
        for (int i = 0; i < 5; ++i) {
            const auto made = storage->Catalog().CreateCategory("ann", "A");
            EXPECT_TRUE(made) << made.GetFault().detail;
        }
    });
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().size(), 40U);
}

TEST_F(PostgresLimitsTest, RoleThatMayOnlyReadIsFoundByACheck) {
    const auto made = Open();
    ASSERT_NE(made, nullptr) << error_;
    EXPECT_TRUE(made->Check());
    std::string reader = "reader";
    const std::string text = MakeRole(reader, "");
    Execute(fmt::format(
        "GRANT SELECT ON ALL TABLES IN SCHEMA public TO {0}; GRANT USAGE ON SCHEMA public TO {0}", reader));
    const auto storage = PostgresStorage::Open(text, error_);
    ASSERT_NE(storage, nullptr) << error_;
    EXPECT_TRUE(storage->Catalog().LoadCatalog("ann"));
    const Status checked = storage->Check();
    ASSERT_FALSE(checked);
    EXPECT_NE(checked.GetFault().detail.find("permission denied"), std::string::npos)
        << checked.GetFault().detail;
}

}  // namespace
}  // namespace Tarvik::Server
