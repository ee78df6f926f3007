// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>

#include "seaplan/panels/distances/KeepTableView.h"
#include "seaplan/panels/editors/CVoyageListDlg.h"
#include "seaplan/panels/editors/Keys.h"
#include "seaplan/panels/texts/TextId.h"
#include "seaplan/panels/window/Boxes.h"
#include "seaplan/panels/window/Rect.h"

namespace Tarvik::Interface {
struct PanelShow;
}

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;
class SeaplanTreeCtrl;

/// The door of the port distance table: the services by which ports come into it, the event that opens it,
/// and the dialog in which it is kept as a voyage. The table itself is the port call panel.
class CPortDistTabDlg final : public Core::TObject {
  public:
    struct Parts {
        KeepTableView& view;
        SeaplanTreeCtrl& tree;
        /// The port call panel; `make` makes it where it is not there yet, else it may be null.
        std::function<CPortCallPanelDlg*(bool make)> portCalls;
        std::function<Rect()> panelPlace;  ///< where that panel stands on the screen
    };
    explicit CPortDistTabDlg(Parts parts);

    /// Asks for the names, both fields empty, above the panel.
    void Open();
    /// A text typed into the category field; names that begin with it are offered below.
    void OnCategoryTyped(const std::string& text);
    void OnVoyageTyped(const std::string& text) { voyage_ = text; }
    /// A key in the category field; false when it means nothing there.
    bool OnCategoryKey(KeyPress press);
    /// The category field has lost the keyboard to another one: a name for the voyage is proposed.
    void OnCategoryLeft();
    /// The arrow of the category field.
    void OnArrow();
    /// A press on a name of the list.
    void OnNameChosen(int row) { names_.OnChosen(row); }
    /// A key in the list with this row in front: Enter takes its name, Escape hides the list. False when the
    /// list itself is to act on it.
    bool OnListKey(KeyPress press, int row);
    /// A press beside the list and its field.
    void OnPressedOutside() { names_.Hide(); }
    void OnOk();
    /// Close, cancel: the table stays as it was.
    void OnClose();

    void ApplyLanguage();
    using LogoutByMainView = void;
    void OnLogout() { OnClose(); }

  private:
    void OnShowPanel(const Interface::PanelShow& show);
    void OnAddPortName(const std::string* name);
    const bool* OnIsOpenAsked();
    int LoadTree();
    void PutCategory(const std::string& text, bool selected);
    void ShowNames(const std::string& typed);
    void ShowNote(std::optional<TextId> note);

    Parts p_;
    Boxes boxes_;
    CVoyageListDlg names_;
    std::string category_;
    std::string voyage_;
    std::optional<TextId> note_;  ///< why the table was not kept
    bool filterActive_ = true;    ///< what the category field shows is typed by the person
    bool isOpen_ = false;         ///< answer of the service that asks
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Seaplan
