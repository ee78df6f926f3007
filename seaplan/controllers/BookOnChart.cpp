// SPDX-License-Identifier: MIT
#include "seaplan/controllers/BookOnChart.h"

namespace Tarvik::Seaplan {

namespace {

std::string PositionOf(const PosBookPlace& place) {
    return PositionText({place.x, place.y}, kBookDecimals);
}

}  // namespace

void BookOnChart::Show(const PosBookData& book, const BookRowRefs& rows, int front) {
    BookPicture picture;
    for (const PosBookPortRow& port : book.ports) {
        for (const PosBookRow& row : port.rows) {
            picture.way.push_back(PositionOf(row));
        }
        picture.way.push_back(PositionOf(port));
    }
    for (const PosBookRowRef& row : rows) {
        picture.rows.push_back(PositionOf(PlaceOf(book, row)));
    }
    picture.front = front;
    layer_.Draw(picture);
}

}  // namespace Tarvik::Seaplan
