// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "seaplan/panels/texts/TextId.h"

namespace Tarvik::Seaplan {

/// The text of an edit that has no name of its own: it takes a row's number.
TextId OtherEdit();

/// What an edit is called.
struct EditName {
    TextId text = OtherEdit();  ///< takes a row's number
    int row = 0;                ///< counted from 0
};

/// An edit of several rows is called by how many they are.
inline EditName EditOfRows(TextId text, std::size_t count) {
    return {text, static_cast<int>(count) - 1};
}

/// What undo and redo of a window would do now, as "Undo speed of row 3"; empty where they can do nothing.
struct UndoTexts {
    std::string undo;
    std::string redo;
    bool operator==(const UndoTexts&) const = default;
};

/// The texts for the edit that undo and the one that redo would take; null for none.
UndoTexts UndoTextsOf(const EditName* undone, const EditName* redone);

/// A sentence about rows, counted from 0; empty without rows.
std::string RowsText(TextId id, const std::vector<int>& rows);

}  // namespace Tarvik::Seaplan
