// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tarvik::Server {

/// A call of a data base failed. Stays below the operations of storage and accounts: every one of them turns
/// it into a fault. Its text is English, one line, and holds no password.
class SqlError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The connection broke while a change was being confirmed: it may be stored or not.
class SqlDoubt : public SqlError {
  public:
    using SqlError::SqlError;
};

/// A value for a place of a statement. A text is not copied: it must outlive the call that takes the value.
class SqlValue {
  public:
    SqlValue(std::same_as<bool> auto flag) : value_(flag) {}
    SqlValue(double number) : value_(number) {}
    SqlValue(std::string_view text) : value_(text) {}
    SqlValue(const std::string& text) : value_(std::string_view(text)) {}
    SqlValue(const char* text) : value_(std::string_view(text)) {}
    template <std::integral Number>
        requires(!std::same_as<Number, bool>)
    SqlValue(Number number) : value_(static_cast<std::int64_t>(number)) {}

    const std::variant<std::int64_t, double, bool, std::string_view>& Get() const { return value_; }

  private:
    std::variant<std::int64_t, double, bool, std::string_view> value_;
};

/// The rows that a statement gives, one after the other. Columns count from 0; a value that is not of the
/// asked type throws SqlError.
class SqlRows {
  public:
    SqlRows() = default;
    virtual ~SqlRows() = default;
    SqlRows(const SqlRows&) = delete;
    SqlRows& operator=(const SqlRows&) = delete;

    /// Goes to the next row, at first to the first one; false when there is none.
    virtual bool Next() = 0;
    virtual std::string Text(int column) const = 0;
    virtual std::int64_t Integer(int column) const = 0;
    virtual double Real(int column) const = 0;
    virtual bool Flag(int column) const = 0;
    std::int32_t Integer32(int column) const { return static_cast<std::int32_t>(Integer(column)); }
};

/// What kind of values a column of a batch holds.
enum class SqlType { Integer, Real, Text };

/// Rows of one parent that go in together. The table's key is `owner`, the parent's column and the first of
/// `columns`, which numbers the rows.
struct SqlBatch {
    struct Column {
        std::string_view name;
        SqlType type;
    };

    std::string_view table;
    std::string_view parentColumn;
    std::span<const Column> columns;
    std::string_view owner;
    std::string_view parent;
    std::vector<SqlValue> values;  ///< row behind row, each in the order of `columns`
};

/// One connection to a data base, in a transaction, used by one thread at a time. Operations throw SqlError.
///
/// The text of a statement has the places $1, $2 and so on for its values and the named points of
/// SqlDialect.h. It is prepared once and kept for the next time, so texts must be few, and literals or as
/// long-lived.
class SqlConnection {
  public:
    SqlConnection() = default;
    virtual ~SqlConnection() = default;
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;

    /// Runs a statement that gives rows, which end before the transaction does.
    template <class... Values>
    std::unique_ptr<SqlRows> Query(std::string_view sql, const Values&... values) {
        return QueryWith(sql, std::initializer_list<SqlValue>{SqlValue(values)...});
    }
    /// Runs a statement that gives no rows. Gives the count of rows that it touched.
    template <class... Values>
    int Run(std::string_view sql, const Values&... values) {
        return RunWith(sql, std::initializer_list<SqlValue>{SqlValue(values)...});
    }

    /// Adds all rows; gives the first number, in the order of the batch, that is taken or comes twice, after
    /// which the transaction must be undone.
    virtual std::optional<std::int32_t> Insert(const SqlBatch& batch) = 0;
    /// Lets the ids go on behind `highest` unless one beyond `lowest`, or `lowest` itself, was given out
    /// already. Until the end of the transaction nobody else takes an id then. False when nothing was
    /// changed.
    virtual bool SkipIds(std::int64_t lowest, std::int64_t highest) = 0;

  protected:
    virtual std::unique_ptr<SqlRows> QueryWith(std::string_view sql, std::span<const SqlValue> values) = 0;
    virtual int RunWith(std::string_view sql, std::span<const SqlValue> values) = 0;
};

}  // namespace Tarvik::Server
