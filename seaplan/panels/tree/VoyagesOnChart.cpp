// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyagesOnChart.h"

#include <tarvik/bus/BusCall.h>
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

OnChartOutcome VoyagesOnChart::ShowTrackOf(const VoyInfo& voyage) {
    return voyage.va == 1 ? ShowAis(voyage, false) : OnChartOutcome();
}

OnChartOutcome VoyagesOnChart::Redraw(const VoyInfo& voyage, VoyChartMark& mark) {
    if (voyage.vr == 1) {
        if (aisModVoyage_ == voyage.vi && !aisModSkipDone_) {
            aisModSkipDone_ = true;
            return {};
        }
        if (c_.voyages.RemoveVoyageObjects(voyage.vi) != 0) {
            return OnChartStep::Remove;
        }
        if (c_.voyages.ShowVoyage(voyage.vi) != 0) {
            return OnChartStep::Draw;
        }
    }
    mark.routePinned = voyage.vr == 1 ? 1 : 0;
    TidyOthers(voyage.vi);
    return ShowTrackOf(voyage);
}

OnChartOutcome VoyagesOnChart::ActivateVoyage(const VoyInfo& voyage) {
    if (voyage.vi.empty()) {
        return OnChartStep::Id;
    }
    Interface::Call(Interface::Bus::MapStandOut, &voyage.vi);
    const auto known = c_.chartMarks.find(voyage.vi);
    if (known != c_.chartMarks.end() && known->second.drawState == OnChart) {
        return Redraw(voyage, known->second);
    }
    if (c_.voyages.RemoveVoyageObjects(voyage.vi) != 0) {
        return OnChartStep::Remove;
    }
    c_.chartMarks[voyage.vi] = {voyage.vr == 1 ? 1 : 0, OnChart};
    TidyOthers(voyage.vi);
    if (c_.voyages.ShowVoyage(voyage.vi) != 0) {
        TidyOthers(voyage.vi);
        return OnChartStep::Draw;
    }
    return ShowTrackOf(voyage);
}

void VoyagesOnChart::DrawAgain(const std::string& vi) {
    bool wasShown = false;
    for (const auto& [id, mark] : c_.chartMarks) {
        if (mark.drawState == OnChart && id == vi) {
            wasShown = true;
        } else if (mark.drawState == OnChart && mark.routePinned == 1) {
            static_cast<void>(c_.voyages.ShowVoyage(id));
        }
    }
    const VoyInfo* voyage = c_.store.FindVoyage(vi);
    // The last one drawn is the one in sight.
    if (wasShown && voyage != nullptr && c_.voyages.ShowVoyage(vi) == 0) {
        static_cast<void>(ShowTrackOf(*voyage));
    }
}

void VoyagesOnChart::LeaveAloneOnce(const std::string& vi) {
    aisModVoyage_ = vi;
    aisModSkipDone_ = false;
}

OnChartOutcome VoyagesOnChart::ShowAis(const VoyInfo& voyage, bool warn) {
    if (voyage.vi.empty()) {
        return OnChartStep::Id;
    }
    if (voyage.vsi.empty() || voyage.vsn.empty()) {
        if (warn) {
            c_.boxes.Notice(TextIds::IDS_TREE_WARNSHOWAIS);
        }
        return OnChartStep::Vessel;
    }
    if (c_.voyages.RefreshTrace(voyage.vi) == 0) {
        return {};
    }
    if (warn) {
        c_.boxes.Notice(TextIds::IDS_TREE_FAILDSHOWAIS);
    }
    return OnChartStep::Track;
}

void VoyagesOnChart::ShowAisItems(TreeRow row, bool on) {
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOff, !on);
    c_.tree.SetDrawItemVisibleEx(row, Item::kAisOn, on);
}

OnChartOutcome VoyagesOnChart::TurnAis(VoyInfo& voyage, bool on) {
    if (on) {
        if (const OnChartOutcome shown = ShowAis(voyage, true); shown.Failed()) {
            return shown;
        }
        return voyage.va == 0 && c_.catalog.OpenAis(voyage.vi) != 0 ? OnChartStep::Server : OnChartOutcome();
    }
    if (c_.voyages.HideAisTrack(voyage.vi) != 0) {
        return OnChartStep::Track;
    }
    // The server is told whatever the flag was; its refusal leaves the flag on and the track hidden.
    voyage.va = 1;
    return c_.catalog.CloseAis(voyage.vi) != 0 ? OnChartStep::Server : OnChartOutcome();
}

/// The record and the row of a voyage.
OnChartOutcome VoyagesOnChart::Find(const std::string& vi, Shown& out) const {
    if (vi.empty()) {
        return OnChartStep::Id;
    }
    out.voyage = c_.store.FindVoyage(vi);
    if (out.voyage == nullptr) {
        return OnChartStep::Voyage;
    }
    out.row = c_.FindVoyageRow(vi);
    return out.row == kNoRow ? OnChartStep::Row : OnChartOutcome();
}

OnChartOutcome VoyagesOnChart::SetAisShown(const std::string& vi, bool on) {
    Shown of;
    if (const OnChartOutcome found = Find(vi, of); found.Failed()) {
        return found;
    }
    if (const OnChartOutcome turned = TurnAis(*of.voyage, on); turned.Failed()) {
        return turned;
    }
    ShowAisItems(of.row, on);
    return {};
}

OnChartOutcome VoyagesOnChart::SetPinned(const std::string& vi, bool on) {
    Shown of;
    if (const OnChartOutcome found = Find(vi, of); found.Failed()) {
        return found;
    }
    if (on && of.voyage->positionBook.points.empty()) {
        return OnChartStep::PositionBook;
    }
    if ((on ? c_.catalog.OpenRoute(vi) : c_.catalog.CloseRoute(vi)) != 0) {
        return OnChartStep::Server;
    }
    c_.tree.SetDrawItemVisibleEx(of.row, Item::kUnpinned, !on);
    c_.tree.SetDrawItemVisibleEx(of.row, Item::kPinned, on);
    return ActivateVoyage(*of.voyage);
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
