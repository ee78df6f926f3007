// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/tree/TreeWidget.h"
#include "seaplan/panels/tree/search/SearchView.h"

namespace Tarvik::Seaplan {

struct TreeContext;

/// Finds categories and voyages among the rows of the tree. What answers is marked, what does not is put
/// aside; at the end the categories are folded as they were. A voyage's port calls, and the remarks of what
/// is marked to have some, are read while the person waits for nothing: port calls once, remarks anew in each
/// search, since they change without a report.
class TreeSearch {
  public:
    TreeSearch(TreeContext& context, SearchView& view);
    ~TreeSearch();
    TreeSearch(const TreeSearch&) = delete;
    TreeSearch& operator=(const TreeSearch&) = delete;

    bool IsOpen() const { return open_; }
    const SearchState& State() const { return state_; }

    /// Begins, or gives the keyboard back to the field.
    void Open();
    void OnTyped(const std::string& text);
    void OnFilter(VoyageFilter filter);
    /// A key in the field, `shift` with that key held: Enter goes on, with Shift back, Escape ends the
    /// search, Down leads into the rows. False when the field itself is to act on the key.
    bool OnKey(Key key, bool shift);
    /// Selects the next answer in the order of the rows, with -1 the one before; around at both ends.
    void OnStep(int by);
    /// Ends the search, with all rows and the folding as before; the category of a voyage that is selected
    /// stays unfolded.
    void Close();
    /// There is time to read port calls.
    void OnIdle();
    /// What has been read is worth nothing: another user, another zone.
    void ForgetRead() { read_.clear(); }

  private:
    struct Entry {
        TreeRow row = kNoRow;
        TreeRow category = kNoRow;  ///< kNoRow for a category
        std::string vi{};           ///< empty for a category and for what lies in the recycle bin
        std::string ci{};           ///< of a category
        std::string text{};         ///< folded
        bool answers = false;
    };

    void Collect();
    void CollectVoyages(TreeRow category);
    std::string TextOf(const Entry& entry) const;
    bool Marked(const Entry& entry) const;
    void Read(Entry& entry);
    bool Answers(const Entry& entry) const;
    void Apply();
    std::size_t ShowCategory(std::size_t at);
    void ShowAll();
    void ShowFirst();
    void KeepInSight(TreeRow row);
    void Count();
    void ReadSome();

    TreeContext& c_;
    SearchView& view_;
    SearchState state_;
    bool open_ = false;
    std::set<TreeRow> unfolded_;  ///< categories that were open at the beginning
    std::vector<Entry> entries_;  ///< each category with its voyages behind it
    struct Question {
        std::vector<std::string> words;
        bool inSight = false;  ///< an answer was brought into view
    } question_;
    std::vector<std::size_t> unread_;       ///< places of rows to be read, the next one last
    std::set<std::string> read_;            ///< voyages that were asked for
    std::map<TreeRow, std::string> notes_;  ///< remarks that were read in this search, folded
};

}  // namespace Tarvik::Seaplan
