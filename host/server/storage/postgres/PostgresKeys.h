// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/server/storage/contract/Records.h"
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

/// What finding a row keeps from others until the end of the transaction. A voyage's lock comes with a share
/// of its category, so that the category is not destroyed under it. Nobody who holds a category waits for a
/// voyage, and every operation takes one of these locks first and once, so that no two wait for each other.
enum class RowLock {
    None,    ///< for readers
    Share,   ///< others may share it, nobody may change it
    Update,  ///< one holder
};

/// Takes the next id; one that is taken by a transaction which is then undone is never given out.
std::string TakeId(PostgresConnection& connection);

/// State of a category of the owner; nothing for an unknown or destroyed one.
std::optional<DeletionState> CategoryState(PostgresConnection& connection, const std::string& owner,
                                           const std::string& id, RowLock lock);

/// State of a voyage of the owner; nothing for an unknown or destroyed one or one of a destroyed category.
std::optional<DeletionState> VoyageState(PostgresConnection& connection, const std::string& owner,
                                         const std::string& id, RowLock lock);

/// Whether the owner has this book, with its voyage known; locks the voyage.
bool BookKnown(PostgresConnection& connection, const std::string& owner, const std::string& id, RowLock lock);

}  // namespace Tarvik::Server
