// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/controllers/VoyageChart.h"
#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Seaplan {

enum class LoadStep { Id, Voyage, PortCalls, Book, Totals, Progress, BookLine, Mode };
/// Numbers of LoadSchedule.
inline constexpr CodeTable kLoadScheduleCodes{
    Code{LoadStep::Id, -1},         // empty id
    Code{LoadStep::Voyage, -2},     // unknown voyage
    Code{LoadStep::PortCalls, -3},  // the server gives no port calls
    Code{LoadStep::Book, -4},       // nor a book; where none is stored `rows` are as for -5
    Code{LoadStep::Totals,
         -5},  // the book is not that of the port calls, which `rows` are; they wait to be calculated
    Code{LoadStep::Progress, -6},  // it is loaded, but not drawn with its ship
    Code{LoadStep::BookLine, -7},  // nor as a line
    Code{LoadStep::Mode, -8},      // it is loaded, the draw mode is none
};

/// What a LoadSchedule has brought: the schedule, its rows alone, or nothing that can be relied on.
enum class LoadEnd { Loaded, WithoutBook, Unread };
/// The end that a result of LoadSchedule tells. A failure to draw comes behind the loading.
constexpr LoadEnd LoadEndOf(int code) {
    const auto is = [code](LoadStep step) { return code == kLoadScheduleCodes.Of(step); };
    if (code == 0 || is(LoadStep::Progress) || is(LoadStep::BookLine)) {
        return LoadEnd::Loaded;
    }
    return is(LoadStep::Book) || is(LoadStep::Totals) ? LoadEnd::WithoutBook : LoadEnd::Unread;
}

enum class DiscardStep { Id, Voyage, Load };
/// Numbers of DiscardPortCalls.
inline constexpr CodeTable kDiscardCodes{
    Code{DiscardStep::Id, -1},      // empty id
    Code{DiscardStep::Voyage, -2},  // unknown voyage
    Code{DiscardStep::Load, -3},    // what was saved cannot be loaded
};

enum class ShowStep { Id, State, NotInUse, Voyage, Remove, LoadDrawn, Load, Times, Corrected };
/// Numbers of ShowVoyage.
inline constexpr CodeTable kShowVoyageCodes{
    Code{ShowStep::Id, -1},         // empty id
    Code{ShowStep::State, -2},      // its state is not known
    Code{ShowStep::NotInUse, -3},   // it is in the recycle bin, destroyed, or in no category
    Code{ShowStep::Voyage, -4},     // unknown voyage
    Code{ShowStep::Remove, -5},     // its old objects stay
    Code{ShowStep::LoadDrawn, -6},  // a plain voyage is not loaded and drawn
    Code{ShowStep::Load, -7},       // a corrected one is not loaded
    Code{ShowStep::Times, -8},      // its times of correction are not known
    Code{ShowStep::Corrected, -9},  // it is not drawn
};

class VoyCatalogController;

/// Brings a voyage's schedule from the server into its record, and from there onto the chart. What the record
/// holds is not asked for again.
class ScheduleLoader {
  public:
    /// Keeps its collaborators, which outlive it.
    ScheduleLoader(VoyPortCallModule* module, VoyCatalogController* catalog, VoyageStore* store)
        : module_(module), catalog_(catalog), store_(store), chart_(module) {}

    /// Loads into `rows` and the record and draws; without a mode it ends behind the loading. The ids that
    /// the server stored with the ports stay in the rows. Its own pending route goes. Rows that have no book,
    /// or the book of other ports, as a save leaves them that broke off, are in `rows` with the start of the
    /// book, though the loading has failed; after any other failure to read `rows` is empty.
    Outcome<LoadStep> Load(const std::string& vi, PortCallRows& rows, std::optional<DrawMode> mode);
    /// Drops the working copy of an unsaved voyage and fetches what was saved, without drawing. A voyage
    /// without times of correction becomes a plain one.
    Outcome<DiscardStep> Discard(const std::string& vi);
    /// Draws a voyage in use with its ship, a corrected one without what its track covers. Pending routes
    /// stay.
    Outcome<ShowStep> Show(const std::string& vi);
    /// Draws all voyages whose route is switched on, leaving the person's view of the chart where it is; one
    /// that fails is passed over.
    void ShowSwitchedOn();
    /// What draws the voyages, for those who only draw.
    VoyageChart& Chart() { return chart_; }

  private:
    Outcome<LoadStep> Read(const std::string& vi, PortCallRows& rows, std::optional<DrawMode> mode);
    Outcome<LoadStep> Fetch(VoyInfo& voyage, PortCallRows& rows);

    VoyPortCallModule* module_;
    VoyCatalogController* catalog_;
    VoyageStore* store_;
    VoyageChart chart_;
};

}  // namespace Tarvik::Seaplan
