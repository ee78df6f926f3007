// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/panels/remark/RemarkDesk.h"
#include "seaplan/panels/remark/RemarkEditing.h"

namespace Tarvik::Seaplan {

/// The remarks of one category, voyage or port call: read, written, changed and deleted. Nothing that was
/// typed goes without a question, but for a logout.
class CRemarkPanel {
  public:
    struct Parts {
        RemarkView& view;
        std::function<Point()> corner;  ///< where the window's left top corner is put at an opening
        RemarkDesk::MarkReport mark{};
    };
    explicit CRemarkPanel(const Parts& parts);
    CRemarkPanel(const CRemarkPanel&) = delete;
    CRemarkPanel& operator=(const CRemarkPanel&) = delete;

    /// Shows the remarks of an object, `type` as RemarkObject names it; one without remarks opens with a new
    /// one. What was loaded of the same object before is shown from memory. 0; -1 when a changed text of the
    /// object on show was to be saved and could not be: that object stays.
    int Open(RemarkOwnerRow row, int type, const std::string& objectid, const std::string& name);

    /// The add button: a new remark in row 0, one at a time, with the keyboard in its title.
    void New();
    /// The other order, newest or oldest first, for all remark panels.
    void OnSort();
    /// Hides the window, unless a changed text was to be saved and could not be.
    void OnClose();
    void OnHelp() { d_.view.RequestHelp("func024", 350, 130); }
    /// The fields, the save button, and the row that is edited.
    RemarkEditing& Editing() { return editing_; }
    /// Takes the events of the rows' items.
    const ClistCtrlViewEx& List() const { return d_.list; }

    void ApplyLanguage();
    /// Forgets object and remarks without a question: another user's objects may have the same ids.
    using LogoutByMainView = void;
    void OnLogout();
    /// The times on show were read in the zone before. Where they cannot be read anew, they stay.
    void OnTimeZone(const std::string& zone);

  private:
    void Reset();
    void Load();
    void ShowObject();
    void Sort();
    void OnItemClicked(int row, const std::string& item);
    void Delete(int row);
    void DropNew();
    void SetTitle();

    RemarkDesk d_;
    std::function<Point()> corner_;
    RemarkEditing editing_;
};

}  // namespace Tarvik::Seaplan
