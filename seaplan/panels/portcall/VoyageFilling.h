// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/CorrectedSchedule.h"
#include "seaplan/panels/portcall/PortCallDesk.h"

namespace Tarvik::Seaplan {

/// Which voyage the panel shows: opening one, emptying the table, and what becomes of changes that were not
/// saved.
class VoyageFilling {
  public:
    VoyageFilling(PortCallDesk& desk, CellEditing& editing, CorrectedSchedule& corrected)
        : desk_(desk), editing_(editing), corrected_(corrected) {}

    /// The voyage of the next Open or Reset; the one on show stays until then.
    void SetVoyage(const std::string& vi) { next_ = vi; }
    /// Shows that voyage. `mode` as VoyController::LoadSchedule draws. 0, also when it cannot be loaded and
    /// the table stays empty; -1 no such voyage; -2 none at all, which is told; -3 its rows cannot be shown.
    int Open(int mode);
    /// Six empty rows of that voyage.
    void Reset();
    /// Shows that voyage with its fresh correction from AIS, made at a time in the user's zone that SetTime
    /// has told before. Fails as Open, and with -4 when the correction cannot be split and the plain voyage
    /// is shown.
    int ShowCorrection();
    void SetCorrectionTime(const std::string& time) { corrected_.SetTime(next_, time); }
    /// The voyage on show anew.
    int Fill(int mode);
    /// Saves the table's rows as the schedule of a voyage. 0; -1 no voyage; -2 no rows; -3 the save failed.
    int SaveTable(const std::string& vi, int drawMode);

  private:
    void AskUnsaved();
    void Clear();
    int Load(int mode);

    PortCallDesk& desk_;
    CellEditing& editing_;
    CorrectedSchedule& corrected_;
    std::string next_;
};

}  // namespace Tarvik::Seaplan
