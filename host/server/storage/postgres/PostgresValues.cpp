// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresValues.h"

#include <array>
#include <charconv>

#include <pqxx/result>
#include <pqxx/row>

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
        throw SqlError("the data base gave something else than a number");
    }
    return number;
}

}  // namespace

std::string PostgresText(const SqlValue& value) {
    if (const auto* text = std::get_if<std::string_view>(&value.Get())) {
        if (text->find('\0') != std::string_view::npos) {
            throw SqlError("the data base keeps no text with a zero byte");
        }
        return std::string(*text);
    }
    if (const auto* number = std::get_if<std::int64_t>(&value.Get())) {
        return std::to_string(*number);
    }
    if (const auto* number = std::get_if<double>(&value.Get())) {
        std::array<char, 64> text{};
        const auto end = std::to_chars(text.data(), text.data() + text.size(), *number);
        return {text.data(), end.ptr};
    }
    return std::get<bool>(value.Get()) ? "t" : "f";
}

void AppendElement(std::string& array, std::string_view element) {
    array += array.size() > 1 ? ",\"" : "\"";
    for (const char sign : element) {
        if (sign == '"' || sign == '\\') {
            array += '\\';
        }
        array += sign;
    }
    array += '"';
}

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
