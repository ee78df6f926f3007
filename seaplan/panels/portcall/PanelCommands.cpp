// SPDX-License-Identifier: MIT
#include "seaplan/panels/portcall/PanelCommands.h"

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/PortCallDesk.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/portcall/PortCallWords.h"
#include "seaplan/panels/portcall/RouteChoice.h"
#include "seaplan/panels/portcall/TableCalculation.h"
#include "seaplan/panels/portcall/VoyageFilling.h"
#include "seaplan/panels/texts/EditTexts.h"
#include "seaplan/panels/texts/PortCallTexts.h"
#include "seaplan/panels/texts/WhatIfTexts.h"
#include "seaplan/panels/window/StatusWords.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kHelpTopic = "func034";
constexpr const char* kTableHelpTopic = "distances";  ///< of the port distance table

/// A notice with the cause of the last failure as its second line.
void TellFailure(PortCallDesk& desk, TextId id) {
    desk.ToPerson().Notice(id, desk.Sheet().cause);
}

/// Where there is no box for it, the status line tells why nothing was calculated.
void TellCalculated(PortCallDesk& desk, const Outcome<TableStep>& calculated) {
    if (!calculated.Failed()) {
        TellInStatusLine({});
    } else if (calculated.At() == TableStep::Save) {
        TellFailure(desk, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
    } else {
        TellInStatusLine(Text(TextIds::IDS_VIEW_NOTCALCULATED, {desk.Sheet().cause}));
    }
}

}  // namespace

PanelCommands::PanelCommands(PortCallDesk& desk, CellEditing& editing, CorrectedSchedule& corrected,
                             VoyageFilling& filling)
    : desk_(desk),
      editing_(editing),
      corrected_(corrected),
      filling_(filling),
      calculation_(std::make_unique<TableCalculation>(desk, filling)),
      ways_(std::make_unique<RouteChoice>(desk)),
      questions_(desk, editing) {
    desk_.SetFollower([this] { questions_.Follow(); });
}

PanelCommands::~PanelCommands() = default;

void PanelCommands::OnCalculate() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    int corrected = 0;
    if (desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) != 0) {
        return;
    }
    if (corrected <= 0) {
        TellCalculated(desk_, calculation_->Calculate());
    } else if (corrected_.Calculate() != 0) {
        TellFailure(desk_, TextIds::IDS_PORTCALL_AISCOMPUTWARN);
    }
    desk_.History().Take({TextIds::IDS_VIEW_EDITCALCULATE});
}

void PanelCommands::OnRouteAnew() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    if (desk_.IsCorrected()) {
        return TellInStatusLine(Text(TextIds::IDS_VIEW_ANEWCORRECTED));
    }
    const auto taken = calculation_->CalculateAnew([this](const PortCallRows& now, const PortCallRows& anew) {
        desk_.Show();
        return desk_.View().AskRows(PreviewOfRoute(now, anew, desk_.Sheet().Units()), {});
    });
    if (!taken.Failed()) {
        desk_.History().Take({TextIds::IDS_VIEW_EDITANEW});
    } else if (taken.At() != AnewStep::Left) {
        TellInStatusLine(Text(TextIds::IDS_VIEW_NOTANEW, {desk_.Sheet().cause}));
    }
}

void PanelCommands::OnCompareWays() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const auto chosen = ways_->Choose();
    if (!chosen.Failed()) {
        OnRouteChosen();
    } else if (chosen.At() != WaysStep::Left) {
        TellInStatusLine(Text(chosen.At() == WaysStep::Server ? TextIds::IDS_VIEW_FAULTCONNECTION
                                                              : TextIds::IDS_VIEW_NOWAYS));
    }
}

int PanelCommands::OnRouteChosen() {
    // A closed panel has no table of its own to follow with.
    if (!desk_.View().IsVisible()) {
        return kFollowRouteCodes.Of(FollowStep::Closed);
    }
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const auto followed = calculation_->FollowRoute();
    if (!followed.Failed() || followed.At() == FollowStep::Show) {
        desk_.History().Take({TextIds::IDS_VIEW_EDITROUTE});
    }
    return kFollowRouteCodes.Of(followed);
}

