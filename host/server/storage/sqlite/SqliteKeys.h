// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/server/storage/contract/Records.h"
#include "host/server/storage/sqlite/SqliteDatabase.h"

namespace Tarvik::Server {

/// Takes the next id from the counter; call it inside a writing transaction.
std::string TakeId(SqliteDatabase& database);

/// State of a category of the owner; nothing for an unknown or destroyed one.
std::optional<DeletionState> CategoryState(SqliteDatabase& database, std::string_view owner,
                                           std::string_view id);

/// State of a voyage of the owner; nothing for an unknown or destroyed one or one of a destroyed category.
std::optional<DeletionState> VoyageState(SqliteDatabase& database, std::string_view owner,
                                         std::string_view id);

/// Whether the owner has this book, with its voyage known.
bool BookKnown(SqliteDatabase& database, std::string_view owner, std::string_view id);

}  // namespace Tarvik::Server
