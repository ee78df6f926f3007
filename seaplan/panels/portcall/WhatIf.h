// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/data/VoyPortCall.h"
#include "seaplan/panels/portcall/WhatIfView.h"

namespace Tarvik::Seaplan {

class CellEditing;
class PortCallDesk;

/// The strip below the port call table: when to leave at the latest for an arrival, which speed on all legs
/// reaches it, and what half a knot more or less does. Each answer is told before it is taken, and taking one
/// is one edit. It answers for a calculated voyage that was not corrected from its vessel's positions.
class WhatIf {
  public:
    WhatIf(PortCallDesk& desk, CellEditing& editing) : desk_(desk), editing_(editing) {}

    /// Opens the strip with the last port, or closes it.
    void OnOpen();
    /// Another port of the list; its own arrival is the wanted one again.
    void OnPortChosen(int index);
    /// The wanted arrival, typed: "2024-03-09 08:00" with or without seconds. Any other text gives no answer
    /// to the questions about it.
    void OnArrivalTyped(const std::string& text);
    /// Puts an answer into the table.
    void OnTake(WhatIfLine line);
    /// The table has changed: the answers follow it.
    void Follow();

  private:
    /// The schedule on show, and the row in question.
    struct Question {
        PortCallRows rows;
        PortCallRows unchanged;  ///< worked out anew from what the cells show, which is rounded
        std::size_t target = 0;
        std::optional<Util::_datetime_t> arrival;  ///< nothing for a text that is none
    };
    std::optional<Question> Ask(WhatIfState& state) const;
    bool Answer(const Question& question, WhatIfLine line, PortCallRows& out) const;
    WhatIfState::Line Tell(const Question& question, WhatIfLine line) const;

    PortCallDesk& desk_;
    CellEditing& editing_;
    WhatIfState shown_;
    bool open_ = false;
    int port_ = -1;                     ///< place among the rows with a port less one; -1 the last
    std::optional<std::string> typed_;  ///< the wanted arrival, nothing before one was typed
};

}  // namespace Tarvik::Seaplan
