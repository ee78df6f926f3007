// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/calculation/book/BookChecks.h"
#include "seaplan/calculation/book/BookRows.h"
#include "seaplan/controllers/BookOnChart.h"
#include "seaplan/panels/book/BookOwner.h"
#include "seaplan/panels/book/BookSheet.h"
#include "seaplan/panels/book/BookView.h"
#include "seaplan/panels/editors/EditHistory.h"
#include "seaplan/panels/texts/TextId.h"
#include "seaplan/panels/window/Boxes.h"

namespace Tarvik::Seaplan {

/// The places in front before an edit of the book and behind it: undo and redo show where they change it.
struct BookFronts {
    PosBookRowRef before;
    PosBookRowRef after;
};

/// The states of the book on show.
using BookHistory = EditHistory<PosBookData, BookFronts>;

/// What the parts of the position book share: the sheet with its history, the window before it and the panel
/// that opened it. A part changes the sheet as it likes; the window is told once, when the report that it
/// began with is over, and before whatever a person looks at meanwhile.
class BookDesk {
  public:
    using Parts = BookParts;
    explicit BookDesk(Parts parts) : p_(std::move(parts)), boxes_(p_.view) {}

    BookSheet& Sheet() { return sheet_; }
    const BookSheet& Sheet() const { return sheet_; }
    BookView& View() const { return p_.view; }
    BookOwner& Owner() const { return *p_.owner(); }
    Rect MainPlace() const { return p_.mainPlace(); }
    BookOnChart& Chart() { return chart_; }

    /// Brings the window up to date, and the chart while it is open.
    void Show();
    /// The same when the outermost report is over.
    class Report {
      public:
        explicit Report(BookDesk& desk);
        ~Report();
        Report(const Report&) = delete;
        Report& operator=(const Report&) = delete;

      private:
        BookDesk& desk_;
    };

    /// A book that is saved, in place of the one before; units stay.
    void Take(const PosBookData& book);
    /// Courses, times and totals anew.
    void Recompute();
    /// The book was edited: all is computed anew and the edit can be taken back by its name.
    void TakeEdit(const EditName& name = {});
    /// Makes edits that are computed and taken back as one, which `edits` names when they are made; nothing
    /// where they change nothing.
    void Together(const std::function<EditName()>& edits);
    /// The state before the last edit, or behind it again. False where there is none.
    bool GoBack();
    bool GoForward();
    /// All edits since the last save are taken back, as one edit.
    void DropEdits();
    /// Whether what is on show is what the server has: not known from the beginning of a save until it ended
    /// well.
    void NoteStored(bool known);
    /// The plain waypoints before a place behind the first port show, and it does too.
    void UnfoldBefore(const PosBookRowRef& ref);
    /// Cuts the way to a row into waypoints; the row in front stays the same place. Returns how many came.
    int Regenerate(int row, bool addMidpoint);

    /// The person's zone; asked of the host where no text is given.
    void TakeZone(const std::string& zone);
    /// Boxes to the person, over a window that is up to date.
    Boxes& ToPerson();
    /// Tells why a value is not taken; nothing for None.
    void Refuse(BookRefusal refusal);

  private:
    static constexpr int kNoPort = -1;  ///< of a place in front that is none

    void ShowState(PosBookData book, const PosBookRowRef& front);
    void NoteHistory();
    PosBookRowRef Before(const PosBookRowRef& ref) const;
    PosBookRowRef Front() const;
    int RowShowing(PosBookRowRef ref) const;

    Parts p_;
    Boxes boxes_;
    BookSheet sheet_;
    BookHistory history_;
    BookOnChart chart_;
    PosBookRowRef before_{kNoPort, PosBookRowRef::kPort};  ///< place in front when the edit under way began
    int reports_ = 0;                                      ///< reports under way, one inside the other
    bool together_ = false;                                ///< edits under way count as one
    bool edited_ = false;                                  ///< one of them has changed something
};

/// The text that tells why a value is not taken, which it is not.
TextId TextOf(BookRefusal refusal);
/// The rows that are chosen in the table, brought up to date, and the one in front, in order.
std::vector<int> ChosenRows(BookDesk& desk);

}  // namespace Tarvik::Seaplan
