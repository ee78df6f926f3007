// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/tree/search/SearchText.h"

namespace Tarvik::Seaplan {

/// What stands around the search field.
struct SearchState {
    std::string text;  ///< what is looked for, as typed
    VoyageFilter filter = VoyageFilter::All;
    bool asks = false;  ///< there is a question: a word or a filter
    int found = 0;      ///< how many rows answer it
    int current = 0;    ///< which of them is the current one, from 1; 0 for none
    int unread = 0;     ///< voyages whose port calls are still to be read

    bool operator==(const SearchState&) const = default;
};

/// The line above the tree in which is searched. It shows what it is told and reports what is typed and
/// its keys.
class SearchView {
  public:
    virtual ~SearchView() = default;
    /// Shows the line with the keyboard in its field, the whole text selected.
    virtual void OpenSearch(const SearchState& state) = 0;
    virtual void ShowSearch(const SearchState& state) = 0;
    /// Hides the line and gives the keyboard to the tree.
    virtual void CloseSearch() = 0;
    /// Gives the keyboard to the tree; the line stays.
    virtual void LeaveField() = 0;
    /// Reports OnIdle() once, when the person's keys and presses have been answered.
    virtual void AskForTime() = 0;
};

}  // namespace Tarvik::Seaplan
