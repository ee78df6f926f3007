// SPDX-License-Identifier: MIT
#include "seaplan/panels/paste/PastedHeads.h"

#include <algorithm>

#include "seaplan/panels/paste/PastedText.h"

namespace Tarvik::Seaplan {

int KindOfHead(const std::string& head, const std::vector<std::string>& titles,
               std::span<const HeadTitle> others) {
    const std::string small = SmallLetters(head);
    std::size_t longest = 0;
    int found = kNoColumn;
    const auto look = [&](std::string_view title, int column) {
        if (title.size() > longest && small.starts_with(title)) {
            longest = title.size();
            found = column;
        }
    };
    for (std::size_t column = 0; column < titles.size(); ++column) {
        look(SmallLetters(titles[column]), static_cast<int>(column));
    }
    for (const HeadTitle& other : others) {
        look(other.title, other.column);
    }
    return found;
}

bool CountsOn(const PastedLines& lines, std::size_t at) {
    for (std::size_t row = 0; row < lines.size(); ++row) {
        if (lines[row][at] != std::to_string(row + 1)) {
            return false;
        }
    }
    return true;
}

void TakeColumnAs(std::vector<int>& columns, std::size_t at, int kind) {
    std::replace(columns.begin(), columns.end(), kind, kNoColumn);
    columns.at(at) = kind;
}

}  // namespace Tarvik::Seaplan
