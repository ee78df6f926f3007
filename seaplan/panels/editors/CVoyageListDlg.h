// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/panels/editors/DropList.h"

namespace Tarvik::Seaplan {

/// The names that begin with a typed text, byte by byte and with the case as it stands, in their order; all
/// names for an empty text.
std::vector<std::string> NamesBeginning(const std::vector<std::string>& names, const std::string& typed);

/// The list of names below a field: which are offered, and the one that is taken. It keeps nothing; the owner
/// puts the name into the field.
class CVoyageListDlg {
  public:
    using Chosen = std::function<void(const std::string& name)>;

    CVoyageListDlg(DropList& view, Chosen chosen) : view_(view), chosen_(std::move(chosen)) {}

    /// Height in pixels of a list of so many names: 23 for each, and from 6 names on that of six.
    static int HeightOf(std::size_t names);
    /// Shows these names, none in front, with the left top corner and the width of `rect` on the screen. -1
    /// without names, and all stays as it was.
    int ShowNames(const std::vector<std::string>& names, const Rect& rect);
    void Hide();
    bool IsVisible() const { return open_; }
    /// Down in the field: the keyboard goes to the list and its first row. False while it is hidden.
    bool TakeKeyboard();
    /// A click on a row, or Enter in the list with this row in front: its name is taken and the list hides. A
    /// row that is none does nothing.
    void OnChosen(int row);

  private:
    DropList& view_;
    Chosen chosen_;
    std::vector<std::string> names_;
    bool open_ = false;
};

}  // namespace Tarvik::Seaplan
