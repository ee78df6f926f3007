// SPDX-License-Identifier: MIT
#include "seaplan/panels/tree/VoyagesOnChart.h"

namespace Tarvik::Seaplan {

void VoyagesOnChart::tidyOthers(const std::string& vi) {
    for (auto& [id, mark] : c_.chartMarks) {
        if (id == vi || mark.drawState != OnChart) continue;
        if (mark.routePinned == 1) {
            c_.schedule.HideAisTrack(id);
            continue;
        }
        if (c_.schedule.RemoveVoyageObjects(id) != 0 || c_.schedule.HideAisTrack(id) != 0) continue;
        mark.drawState = OffChart;
    }
}

int VoyagesOnChart::redraw(const VoyInfo& voyage, VoyChartMark& mark) {
    if (voyage.vr == 1) {
        if (c_.schedule.RemoveVoyageObjects(voyage.vi) != 0) return -2;
        if (c_.schedule.ShowVoyage(voyage.vi) != 0) return -3;
    }
    mark.routePinned = voyage.vr == 1 ? 1 : 0;
    tidyOthers(voyage.vi);
    return 0;
}

int VoyagesOnChart::ActivateVoyage(const VoyInfo& voyage) {
    if (voyage.vi.empty()) return -1;
    const auto known = c_.chartMarks.find(voyage.vi);
    if (known != c_.chartMarks.end() && known->second.drawState == OnChart)
        return redraw(voyage, known->second);
    if (c_.schedule.RemoveVoyageObjects(voyage.vi) != 0) return -5;
    c_.chartMarks[voyage.vi] = {voyage.vr == 1 ? 1 : 0, OnChart};
    tidyOthers(voyage.vi);
    if (c_.schedule.ShowVoyage(voyage.vi) != 0) {
        tidyOthers(voyage.vi);
        return -6;
    }
    return 0;
}

int VoyagesOnChart::SetPinned(const std::string& vi, bool on) {
    if (vi.empty()) return -1;
    VoyInfo* voyage = c_.store.FindVoyage(vi);
    if (voyage == nullptr) return -2;
    const TreeRow row = c_.FindVoyageRow(vi);
    if (row == kNoRow) return -3;
    if (on && voyage->positionBook.points.empty()) return -4;
    if (on && c_.catalog.OpenRoute(vi) != 0) return -5;
    if (!on && c_.catalog.CloseRoute(vi) != 0) return -6;
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr1.default", !on);
    c_.tree.SetDrawItemVisibleEx(row, "Voyage.child.svr1.auto", on);
    return ActivateVoyage(*voyage) == 0 ? 0 : -7;
}

void VoyagesOnChart::MarkAll() {
    if (c_.chartMarks.size() > 1) return;
    for (const auto& [vi, voyage] : c_.store.voyages) {
        if (voyage.vr == 1) {
            if (c_.schedule.ShowVoyage(vi) == 0) c_.chartMarks[vi] = {1, OnChart};
        } else {
            c_.chartMarks[vi] = {0, OffChart};
        }
    }
}

}  // namespace Tarvik::Seaplan
