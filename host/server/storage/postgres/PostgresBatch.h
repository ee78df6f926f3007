// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/postgres/PostgresValues.h"

namespace Tarvik::Server {

/// A batch as one statement with one array a column, so that it costs one way to the server.
struct PostgresBatch {
    std::string sql;  ///< gives the numbers that were free
    std::vector<std::string> values;
};

/// The rows go in in the order of their numbers: who inserts keys in one order cannot wait in a circle.
PostgresBatch MakeBatch(const SqlBatch& batch);

/// The first number of the batch that is not among those that went in, each of which stands for one row only.
std::optional<std::int32_t> FirstTaken(const SqlBatch& batch, const PostgresRows& inserted);

}  // namespace Tarvik::Server
