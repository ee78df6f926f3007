// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyagesOnChart.h"

#include <tarvik/bus/ChartContract.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeContext.h"

namespace Tarvik::Seaplan {

void VoyagesOnChart::TidyOthers(const std::string& vi) {
    for (auto& [id, mark] : c_.chartMarks) {
        if (id == vi || mark.drawState != OnChart) {
            continue;
        }
        if (mark.routePinned == 1) {
            c_.voyages.HideAisTrack(id);
            continue;
        }
        if (c_.voyages.RemoveVoyageObjects(id) != 0 || c_.voyages.HideAisTrack(id) != 0) {
            continue;
        }
        mark.drawState = OffChart;
    }
}

int VoyagesOnChart::Redraw(const VoyInfo& voyage, VoyChartMark& mark) {
    if (voyage.vr == 1) {
        if (aisModVoyage_ == voyage.vi && !aisModSkipDone_) {
            aisModSkipDone_ = true;
            return 0;
        }
        if (c_.voyages.RemoveVoyageObjects(voyage.vi) != 0) {
            return -2;
        }
        if (c_.voyages.ShowVoyage(voyage.vi) != 0) {
            return -3;
        }
    }
    mark.routePinned = voyage.vr == 1 ? 1 : 0;
    TidyOthers(voyage.vi);
    return voyage.va == 1 && ShowAis(voyage, false) != 0 ? -4 : 0;
}

int VoyagesOnChart::ActivateVoyage(const VoyInfo& voyage) {
    if (voyage.vi.empty()) {
        return -1;
    }
    Interface::Call(Interface::Bus::MapStandOut, &voyage.vi);
    const auto known = c_.chartMarks.find(voyage.vi);
    if (known != c_.chartMarks.end() && known->second.drawState == OnChart) {
        return Redraw(voyage, known->second);
    }
    if (c_.voyages.RemoveVoyageObjects(voyage.vi) != 0) {
        return -5;
    }
    c_.chartMarks[voyage.vi] = {voyage.vr == 1 ? 1 : 0, OnChart};
    TidyOthers(voyage.vi);
    if (c_.voyages.ShowVoyage(voyage.vi) != 0) {
        TidyOthers(voyage.vi);
        return -6;
    }
    return voyage.va == 1 && ShowAis(voyage, false) != 0 ? -7 : 0;
}

void VoyagesOnChart::LeaveAloneOnce(const std::string& vi) {
    aisModVoyage_ = vi;
    aisModSkipDone_ = false;
}

int VoyagesOnChart::ShowAis(const VoyInfo& voyage, bool warn) {
    if (voyage.vi.empty()) {
        return -1;
    }
    if (voyage.vsi.empty() || voyage.vsn.empty()) {
        if (warn) {
            c_.boxes.Notice(TextIds::IDS_TREE_WARNSHOWAIS);
        }
        return -1;
    }
    if (c_.voyages.RefreshTrace(voyage.vi) == 0) {
        return 0;
    }
    if (warn) {
        c_.boxes.Notice(TextIds::IDS_TREE_FAILDSHOWAIS);
    }
    return -2;
}

void VoyagesOnChart::ShowAisItems(TreeRow row, bool on) {
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOff, !on);
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOn, on);
}

int VoyagesOnChart::SetAisShown(const std::string& vi, bool on) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return -3;
    }
    if (on) {
        if (ShowAis(*voyage, true) != 0) {
            return -4;
        }
        if (voyage->va == 0 && c_.catalog.OpenAis(vi) != 0) {
            return -5;
        }
    } else {
        if (c_.voyages.HideAisTrack(vi) != 0) {
            return -6;
        }
        // The server is told whatever the flag was; its refusal leaves the flag on and the track hidden.
        voyage->va = 1;
        if (c_.catalog.CloseAis(vi) != 0) {
            return -7;
        }
    }
    ShowAisItems(row, on);
    return 0;
}

int VoyagesOnChart::SetPinned(const std::string& vi, bool on) {
    if (vi.empty()) {
        return -1;
    }
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) {
        return -2;
    }
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) {
        return -3;
    }
    if (on && voyage->positionBook.points.empty()) {
        return -4;
    }
    if (on && c_.catalog.OpenRoute(vi) != 0) {
        return -5;
    }
    if (!on && c_.catalog.CloseRoute(vi) != 0) {
        return -6;
    }
    c_.tree.SetDrawItemVisibleEx(row, Item::kUnpinned, !on);
    c_.tree.SetDrawItemVisibleEx(row, Item::kPinned, on);
    return ActivateVoyage(*voyage) == 0 ? 0 : -7;
}

void VoyagesOnChart::MarkAll() {
    if (c_.chartMarks.size() > 1) {
        return;
    }
    for (const auto& [vi, voyage] : c_.store.voyages) {
        if (voyage.vr == 1) {
            if (c_.voyages.ShowVoyage(vi) == 0) {
                c_.chartMarks[vi] = {1, OnChart};
            }
        } else {
            c_.chartMarks[vi] = {0, OffChart};
        }
    }
}

}  // namespace Tarvik::Seaplan
