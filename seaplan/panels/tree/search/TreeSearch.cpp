// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/search/TreeSearch.h"

#include <algorithm>
#include <utility>

#include "seaplan/panels/tree/RowTexts.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

TreeSearch::TreeSearch(TreeContext& context, SearchView& view) : c_(context), view_(view) {
    c_.rowsMade = [this] {
        if (open_) {
            Collect();
            Apply();
        }
    };
}

TreeSearch::~TreeSearch() {
    c_.rowsMade = {};
}

void TreeSearch::Open() {
    if (!open_) {
        open_ = true;
        state_ = {};
        unfolded_.clear();
        for (TreeRow row = c_.tree.GetRootItem(); row != kNoRow; row = c_.tree.GetNextSiblingItem(row)) {
            if (c_.tree.IsItemExpanded(row)) {
                unfolded_.insert(row);
            }
        }
        Collect();
        Apply();
    }
    view_.OpenSearch(state_);
}

void TreeSearch::OnTyped(const std::string& text) {
    if (open_ && text != state_.text) {
        state_.text = text;
        question_.inSight = false;
        Apply();
    }
}

void TreeSearch::OnFilter(VoyageFilter filter) {
    if (open_ && filter != state_.filter) {
        state_.filter = filter;
        question_.inSight = false;
        Apply();
    }
}

bool TreeSearch::OnKey(Key key, bool shift) {
    switch (key) {
        case Key::Enter:
            OnStep(shift ? -1 : 1);
            return true;
        case Key::Escape:
            Close();
            return true;
        case Key::Down:
            view_.LeaveField();
            return true;
        default:
            return false;
    }
}

void TreeSearch::Close() {
    if (!open_) {
        return;
    }
    open_ = false;
    state_ = {};
    ShowAll();
    entries_.clear();
    unread_.clear();
    KeepInSight(c_.tree.Selected());
    view_.CloseSearch();
}

bool TreeSearch::Answers(const Entry& entry) const {
    if (!state_.asks || !HoldsAll(entry.text, question_.words)) {
        return false;
    }
    if (state_.filter == VoyageFilter::All) {
        return true;
    }
    const VoyInfo* voyage = entry.vi.empty() ? nullptr : c_.store.FindVoyage(entry.vi);
    return voyage != nullptr && Passes(*voyage, state_.filter, Util::_datetime_t());
}

void TreeSearch::Apply() {
    question_.words = SearchWords(state_.text);
    state_.asks = !question_.words.empty() || state_.filter != VoyageFilter::All;
    for (Entry& entry : entries_) {
        entry.answers = Answers(entry);
    }
    if (state_.asks) {
        for (std::size_t at = 0; at < entries_.size();) {
            at = ShowCategory(at);
        }
    } else {
        ShowAll();
    }
    Count();
    ShowFirst();
    if (state_.asks && !unread_.empty()) {
        view_.AskForTime();
    }
}

/// Shows a category with what answers in it, and gives the place behind it. A category that answers alone
/// keeps its voyages, folded as they were.
std::size_t TreeSearch::ShowCategory(std::size_t at) {
    const Entry& category = entries_[at];
    std::size_t end = at + 1;
    bool any = false;
    while (end < entries_.size() && entries_[end].category == category.row) {
        any = any || entries_[end].answers;
        ++end;
    }
    for (std::size_t i = at + 1; i < end; ++i) {
        const RowFinding aside = any || !category.answers ? RowFinding::Aside : RowFinding::None;
        c_.tree.SetRowFinding(entries_[i].row, entries_[i].answers ? RowFinding::Found : aside);
    }
    const RowFinding with = any ? RowFinding::None : RowFinding::Aside;
    c_.tree.SetRowFinding(category.row, category.answers ? RowFinding::Found : with);
    c_.tree.Expand(category.row, any || unfolded_.contains(category.row));
    return end;
}

/// Brings the first answer into view once it is known, and no second time while the person looks on. The
/// selected row stays in view as long as it answers.
void TreeSearch::ShowFirst() {
    if (!state_.asks || state_.found == 0 || std::exchange(question_.inSight, true)) {
        return;
    }
    const auto first =
        std::find_if(entries_.begin(), entries_.end(), [](const Entry& entry) { return entry.answers; });
    c_.tree.SetCursor(state_.current > 0 ? c_.tree.Selected() : first->row);
}

/// A voyage that was found is not folded away again, since the next key is for it.
void TreeSearch::KeepInSight(TreeRow row) {
    if (c_.tree.GetItemData(row) == nullptr) {
        return;
    }
    if (const TreeRow category = c_.tree.GetParentItem(row); category != kNoRow) {
        c_.tree.Expand(category, true);
    }
    c_.tree.SetCursor(row);
}

void TreeSearch::ShowAll() {
    for (const Entry& entry : entries_) {
        c_.tree.SetRowFinding(entry.row, RowFinding::None);
        if (entry.category == kNoRow) {
            c_.tree.Expand(entry.row, unfolded_.contains(entry.row));
        }
    }
}

void TreeSearch::Count() {
    state_.found = 0;
    state_.current = 0;
    for (const Entry& entry : entries_) {
        if (entry.answers) {
            ++state_.found;
            state_.current = entry.row == c_.tree.Selected() ? state_.found : state_.current;
        }
    }
    state_.unread = static_cast<int>(unread_.size());
    view_.ShowSearch(state_);
}

void TreeSearch::OnStep(int by) {
    std::vector<TreeRow> answers;
    for (const Entry& entry : entries_) {
        if (entry.answers && c_.tree.GetItemData(entry.row) != nullptr) {
            answers.push_back(entry.row);
        }
    }
    if (!open_ || answers.empty()) {
        return;
    }
    const int count = static_cast<int>(answers.size());
    const auto now = std::find(answers.begin(), answers.end(), c_.tree.Selected());
    // From no answer on, the first one is next and the last one is before.
    const int from = now == answers.end() ? (by > 0 ? -1 : count) : static_cast<int>(now - answers.begin());
    const TreeRow next = answers[static_cast<std::size_t>((from + by + count) % count)];
    // A row that opens says what is known of its voyage, as one that is pressed does, and asks nothing.
    if (c_.tree.GetItemStyle(next) == kVoyageStyle) {
        static_cast<void>(ShowRowDates(c_.tree, next, *c_.VoyageOf(next)));
    }
    c_.tree.SelectItem(next);
    c_.tree.SetCursor(next);
    // What was said of the row before is not true of this one.
    c_.Say({});
    Count();
}

}  // namespace Tarvik::Seaplan
