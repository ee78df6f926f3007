// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

#include <tarvik/Export.h>

struct sqlite3;
struct sqlite3_stmt;

namespace Tarvik::Util {

/// A data base operation that failed.
class TARVIK_API CppSQLite3Exception : public std::exception {
  public:
    /// `message` is what what() tells.
    explicit CppSQLite3Exception(std::string message) : message_(static_cast<std::string&&>(message)) {}
    /// The data base's words; valid as long as the exception.
    const char* what() const noexcept override { return message_.c_str(); }

  private:
    std::string message_;
};

/// The rows of a query, one at a time; standing on the first row after `execQuery`.
class TARVIK_API CppSQLite3Query {
  public:
    CppSQLite3Query() = default;
    ///@{
    /// Takes the query over; `other` is finished.
    CppSQLite3Query(CppSQLite3Query&& other) noexcept;
    CppSQLite3Query& operator=(CppSQLite3Query&& other) noexcept;
    ///@}
    ~CppSQLite3Query();
    /// True behind the last row.
    bool eof() const { return eof_; }
    /// Text of a column, counted from 0, valid until the next row; null for SQL NULL or outside the columns.
    const char* fieldValue(int column) const;
    /// Goes to the next row or behind the last. Throws CppSQLite3Exception.
    void nextRow();
    /// Ends the query; eof is true then.
    void finalize();

  private:
    friend class CppSQLite3DB;
    sqlite3_stmt* statement_ = nullptr;
    bool eof_ = true;
};

/// A data base opened for reading only.
class TARVIK_API CppSQLite3DB {
  public:
    CppSQLite3DB() = default;
    CppSQLite3DB(const CppSQLite3DB&) = delete;
    CppSQLite3DB& operator=(const CppSQLite3DB&) = delete;
    ~CppSQLite3DB();
    /// Throws CppSQLite3Exception when the file is missing or cannot be read.
    void open(const std::string& path);
    /// Runs one statement. Throws CppSQLite3Exception when it is bad or no file is open.
    CppSQLite3Query execQuery(const char* sql);
    /// Closes the file; queries that still live keep it until they end.
    void close();

  private:
    sqlite3* database_ = nullptr;
};

}  // namespace Tarvik::Util
