// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

/// Position books. Operations give the reply of a success and throw Refusal.
class BookCommands {
  public:
    explicit BookCommands(ScheduleStorage& storage) : storage_(storage) {}

    /// Command 7: the book of a voyage with its rows, or an empty array.
    std::string Load(const std::string& user, std::string_view text);
    /// Command 8: makes a book for a voyage that has none.
    std::string Create(const std::string& user, std::string_view text);
    /// Command 9: replaces ("0") or appends ("1") rows.
    std::string WriteRows(const std::string& user, std::string_view text);
    /// Command 14: sets the date of a book.
    std::string SetDate(const std::string& user, std::string_view text);

  private:
    ScheduleStorage& storage_;
};

}  // namespace Tarvik::Server
