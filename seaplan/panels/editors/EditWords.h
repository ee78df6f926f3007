// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

/// What an edit is called.
struct EditName {
    TextId text = TextIds::IDS_VIEW_EDITOTHER;  ///< takes a row's number
    int row = 0;                                ///< counted from 0
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

/// What a command does with an edit; `form` takes the edit's name.
std::string EditText(TextId form, const EditName& name);

/// A sentence about rows, counted from 0; empty without rows.
std::string RowsText(TextId id, const std::vector<int>& rows);

}  // namespace Tarvik::Seaplan
