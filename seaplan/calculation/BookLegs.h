// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

/// The rows of one leg by index, both ends included. Leg 0 is the start up to the first port; every later leg
/// opens with the port row that closes the one before.
struct BookLeg {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// One leg for each port row of a book; rows behind the last port belong to none.
std::vector<BookLeg> LegsOf(const BookPoints& rows);

}  // namespace Tarvik::Seaplan
