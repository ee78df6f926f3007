// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "seaplan/data/VoyInfo.h"
#include "seaplan/panels/bunker/BunkerView.h"
#include "seaplan/panels/window/Boxes.h"

namespace Tarvik::Seaplan {

/// The daily consumption of a voyage: seven whole numbers from 0 to 500000, edited on a copy. They are saved
/// to the voyage that the port call panel is set to, whose name stands in the title.
class CBunkerDlg {
  public:
    struct Parts {
        BunkerView& view;
        std::function<int(const BunkerFigures&)> save;  ///< for the voyage of the title; 0, or it failed
        std::function<std::string()> voyageName;        ///< its name, empty for none
        std::function<Rect()> treePlace;                ///< where the voyage tree stands on the screen
    };
    explicit CBunkerDlg(Parts parts);
    CBunkerDlg(const CBunkerDlg&) = delete;
    CBunkerDlg& operator=(const CBunkerDlg&) = delete;

    /// Shows figures beside the tree, unchanged; what was changed before and not saved is gone.
    void Open(const BunkerFigures& figures, bool editable);
    /// What the buttons, the title's mark and the fields tell.
    void SetState(bool dirty, bool editable);
    /// The port call panel was set to another voyage.
    void OnVoyageSet();

    /// The text of a field, by BunkerFigure, is now this. A number that is not allowed is told, and all
    /// fields show again what they had.
    void OnTyped(std::size_t field, const std::string& text);
    /// The part of OnTyped that puts no box up. False for a number that is not allowed; then Refuse follows.
    bool Take(std::size_t field, const std::string& text);
    /// Tells that a number is not allowed; all fields show again what they had.
    void Refuse();
    void OnSave();
    /// Back to what was opened or saved last.
    void OnUndo();
    /// Hides the dialog; what was changed is saved or dropped, as the person says.
    void OnClose();
    void OnHelp() { p_.view.RequestHelp("func036", 350, 370); }

    void ApplyLanguage();
    /// Hides the dialog without saving.
    void OnLogout();

  private:
    bool IsDirty() const { return current_ != saved_; }
    void Save();
    void ShowTitle();

    Parts p_;
    Boxes boxes_;
    BunkerFigures current_{};
    BunkerFigures saved_{};
    bool dirty_ = false;  ///< what the title's mark tells
};

}  // namespace Tarvik::Seaplan
