// SPDX-License-Identifier: MIT
#include "seaplan/panels/editors/EditWords.h"

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

std::string EditText(TextId form, const EditName& name) {
    return Text(form, {Text(name.text, {std::to_string(name.row + 1)})});
}

std::string RowsText(TextId id, const std::vector<int>& rows) {
    std::string numbers;
    for (const int row : rows) {
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(row + 1);
    }
    return rows.empty() ? std::string() : Text(id, {numbers});
}

}  // namespace Tarvik::Seaplan
