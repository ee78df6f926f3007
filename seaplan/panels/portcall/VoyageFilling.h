// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/VoyPortCall.h"

namespace Tarvik::Seaplan {

class CellEditing;
class CorrectedSchedule;
class PortCallDesk;
enum class LoadEnd;

/// Which voyage the panel shows: opening one, emptying the table, and what becomes of changes that were not
/// saved.
class VoyageFilling {
  public:
    /// `save` saves the table on show for good, without drawing it, and tells the person where that fails; 0
    /// when it is saved.
    VoyageFilling(PortCallDesk& desk, CellEditing& editing, CorrectedSchedule& corrected,
                  std::function<int()> save)
        : desk_(desk), editing_(editing), corrected_(corrected), save_(std::move(save)) {}

    /// The voyage of the next Open or Reset; the one on show stays until then.
    void SetVoyage(const std::string& vi) { next_ = vi; }
    const std::string& NextVoyage() const { return next_; }
    /// Shows that voyage, drawn as `mode` tells. 0, also when it cannot be loaded and
    /// the table stays empty; -1 no such voyage; -2 none at all, which is told; -3 its rows cannot be shown;
    /// -4 the changes of the voyage on show were to be saved and could not be, so that it stays with them.
    int Open(DrawMode mode) { return Open(mode, Sight::Hidden); }
    /// That voyage's stored rows, or six empty ones when it has none. Nothing where the changes of the voyage
    /// on show could not be saved.
    void Reset();
    /// The voyage on show anew, as Open shows the next one, which stays the next; the panel stays in sight.
    /// Results of Open.
    int Refill();
    /// An empty port distance table. 0, or -1 where the changes of the voyage on show could not be saved.
    int OpenDistanceTable();
    /// The rows on show are those of this voyage from now on, with their route; the table stays as it is.
    void Adopt(const std::string& vi);
    /// The user's zone changed: the times on show are read anew in it, unless their changes have to stay.
    void OnTimeZone(const std::string& zone);
    /// Forgets voyages, rows and changes without a question: another user's voyages may have the same ids.
    void Forget();
    /// Shows that voyage with its fresh correction from AIS, made at a time in the user's zone that SetTime
    /// has told before. Fails as Open, and with -5 when the correction cannot be split and the plain voyage
    /// is shown.
    int ShowCorrection();
    void SetCorrectionTime(const std::string& time);
    /// Asks what becomes of changes that are not saved, and shows the voyage on show as it is stored then.
    /// False when it has to stay with them.
    bool AskToLeave();
    /// The person gave up the changes of the voyage on show: what was saved counts again.
    void GiveUp();
    /// The voyage on show anew.
    int Fill(DrawMode mode);

  private:
    /// Whether the panel is to be seen while it is filled.
    enum class Sight { Hidden, Kept };

    int Open(DrawMode mode, Sight sight);
    bool MayLeave();
    void TakeOver(const std::string& vi);
    int Show(DrawMode mode);
    void ShowUnfinished(LoadEnd end, PortCallRows rows);
    void Clear();
    int Load(DrawMode mode);

    PortCallDesk& desk_;
    CellEditing& editing_;
    CorrectedSchedule& corrected_;
    std::function<int()> save_;
    std::string next_;
};

}  // namespace Tarvik::Seaplan
