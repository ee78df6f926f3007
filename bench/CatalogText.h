// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include <fmt/format.h>

/// A server's answer to command 3: categories of so many voyages each, with a vessel each. `pinned` keeps
/// their routes on the chart.
inline std::string CatalogText(std::int64_t voyages, std::int64_t ofCategory = 100, bool pinned = true) {
    std::string text = "[";
    for (std::int64_t i = 0; i < voyages; ++i) {
        if (i % ofCategory == 0) {
            text += fmt::format(R"({}{{"ci":"{}","cn":"Category {}","crk":"0","cd":"0","voys":[)",
                                i > 0 ? "]}," : "", i / ofCategory + 1, i / ofCategory + 1);
        }
        text += fmt::format(
            R"({}{{"vi":"{}","vn":"Voyage {}","vsi":"9{}","vsn":"Northern Light","vsmsi":"257000001",)"
            R"("vr":"{}","va":"0","vfn":"30","vff":"28","vfa":"5","vdn":"2","vda":"2","vwn":"10","vwa":"10",)"
            R"("vrk":"0","modais":[],"vd":"0"}})",
            i % ofCategory == 0 ? "" : ",", i + 100000, i, i, pinned ? 1 : 0);
    }
    return text + "]}]";
}
