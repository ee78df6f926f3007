// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

class BookView;
struct PosBookData;

/// Where a book comes from.
struct BookOrigin {
    std::string voyage;     ///< name of the voyage that it was opened for
    std::string tableZone;  ///< zone of the times that the port calls show, empty when nobody told
};

/// Who opened the book, and cannot be used while it is open.
class BookOwner {
  public:
    virtual ~BookOwner() = default;
    /// Saves the shaped book of the voyage that it was opened for. 0 when it is saved; otherwise it is told.
    virtual int SavePositionBook(const PosBookData& book) = 0;
    virtual void SetBookOpen(bool open) = 0;
    virtual BookOrigin Origin() const = 0;
};

/// What the position book is made with.
struct BookParts {
    BookView& view;
    std::function<BookOwner*()> owner;
    std::function<Rect()> mainPlace;  ///< where the main view stands on the screen
};

}  // namespace Tarvik::Seaplan
