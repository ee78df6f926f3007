// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/panels/book/BookDesk.h"

namespace Tarvik::Seaplan {

/// What is typed over a cell has no more UTF-16 units.
inline constexpr std::size_t kMostTypedUnits = 60;

/// A name as it goes to the server: beside the characters that no name may have without the one that parts a
/// row, and no longer than one that is typed.
std::string WaypointName(const std::string& typed);

/// What an edit of a cell does. A value that is refused, or that stands there already, changes nothing and
/// marks nothing. Rows count from 0 in the list and are rows that the cell's column lets be edited.
class BookEdits {
  public:
    explicit BookEdits(BookDesk& desk) : desk_(desk) {}

    /// A typed name, position or speed. Why it is refused, None where it is taken.
    BookRefusal TakeText(int row, int column, const std::string& typed);
    /// A waypoint stands there now, as when its position is typed; both within CheckDegrees.
    void MoveTo(int row, const GeoPoint& position);
    /// A waypoint comes into the leg on which `from` lies, at `to`, which is within CheckDegrees. False where
    /// the ship has passed the leg.
    bool PullLeg(const GeoPoint& from, const GeoPoint& to);
    /// The text that the editor of such a cell opens with.
    std::string TextToEdit(int row, int column) const;
    /// How a text that is being typed into a position is understood, or why it is not; empty in other
    /// columns and for an empty text.
    std::string EchoOf(int row, int column, const std::string& typed) const;
    /// "GC" cuts the way to the row into the waypoints of a great circle.
    void SetTrack(int row, const std::string& track);
    /// Degrees between the waypoints of a great circle; the way to the row is cut anew.
    void SetInterval(int row, int interval);
    /// A time in the person's zone as the departure of the row's port: its stay becomes what lies between its
    /// arrival and that.
    BookRefusal SetTime(int row, const Util::_datetime_t& local);
    /// A text as a cell shows it in rows in order, as one edit that is called by how many take it. Those
    /// whose cell cannot be edited, or that refuse it, stay as they are, which the status line tells.
    void SetInRows(const std::vector<int>& rows, int column, const std::string& text, TextId edit);

  private:
    void SetName(int row, const std::string& typed);
    BookRefusal SetPosition(int row, Axis axis, const std::string& typed);
    BookRefusal SetSpeed(int row, const std::string& typed);
    bool Put(int row, int column, const std::string& text);
    void CutBothSides(int row);
    void CutGreatCircle(int row);

    BookDesk& desk_;
};

}  // namespace Tarvik::Seaplan
