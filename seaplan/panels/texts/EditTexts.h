// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/texts/TextId.h"

/// What undo and redo say of an edit, in the port calls, the distance table and the position book.
// clang-format off
#define SEAPLAN_EDIT_TEXTS(KEY) \
    KEY(9110, IDS_VIEW_UNDO) \
    KEY(9111, IDS_VIEW_REDO) \
    KEY(9112, IDS_VIEW_NOUNDO) \
    KEY(9113, IDS_VIEW_NOREDO) \
    KEY(9200, IDS_VIEW_UNDOOF) \
    KEY(9201, IDS_VIEW_REDOOF) \
    KEY(9202, IDS_VIEW_EDITOTHER) \
    KEY(9203, IDS_VIEW_EDITPORT) \
    KEY(9204, IDS_VIEW_EDITPURPOSE) \
    KEY(9205, IDS_VIEW_EDITSPEED) \
    KEY(9206, IDS_VIEW_EDITWEATHER) \
    KEY(9207, IDS_VIEW_EDITETA) \
    KEY(9208, IDS_VIEW_EDITETD) \
    KEY(9209, IDS_VIEW_EDITMOVE) \
    KEY(9210, IDS_VIEW_EDITDELETE) \
    KEY(9211, IDS_VIEW_EDITCALCULATE) \
    KEY(9212, IDS_VIEW_EDITCLEAR) \
    KEY(9213, IDS_VIEW_EDITUNIT) \
    KEY(9214, IDS_VIEW_EDITROUTE) \
    KEY(9215, IDS_VIEW_EDITPLACE) \
    KEY(9216, IDS_VIEW_EDITNAME) \
    KEY(9217, IDS_VIEW_EDITTRACK) \
    KEY(9218, IDS_VIEW_EDITINTERVAL) \
    KEY(9219, IDS_VIEW_EDITINSERT) \
    KEY(9220, IDS_VIEW_EDITCANCEL)
// clang-format on

namespace Tarvik::Seaplan::TextIds {

SEAPLAN_EDIT_TEXTS(SEAPLAN_TEXT_ID)

}  // namespace Tarvik::Seaplan::TextIds
