// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Seaplan {

class CPosBookDlg;
class CRemarkPanel;
class PortCallView;
class PortDirectory;
class VoyCatalogController;
class VoyController;

/// What the port call panel is made with; all of it outlives the panel.
struct PortCallParts {
    VoyCatalogController& catalog;
    VoyController& voyages;
    PortDirectory& ports;
    PortCallView& view;
    std::function<Rect()> treePlace;          ///< where the voyage tree stands on the screen
    std::function<CPosBookDlg*()> book = {};  ///< the position book, made when it is asked for
    /// The remark panel of the port calls, made at its first use; empty where there is none.
    std::function<CRemarkPanel*()> remarks{};
    /// Asks under which name the distance table is to be kept as a voyage; empty where nobody can.
    std::function<void()> keepTable{};

    /// The same, and nothing where nobody can.
    void AskToKeepTable() const {
        if (keepTable) {
            keepTable();
        }
    }
};

}  // namespace Tarvik::Seaplan
