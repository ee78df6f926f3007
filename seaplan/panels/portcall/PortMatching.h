// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/editors/ListBox.h"
#include "seaplan/panels/editors/TextField.h"

namespace Tarvik::Seaplan {

class PortCallDesk;

/// The ports that fit what is typed into the port editor: in the window of a search plug-in, or without one
/// in a list of the ports that the panel knows itself.
class PortMatching {
  public:
    /// `field` is the port editor.
    PortMatching(PortCallDesk& desk, TextField& field) : desk_(desk), field_(field) {}

    /// Asks for the ports that fit the field's text.
    void Ask();
    /// Backspace in the field, before its text changes.
    void OnBackspace() { backspace_ = !field_.Text().empty(); }
    /// A window of matches moved to a name; told while the field itself has the keyboard it changes nothing.
    void OnMoved(const std::string& name, bool fieldHasFocus);
    /// The next or previous match of the panel's own list goes into the field. False without a list.
    bool Move(int by);
    /// A match of the panel's own list was pressed: it goes into the field.
    void OnPressed(int index);
    /// The name last moved to, which leaves the list; empty when nothing was.
    std::string Take();
    void Hide();
    bool IsShown() const { return list_.IsOpen() || hasWindow_; }

  private:
    void Put(const std::string& name);

    PortCallDesk& desk_;
    TextField& field_;
    ListBox list_;
    bool hasWindow_ = false;  ///< a service shows its own window of matches
    bool backspace_ = false;  ///< Backspace takes text away, which comes next
    std::string moved_;       ///< name that a list of matches moved to
};

}  // namespace Tarvik::Seaplan
