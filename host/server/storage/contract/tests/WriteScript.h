// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/server/storage/contract/Storage.h"

namespace Tarvik::Server {

/// What the writes of a WriteScript have left behind.
struct WrittenData {
    std::vector<std::string> categories;
    std::vector<PortCallRecord> calls;
    std::vector<BookRowRecord> rows;

    bool operator==(const WrittenData&) const = default;
};

/// An endless row of numbered writes, each one transaction of many rows or of one, whose result is known
/// beforehand. Write `number` runs on the data of all writes before it.
namespace WriteScript {

/// Makes the voyage and the book that the writes work on; false when the storage refuses.
bool Prepare(Storage& storage);
/// Runs one write; false when the storage refuses.
bool Write(Storage& storage, int number);
/// The data before any write.
WrittenData Start();
/// Puts the result of one write into `data`.
void Apply(WrittenData& data, int number);
/// What the storage holds; a storage that fails to read gives an empty value, which no script leaves behind.
WrittenData Read(Storage& storage);

}  // namespace WriteScript
}  // namespace Tarvik::Server
