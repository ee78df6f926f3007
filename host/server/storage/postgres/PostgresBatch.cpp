// SPDX-License-Identifier: MIT
#include <algorithm>
#include <numeric>
#include <set>

#include "host/server/storage/postgres/PostgresValues.h"

namespace Tarvik::Server {

namespace {

const char* NameOf(SqlType type) {
    switch (type) {
        case SqlType::Integer:
            return "integer";
        case SqlType::Real:
            return "double precision";
        case SqlType::Text:
            break;
    }
    return "text";
}

std::int64_t NumberOf(const SqlBatch& batch, std::size_t row) {
    return std::get<std::int64_t>(batch.values[row * batch.columns.size()].Get());
}

std::size_t RowsOf(const SqlBatch& batch) {
    return batch.values.size() / batch.columns.size();
}

std::vector<std::size_t> InOrder(const SqlBatch& batch) {
    std::vector<std::size_t> rows(RowsOf(batch));
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    std::stable_sort(rows.begin(), rows.end(), [&batch](std::size_t left, std::size_t right) {
        return NumberOf(batch, left) < NumberOf(batch, right);
    });
    return rows;
}

}  // namespace

PostgresBatch MakeBatch(const SqlBatch& batch) {
    PostgresBatch made;
    made.values = {PostgresText(batch.owner), PostgresText(batch.parent)};
    std::string names = "owner, " + std::string(batch.parentColumn);
    std::string arrays;
    const std::vector<std::size_t> rows = InOrder(batch);
    for (std::size_t column = 0; column < batch.columns.size(); ++column) {
        names.append(", ").append(batch.columns[column].name);
        arrays.append(column > 0 ? ", $" : "$").append(std::to_string(column + 3));
        arrays.append("::").append(NameOf(batch.columns[column].type)).append("[]");
        std::string array = "{";
        for (const std::size_t row : rows) {
            AppendElement(array, PostgresText(batch.values[row * batch.columns.size() + column]));
        }
        made.values.push_back(array + "}");
    }
    made.sql = "INSERT INTO " + std::string(batch.table) + " (" + names +
               ") SELECT $1, $2, r.* FROM unnest(" + arrays + ") AS r ON CONFLICT DO NOTHING RETURNING " +
               std::string(batch.columns[0].name);
    return made;
}

std::optional<std::int32_t> FirstTaken(const SqlBatch& batch, const PostgresRows& inserted) {
    const std::size_t count = RowsOf(batch);
    if (static_cast<std::size_t>(inserted.Count()) == count) {
        return std::nullopt;
    }
    std::set<std::int64_t> free;
    for (int row = 0; row < inserted.Count(); ++row) {
        free.insert(inserted.Integer(row, 0));
    }
    for (std::size_t row = 0; row < count; ++row) {
        const std::int64_t number = NumberOf(batch, row);
        if (free.erase(number) == 0) {
            return static_cast<std::int32_t>(number);
        }
    }
    return std::nullopt;
}

}  // namespace Tarvik::Server
