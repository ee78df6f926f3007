// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/NameRules.h"

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

}  // namespace Tarvik::Seaplan
