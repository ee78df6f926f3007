// SPDX-License-Identifier: MIT
#include "seaplan/controllers/BookOnChart.h"

#include <tarvik/bus/Binding.h>
#include <tarvik/util/Geodesy.h>
#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

std::string PositionOf(const PosBookPlace& place) {
    return PositionText({place.x, place.y}, kBookDecimals);
}

GeoPoint PositionAt(const Interface::ChartPlace& place) {
    return {Util::UnitUtl::DataFormat(place.longitude, kBookDecimals),
            Util::UnitUtl::DataFormat(place.latitude, kBookDecimals)};
}

/// The points are numbered from 1; a text that is no number is no row.
int RowOfId(const std::string& id) {
    return Util::StringUtl::ToInt(id) - 1;
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
    Listen();
}

void BookOnChart::Hide() {
    bindings_.Withdraw();
    listens_ = false;
    layer_.Clear();
}

/// A chart without an open book has nothing of it that could be moved.
void BookOnChart::Listen() {
    if (std::exchange(listens_, true)) {
        return;
    }
    for (const Interface::DragService& service : {Bus::DragBookPoint, Bus::DragBookFront}) {
        bindings_.Keep(
            Interface::Offer(service, [this](const Interface::ChartDrag& drag) { OnDragged(drag); }));
    }
    bindings_.Keep(Interface::Offer(Bus::DragBookWay, [this](const Interface::ChartDrag& drag) {
        if (reports_.pulled) {
            reports_.pulled(PositionAt(drag.from), PositionAt(drag.to));
        }
    }));
    bindings_.Keep(Interface::Subscribe(Bus::ClickBookPoint, [this](const std::string& id) -> const char* {
        if (reports_.pressed) {
            reports_.pressed(RowOfId(id));
        }
        return nullptr;
    }));
}

void BookOnChart::OnDragged(const Interface::ChartDrag& drag) const {
    if (reports_.dragged) {
        reports_.dragged(RowOfId(drag.id), PositionAt(drag.to));
    }
}

}  // namespace Tarvik::Seaplan
