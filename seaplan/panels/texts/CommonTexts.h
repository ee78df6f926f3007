// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/texts/TextId.h"

/// What several panels show: editors, calendar, totals, limits.
// clang-format off
#define SEAPLAN_COMMON_TEXTS(KEY) \
    KEY(9003, IDS_VIEW_NOCHANGES) \
    KEY(9004, IDS_VIEW_AVERAGEHINT) \
    KEY(9005, IDS_VIEW_DISTANCEHINT) \
    KEY(9006, IDS_VIEW_TIMEHINT) \
    KEY(9011, IDS_VIEW_PREVYEAR) \
    KEY(9012, IDS_VIEW_NEXTYEAR) \
    KEY(9013, IDS_VIEW_PREVMONTH) \
    KEY(9014, IDS_VIEW_NEXTMONTH) \
    KEY(9015, IDS_VIEW_HOURUP) \
    KEY(9016, IDS_VIEW_HOURDOWN) \
    KEY(9017, IDS_VIEW_MINUTEUP) \
    KEY(9018, IDS_VIEW_MINUTEDOWN) \
    KEY(9026, IDS_VIEW_ASSIGNED) \
    KEY(9031, IDS_VIEW_ZONE) \
    KEY(9032, IDS_VIEW_CHANGED) \
    KEY(9034, IDS_VIEW_OK) \
    KEY(9035, IDS_VIEW_CANCEL) \
    KEY(9036, IDS_VIEW_EXPAND) \
    KEY(9037, IDS_VIEW_HOUR) \
    KEY(9038, IDS_VIEW_MINUTE)
// clang-format on

namespace Tarvik::Seaplan::TextIds {

SEAPLAN_COMMON_TEXTS(SEAPLAN_TEXT_ID)

}  // namespace Tarvik::Seaplan::TextIds
