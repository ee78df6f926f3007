// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Server {

/// Port calls whose numbers a record keeps to the last digit, the second of this name, which may be no ASCII.
inline Seaplan::PortCallRows ThreePorts(const char* second) {
    Seaplan::PortCallRows rows(3);
    const char* const names[] = {"Tianjin", second, "Rotterdam"};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].ppi = std::to_string(40001 + i);
        rows[i].ppn = names[i];
        rows[i].psp = 12.5F + static_cast<float>(i);
        rows[i].apt = 6.5F;
    }
    rows[0].pp = Seaplan::kLoad;
    rows[1].pw = 0.125F;
    return rows;
}

}  // namespace Tarvik::Server
