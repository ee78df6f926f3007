// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <tarvik/core/TObject.h>

namespace Tarvik::Seaplan {

class BookCommands;
class BookEditing;
struct BookParts;
class BookSheet;
struct PosBookData;

/// The position book of the voyage in the port call panel: its waypoints in a table, edited in place, added
/// and deleted, and saved through that panel, which cannot be used meanwhile. This class ties the book's
/// parts together.
class CPosBookDlg final : public Core::TObject {
  public:
    explicit CPosBookDlg(const BookParts& parts);
    ~CPosBookDlg() override;

    /// Shows a book that is saved, in the middle of the main view.
    void ShowBook(const PosBookData& book);
    /// Courses, times and totals anew.
    void Recompute();
    /// Cuts the way to a list row into waypoints; with `addMidpoint` one that needs none gets one half way.
    /// Returns how many came.
    int RegenerateLeg(int listRow, bool addMidpoint);
    /// Deletes a plain waypoint that the ship has not passed. False where that cannot be.
    bool DeleteRow(int listRow);
    /// Whether a text counts as a number: Seaplan::IsNumberText.
    static bool IsNumberText(const std::string& text);

    void ApplyLanguage();
    /// The user has gone: nothing is asked, and what was not saved is dropped.
    void OnLogout();
    /// The user's zone is another one now: two columns and the head follow.
    void OnTimeZone(const std::string& zone);

    /// What opens over the cells.
    BookEditing& Cells();
    /// The buttons, the rows and the keys of the table.
    BookCommands& Commands();
    /// All that the window shows.
    const BookSheet& Sheet() const;

  private:
    struct Inner;

    std::unique_ptr<Inner> in_;
};

}  // namespace Tarvik::Seaplan
