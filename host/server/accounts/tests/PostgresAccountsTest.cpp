// SPDX-License-Identifier: MIT
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/accounts/tests/AccountsContract.h"
#include "host/server/storage/postgres/tests/PostgresServer.h"

namespace Tarvik::Server {

namespace {

class PostgresBackend : public AccountsBackend {
  public:
    std::unique_ptr<AccountStorage> Open() override {
        std::string error;
        auto accounts = OpenPostgresAccounts(connection_, error);
        if (accounts == nullptr) {
            throw std::runtime_error(error);
        }
        return accounts;
    }
    const std::string& Connection() const { return connection_; }

  private:
    std::string connection_ = PostgresServer::Instance().MakeDatabase();
};

std::unique_ptr<AccountsBackend> MakePostgres() {
    return std::make_unique<PostgresBackend>();
}

INSTANTIATE_TEST_SUITE_P(Postgres, AccountsContract, testing::Values(&MakePostgres));

class PostgresAccountsTest : public testing::Test {
  protected:
    std::int64_t Count(const std::string& sql) {
        PostgresConnection connection(backend_.Connection());
        connection.Begin(PostgresConnection::Mode::Read);
        return connection.Execute(sql).Integer(0, 0);
    }

    PostgresBackend backend_;
};

TEST_F(PostgresAccountsTest, NoSessionOutlivesThePasswordThatOpenedIt) {
    const auto first = backend_.Open();
    const auto second = backend_.Open();
    ASSERT_TRUE(first->AddUser("anna", "0").Value());
    for (int round = 0; round < 40; ++round) {
        const std::string before = std::to_string(round);
        const std::string after = std::to_string(round + 1);
        std::thread login([&] { EXPECT_TRUE(first->AddSession({"t" + before, "anna", 100}, before, 50)); });
        EXPECT_TRUE(second->SetPassword("anna", after).Value());
        login.join();
        EXPECT_FALSE(first->FindSession("t" + before, 50).Value()) << round;
    }
}

TEST_F(PostgresAccountsTest, LoginsLogoutsAndPasswordsAtTheSameTimeDoNotBlockEachOther) {
    const auto accounts = backend_.Open();
    for (const char* name : {"anna", "bert"}) {
        ASSERT_TRUE(accounts->AddUser(name, "h").Value());
    }
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int number = 0; number < 8; ++number) {
        threads.emplace_back([&, number] {
            const std::string name = number % 2 == 0 ? "anna" : "bert";
            for (int i = 0; i < 25; ++i) {
                // Every session is over when the next one is added.
                const std::string token = std::to_string(number) + "-" + std::to_string(i);
                EXPECT_TRUE(accounts->AddSession({token, name, i}, "h", i));
                if (number < 2) {
                    EXPECT_TRUE(accounts->SetPassword(name, "h"));
                }
                EXPECT_TRUE(accounts->RemoveSession(token));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(Count("SELECT count(*) FROM sessions"), 0);
}

TEST_F(PostgresAccountsTest, UnusableDataBaseIsToldWithoutItsPassword) {
    std::string error;
    EXPECT_EQ(OpenPostgresAccounts("host=/none password=q3e7w9", error), nullptr);
    EXPECT_NE(error.find("/none"), std::string::npos) << error;
    EXPECT_EQ(error.find("q3e7w9"), std::string::npos) << error;
}

}  // namespace
}  // namespace Tarvik::Server