void PanelCommands::OnSave() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    const PortCallSheet& sheet = desk_.Sheet();
    if (sheet.state.changed && sheet.IsUnkeptTable()) {
        return desk_.Given().AskToKeepTable();
    }
    int corrected = 0;
    if (!sheet.state.changed || desk_.Voyages().GetModAis(sheet.voyageId, corrected) != 0) {
        return;
    }
    if (corrected > 0) {
        // There is no box for it.
        const bool failed = corrected_.Calculate() != 0;
        TellInStatusLine(failed ? Text(TextIds::IDS_VIEW_CORRECTIONNOTSAVED, {desk_.Sheet().cause})
                                : std::string());
    } else {
        SavePlain();
    }
}

void PanelCommands::SavePlain() {
    const PortCallDesk::Report report(desk_);
    const auto saved = calculation_->Save(DrawMode::Progress);
    if (!saved.Failed()) {
        desk_.Sheet().MarkUnchanged();
        desk_.Sheet().state.canOpenBook = true;
    } else if (saved.At() != SaveRowsStep::Rows) {
        TellFailure(desk_, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
    }
    // A save may have calculated first.
    desk_.History().Take({TextIds::IDS_VIEW_EDITCALCULATE});
}

int PanelCommands::SaveBeforeLeaving() {
    int corrected = 0;
    const bool known = desk_.Voyages().GetModAis(desk_.Sheet().voyageId, corrected) == 0;
    // Rows of a corrected voyage hold the ship's positions, which are no port calls.
    if (known &&
        (corrected > 0 ? corrected_.Calculate() == 0 : !calculation_->Save(DrawMode::Nothing).Failed())) {
        return 0;
    }
    TellFailure(desk_, TextIds::IDS_PORTCALL_SAVEEXCEPTION);
    return -1;
}

void PanelCommands::OnClear() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    PortCallView& view = desk_.View();
    view.Hide();
    if (desk_.ToPerson().Confirm(TextIds::IDS_PORTCALL_CLEARFORBLANK, desk_.LossWords())) {
        if (desk_.Sheet().state.changed) {
            filling_.GiveUp();
        }
        desk_.Sheet().Clear();
        desk_.History().Take({TextIds::IDS_VIEW_EDITCLEAR});
        desk_.Voyages().Module().Pending().NoteRowsChanged();
        desk_.Voyages().ClearChart();
        desk_.Show();
        view.BringRowIntoView(0);
    }
    view.Show();
}

void PanelCommands::OnClose() {
    const PortCallDesk::Report report(desk_);
    PortCallSheet& sheet = desk_.Sheet();
    editing_.CommitEditors();
    if (sheet.state.changed) {
        if (!desk_.ToPerson().Question(TextIds::IDS_PORTCALL_CLOSESAVE, desk_.LossWords())) {
            return;
        }
        filling_.GiveUp();
    }
    // Nothing brings the rows of a distance table back, which begins anew when it opens.
    if (sheet.IsUnkeptTable()) {
        sheet.Clear();
    }
    sheet.MarkUnchanged();
    desk_.View().Hide();
    desk_.Voyages().ClearChart();
}

void PanelCommands::OnHelp() {
    const bool isTable = desk_.Sheet().state.distanceTable;
    desk_.View().RequestHelp(isTable ? kTableHelpTopic : kHelpTopic, kHelpWidth, kHelpHeight);
}

std::vector<std::string> PanelCommands::OnUnitsAsked(UnitKind kind) {
    editing_.CommitEditors();
    const auto offered = OfferedUnits(kind);
    return {offered.begin(), offered.end()};
}

int PanelCommands::OnUnitChosen(UnitKind kind, const std::string& unit) {
    const PortCallDesk::Report report(desk_);
    const int changed = desk_.Sheet().ChangeUnit(kind, unit, desk_.IsCorrected());
    desk_.History().Take({TextIds::IDS_VIEW_EDITUNIT});
    return changed;
}

void PanelCommands::OnUndo() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    desk_.History().GoBack();
}

void PanelCommands::OnRedo() {
    const PortCallDesk::Report report(desk_);
    editing_.CommitEditors();
    desk_.History().GoForward();
}

}  // namespace Tarvik::Seaplan
