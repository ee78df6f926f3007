// SPDX-License-Identifier: MIT
#include "seaplan/panels/remark/ClistCtrlViewEx.h"

#include <algorithm>

namespace Tarvik::Seaplan {

void ClistCtrlViewEx::OnItemEvent(int kind, std::uint32_t position, const std::string& item) const {
    const auto row = static_cast<int>(position >> 16);
    const auto& report = kind == SecondEvent ? reports_.second : reports_.first;
    if ((kind == FirstEvent || kind == SecondEvent) && report) {
        report(row, item);
    }
}

void ClistCtrlViewEx::Clear() {
    rows_.clear();
    current_ = -1;
}

void ClistCtrlViewEx::InsertFirst(RemarkRow row) {
    rows_.insert(rows_.begin(), std::move(row));
    if (current_ >= 0) {
        ++current_;
    }
}

void ClistCtrlViewEx::Remove(int row) {
    rows_.erase(rows_.begin() + row);
    if (row == current_) {
        current_ = -1;
    } else if (row < current_) {
        --current_;
    }
}

void ClistCtrlViewEx::SortByTime(bool oldestFirst) {
    // Rows without a remark equal all others, which is no order; the others go round them.
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].remark != nullptr) {
            places.push_back(i);
        }
    }
    std::vector<std::size_t> sorted = places;
    std::stable_sort(sorted.begin(), sorted.end(), [&](std::size_t a, std::size_t b) {
        const int order = rows_[a].remark->udate.compare(rows_[b].remark->udate);
        return oldestFirst ? order < 0 : order > 0;
    });
    const std::vector<RemarkRow> before = rows_;
    const int current = current_;
    for (std::size_t i = 0; i < places.size(); ++i) {
        RemarkRow& row = rows_[places[i]];
        row = before[sorted[i]];
        row.name = row.remark->subject;
        row.time = row.remark->udate;
        if (static_cast<int>(sorted[i]) == current) {
            current_ = static_cast<int>(places[i]);
        }
    }
}

}  // namespace Tarvik::Seaplan
