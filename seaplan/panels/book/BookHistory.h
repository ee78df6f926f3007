// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/panels/editors/EditHistory.h"

namespace Tarvik::Seaplan {

/// The places in front before an edit of the book and behind it: undo and redo show where they change it.
struct BookFronts {
    PosBookRowRef before;
    PosBookRowRef after;
};

/// The states of the book on show.
using BookHistory = EditHistory<PosBookData, BookFronts>;

}  // namespace Tarvik::Seaplan
