// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/TreeRules.h"

#include <algorithm>
#include <map>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

std::string NormalizeName(const std::string& typed) {
    std::u16string name = Util::StringUtl::Trim(Util::StringUtl::TranslateString(typed));
    for (char16_t& unit : name) {
        switch (unit) {
            case u'\'':
                unit = u'\uFF07';
                break;
            case u'"':
                unit = u'\uFF02';
                break;
            case u'\\':
                unit = u'\uFF3C';
                break;
            case u'&':
                unit = u'\uFF06';
                break;
            default:
                break;
        }
    }
    return Util::StringUtl::TranslateString(name);
}

bool OrderVoyages(const std::vector<VoyageKeys>& voyages, const TreeSortState& sort,
                  std::vector<std::string>& out) {
    out.clear();
    if (sort.sortKey != SortByName && sort.sortKey != SortByDate) {
        return false;
    }
    std::map<std::string, std::map<std::string, std::string>> order;
    for (const VoyageKeys& voyage : voyages) {
        if (sort.sortKey == SortByName) {
            order[voyage.name][voyage.date] = voyage.vi;
        } else {
            order[voyage.date][voyage.name] = voyage.vi;
        }
    }
    for (const auto& [outer, inner] : order) {
        for (const auto& [key, vi] : inner) {
            out.push_back(vi);
        }
    }
    if (sort.direction == Descending) {
        std::reverse(out.begin(), out.end());
    }
    return true;
}

}  // namespace Tarvik::Seaplan
