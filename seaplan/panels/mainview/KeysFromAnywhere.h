// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/editors/Keys.h"

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;
class CPosBookDlg;

/// The panels that are in sight, null for those that are not.
struct PanelsInSight {
    CPortCallPanelDlg* portCalls = nullptr;
    CPosBookDlg* book = nullptr;
};

/// Ctrl+S and F9 while the keyboard is on the chart or in the voyage tree: they save and calculate what is
/// open, after what is being typed there is taken. The status line tells why nothing is done. False for
/// another key.
bool OnKeyFromAnywhere(KeyPress press, const PanelsInSight& open);

}  // namespace Tarvik::Seaplan
