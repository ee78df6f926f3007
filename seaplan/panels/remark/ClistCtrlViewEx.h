// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/protocol/RemarkMessages.h"

namespace Tarvik::Seaplan {

/// Names of what a row of the list of remarks draws. The last one can be clicked.
namespace RemarkItem {

inline constexpr const char* kName = "rmk.name";
inline constexpr const char* kTime = "rmk.time";
inline constexpr const char* kUnsaved = "rmk.unsave";
inline constexpr const char* kDelete = "flt.remark.del";

}  // namespace RemarkItem

/// One row of the list.
struct RemarkRow {
    std::string name;
    std::string time;
    bool unsaved = false;             ///< its text was changed and is not saved
    const CRemark* remark = nullptr;  ///< null for a new remark that the server does not have yet

    bool operator==(const RemarkRow&) const = default;
};

/// A list whose rows have items that can be clicked: its rows, the one whose text is being edited, and the
/// way of an item's event to the panel. The list on the screen shows the rows and reports.
class ClistCtrlViewEx {
  public:
    /// Kinds of an item's event that go to the panel; the others end here.
    enum EventKind : int { FirstEvent = 1, SecondEvent = 8 };
    /// Row and item of an event. A report that is not set is dropped.
    struct Reports {
        std::function<void(int, const std::string&)> first;
        std::function<void(int, const std::string&)> second;
    };
    void SetReports(Reports reports) { reports_ = std::move(reports); }
    /// An event of an item. The row stands in the high 16 bits of `position`.
    void OnItemEvent(int kind, std::uint32_t position, const std::string& item) const;
    /// The item that a key clicks in the row with the keyboard, null when the key means nothing here.
    static const char* ItemOfKey(Key key) { return key == Key::Delete ? RemarkItem::kDelete : nullptr; }
    /// The position word of an event in a row of at most 65535.
    static std::uint32_t PositionOf(int row) { return static_cast<std::uint32_t>(row) << 16; }

    const std::vector<RemarkRow>& Rows() const { return rows_; }
    int Count() const { return static_cast<int>(rows_.size()); }
    bool Has(int row) const { return row >= 0 && row < Count(); }
    /// A row that the list has.
    RemarkRow& Row(int row) { return rows_[static_cast<std::size_t>(row)]; }
    /// The row whose text is being edited, -1 for none; it goes along when rows come, go or are sorted.
    int Current() const { return current_; }
    void SetCurrent(int row) { current_ = Has(row) ? row : -1; }

    void Clear();
    void Append(RemarkRow row) { rows_.push_back(std::move(row)); }
    void InsertFirst(RemarkRow row);
    /// A row that the list has. When it is the current one there is none afterwards.
    void Remove(int row);
    /// Rows by the text of their time, equal ones in the order they have. A row without a remark keeps its
    /// place. Title and time of each row are its remark's again.
    void SortByTime(bool oldestFirst);

  private:
    Reports reports_;
    std::vector<RemarkRow> rows_;
    int current_ = -1;
};

}  // namespace Tarvik::Seaplan
