// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "host/server/storage/contract/Records.h"
#include "host/server/storage/sql/SqlConnection.h"

namespace Tarvik::Server {

/// What finding a row keeps from others until the end of the transaction, where the data base takes more than
/// one writer. A voyage's lock comes with a share of its category, so that the category is not destroyed
/// under it. Nobody who holds a category waits for a voyage, and every operation takes one of these locks
/// first and once, so that no two wait for each other.
enum class RowLock {
    None,   ///< for readers
    Share,  ///< others may share it, nobody may change it
    Hold,   ///< one holder
};

/// Takes the next id inside a writing transaction. One that is taken by a transaction which is then undone
/// may be lost, and is given out to nobody else meanwhile.
std::string TakeId(SqlConnection& connection);

/// State of a category of the owner; nothing for an unknown or destroyed one.
std::optional<DeletionState> CategoryState(SqlConnection& connection, const std::string& owner,
                                           const std::string& id, RowLock lock);

/// State of a voyage of the owner; nothing for an unknown or destroyed one or one of a destroyed category.
std::optional<DeletionState> VoyageState(SqlConnection& connection, const std::string& owner,
                                         const std::string& id, RowLock lock);

/// Whether the owner has this book, with its voyage known; locks the voyage.
bool BookKnown(SqlConnection& connection, const std::string& owner, const std::string& id, RowLock lock);

/// Whether what a remark is attached to is known; locks the category or voyage.
bool ObjectKnown(SqlConnection& connection, const std::string& owner, const RemarkObject& object,
                 RowLock lock);

/// Keeps the owner's fleet and own ports from everybody else until the transaction ends.
void HoldList(SqlConnection& connection, const std::string& owner);

}  // namespace Tarvik::Server
