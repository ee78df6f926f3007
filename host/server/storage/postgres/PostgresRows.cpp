// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresRows.h"

#include <charconv>
#include <string_view>

#include <pqxx/result>
#include <pqxx/row>

#include "host/server/storage/postgres/PostgresError.h"

namespace Tarvik::Server {

namespace {

std::string_view Field(const pqxx::result& result, int row, int column) {
    const pqxx::field field =
        result.at(static_cast<pqxx::result_size_type>(row)).at(static_cast<pqxx::row_size_type>(column));
    return {field.c_str(), field.size()};
}

template <class Number>
Number Parse(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw PostgresError("the data base gave something else than a number");
    }
    return number;
}

}  // namespace

int PostgresRows::Count() const {
    return static_cast<int>(result_->size());
}

int PostgresRows::Changes() const {
    return static_cast<int>(result_->affected_rows());
}

std::string PostgresRows::Text(int row, int column) const {
    return std::string(Field(*result_, row, column));
}

std::int64_t PostgresRows::Integer(int row, int column) const {
    return Parse<std::int64_t>(Field(*result_, row, column));
}

double PostgresRows::Real(int row, int column) const {
    return Parse<double>(Field(*result_, row, column));
}

bool PostgresRows::Flag(int row, int column) const {
    return Field(*result_, row, column) == "t";
}

}  // namespace Tarvik::Server
