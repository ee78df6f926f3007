// SPDX-License-Identifier: MIT
#include "seaplan/panels/editors/EditWords.h"

#include "seaplan/panels/language/LoadText.h"

namespace Tarvik::Seaplan {

std::string EditText(TextId form, const EditName& name) {
    return Text(form, {Text(name.text, {std::to_string(name.row + 1)})});
}

}  // namespace Tarvik::Seaplan
