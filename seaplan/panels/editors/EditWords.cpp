// SPDX-License-Identifier: MIT
#include "seaplan/panels/editors/EditWords.h"

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/EditTexts.h"

namespace Tarvik::Seaplan {

namespace {

// `form` takes the edit's name.
std::string EditText(TextId form, const EditName& name) {
    return Text(form, {Text(name.text, {std::to_string(name.row + 1)})});
}

}  // namespace

TextId OtherEdit() {
    return TextIds::IDS_VIEW_EDITOTHER;
}

UndoTexts UndoTextsOf(const EditName* undone, const EditName* redone) {
    return {undone != nullptr ? EditText(TextIds::IDS_VIEW_UNDOOF, *undone) : std::string(),
            redone != nullptr ? EditText(TextIds::IDS_VIEW_REDOOF, *redone) : std::string()};
}

std::string RowsText(TextId id, const std::vector<int>& rows) {
    std::string numbers;
    for (const int row : rows) {
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(row + 1);
    }
    return rows.empty() ? std::string() : Text(id, {numbers});
}

}  // namespace Tarvik::Seaplan
