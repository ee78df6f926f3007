// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

/// Objects of the chart that a person moves with the pointer.
namespace Tarvik::Interface {

/// An object was dragged: pressed at one place and let go at another one.
struct ChartDrag {
    std::string id;  ///< the object's
    ChartPlace from;
    ChartPlace to;
};

/// A left drag of an object of the chart, named by the object's type, called when the button is let go. The
/// chart moves nothing by itself: whoever owns the object draws it where it belongs. While nobody offers the
/// service of a type, a drag that begins on such an object moves the chart, as anywhere else.
using DragService = Service<const ChartDrag, None>;

namespace Bus {

/// Rows of the open position book, but for the one in front; the id is the row's number in its list.
inline constexpr DragService DragBookPoint{"TRV_MAP_LDRAG_BOOKPOINTTYPE"};
/// The row in front.
inline constexpr DragService DragBookFront{"TRV_MAP_LDRAG_BOOKFRONTTYPE"};
/// The way of the open position book: a leg of it is pulled.
inline constexpr DragService DragBookWay{"TRV_MAP_LDRAG_BOOKLINETYPE"};
/// A row of the open position book is pressed; the id is its number in the list. Answered like ClickEvent.
inline constexpr ClickEvent ClickBookPoint{"TRV_MAP_LCLICK_BOOKPOINTTYPE"};

}  // namespace Bus

/// Chart side: whether objects of a type are dragged.
inline bool IsDragged(const std::string& type) {
    const std::string name = "TRV_MAP_LDRAG_" + type;
    return IsOffered(DragService{name.c_str()});
}

/// Chart side: tells the end of a drag.
inline void TellDrag(const std::string& type, const ChartDrag& drag) {
    const std::string name = "TRV_MAP_LDRAG_" + type;
    Call(DragService{name.c_str()}, &drag);
}

}  // namespace Tarvik::Interface
