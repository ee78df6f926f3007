// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "host/server/storage/sql/SqlSession.h"

struct sqlite3;
struct sqlite3_stmt;

namespace Tarvik::Server {

/// One open data base file. Operations throw SqlError with an English text.
class SqliteDatabase : public SqlConnection {
  public:
    /// Opens the file, which is made when there is none.
    explicit SqliteDatabase(const std::string& path);
    ~SqliteDatabase() override;

    /// How long a statement waits for a lock of another connection; kLockPatience unless set.
    void SetPatience(std::chrono::steady_clock::duration patience) { patience_ = patience; }
    /// Ends waiting for locks, now and from now on. From any thread.
    void GiveUp() { givenUp_ = true; }

    /// Runs every statement of the text.
    void Execute(std::string_view sql);
    /// The first column of the only row that the text gives.
    std::int64_t QueryInteger(std::string_view sql);
    /// Rows that the last statement touched.
    int Changes() const;
    bool ReadOnly() const;
    /// Throws what went wrong last, with `doing` before it.
    [[noreturn]] void Throw(std::string_view doing) const;

    std::optional<std::int32_t> Insert(const SqlBatch& batch) override;
    bool SkipIds(std::int64_t lowest, std::int64_t highest) override;

    /// A prepared statement that nobody else holds until it is returned. Statements are kept for the next
    /// one who asks, so their texts must be few.
    sqlite3_stmt* Borrow(std::string_view sql);
    /// Takes back a statement, wherever it stands.
    void Return(std::string_view sql, sqlite3_stmt* statement) noexcept;

  protected:
    std::unique_ptr<SqlRows> QueryWith(std::string_view sql, std::span<const SqlValue> values) override;
    int RunWith(std::string_view sql, std::span<const SqlValue> values) override;

  private:
    friend class SqliteTransaction;

    /// Waits a little for a lock; 0 when that was long enough.
    static int MayWait(void* self, int times);

    sqlite3* handle_ = nullptr;
    std::chrono::steady_clock::duration patience_ = kLockPatience;
    std::chrono::steady_clock::time_point waiting_;  ///< since when
    std::atomic<bool> givenUp_{false};
    std::map<std::string, sqlite3_stmt*, std::less<>> statements_;  ///< null while lent
};

/// A transaction that is undone at the end of its scope unless it was committed.
class SqliteTransaction {
  public:
    /// A writing transaction takes the write lock at once, so that it cannot fail for it half-way.
    SqliteTransaction(SqliteDatabase& database, SqlMode mode);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    void Commit();
    /// Undoes it now; without effect when it is over.
    void Undo() noexcept;
    /// False once it was committed or undone, which a full disk may have done.
    bool UnderWay() const;

  private:
    SqliteDatabase& database_;
};

}  // namespace Tarvik::Server
