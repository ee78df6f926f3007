// SPDX-License-Identifier: MIT
// The rows that are searched: what each is found by, and the reading of what is not known of it yet.
#include <algorithm>
#include <chrono>

#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/search/TreeSearch.h"
#include "seaplan/protocol/RemarkList.h"

namespace Tarvik::Seaplan {

/// What a row is found by, as far as it is known.
std::string TreeSearch::TextOf(const Entry& entry) const {
    const VoyInfo* voyage = entry.category == kNoRow ? nullptr : c_.VoyageOf(entry.row);
    std::string text = voyage == nullptr ? FoldSearch(c_.tree.GetItemText(entry.row)) : SearchTextOf(*voyage);
    const auto notes = notes_.find(entry.row);
    return notes == notes_.end() ? text : text.append("\n").append(notes->second);
}

/// Whether the row's mark says that there are remarks.
bool TreeSearch::Marked(const Entry& entry) const {
    if (entry.category == kNoRow) {
        const VoyCategory* category = c_.CategoryOf(entry.row);
        return category != nullptr && category->crk > 0;
    }
    const VoyInfo* voyage = c_.VoyageOf(entry.row);
    return voyage != nullptr && voyage->vrk > 0;
}

/// Rows as they are now. Their records may have changed at any row that was made anew.
void TreeSearch::Collect() {
    entries_.clear();
    unread_.clear();
    notes_.clear();
    for (TreeRow row = c_.tree.GetRootItem(); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
        Entry entry{row, kNoRow};
        const VoyCategory* category = c_.CategoryOf(row);
        entry.ci = category == nullptr ? std::string() : category->ci;
        entry.text = TextOf(entry);
        if (Marked(entry)) {
            unread_.push_back(entries_.size());
        }
        entries_.push_back(std::move(entry));
        CollectVoyages(row);
    }
    // Read from the end, so that answers come in the order of the rows and none above those on show.
    std::reverse(unread_.begin(), unread_.end());
}

void TreeSearch::CollectVoyages(TreeRow category) {
    for (TreeRow row = c_.tree.GetChildItem(category); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
        const VoyInfo* voyage = c_.VoyageOf(row);
        Entry entry{row, category};
        entry.text = TextOf(entry);
        if (voyage != nullptr && c_.tree.GetItemStyle(row) == kVoyageStyle) {
            entry.vi = voyage->vi;
            if ((voyage->portCalls.empty() && !read_.contains(voyage->vi)) || Marked(entry)) {
                unread_.push_back(entries_.size());
            }
        }
        entries_.push_back(std::move(entry));
    }
}

/// Port calls of a voyage that were not asked for yet, then remarks.
void TreeSearch::Read(Entry& entry) {
    if (c_.tree.GetItemData(entry.row) == nullptr) {
        return;
    }
    if (!entry.vi.empty() && read_.insert(entry.vi).second && c_.VoyageOf(entry.row)->portCalls.empty()) {
        c_.FetchPortCalls(entry.vi);
    }
    if (Marked(entry)) {
        RemarkList remarks;
        const bool voyage = entry.category != kNoRow;
        remarks.LoadRemarks(voyage ? VoyageRemark : CategoryRemark, voyage ? entry.vi : entry.ci);
        std::string& notes = notes_[entry.row];
        for (std::size_t i = 0; i < remarks.Count(); ++i) {
            notes += FoldSearch(remarks.At(i)->subject + "\n" + remarks.At(i)->body) + "\n";
        }
    }
    entry.text = TextOf(entry);
}

/// Reads for as long as nobody notices. A server that makes the person wait is asked no more.
void TreeSearch::ReadSome() {
    using Clock = std::chrono::steady_clock;
    constexpr auto kUnnoticed = std::chrono::milliseconds(20);
    constexpr auto kPatience = std::chrono::seconds(1);
    const auto begin = Clock::now();
    auto used = Clock::duration::zero();
    while (!unread_.empty() && used < kUnnoticed) {
        Entry& entry = entries_[unread_.back()];
        unread_.pop_back();
        Read(entry);
        used = Clock::now() - begin;
    }
    if (used > kPatience) {
        unread_.clear();
    }
}

void TreeSearch::OnIdle() {
    if (!open_ || !state_.asks || unread_.empty()) {
        return;
    }
    ReadSome();
    Apply();
}

}  // namespace Tarvik::Seaplan
