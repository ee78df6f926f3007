// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>

#include "seaplan/panels/mainview/FltTreeFilterDlg.h"
#include "seaplan/panels/tree/search/TreeSearch.h"
#include "seaplan/panels/window/PanelWindow.h"

namespace Tarvik::Interface {
struct PanelShow;
}

namespace Tarvik::Seaplan {

class CPortCallPanelDlg;
class SeaplanTreeCtrl;
class VoyCatalogController;
class VoyController;
class VoyageStore;

/// The voyage panel on the left of the chart: shown and hidden by the host. It owns the tree, and clears the
/// store at a logout.
class SeaplanViewDlg final : public Core::TObject {
  public:
    struct Parts {
        VoyageStore& store;
        VoyCatalogController& catalog;
        VoyController& voyages;
        PanelWindow& window;
        ChoicePopup& filterPopup;
        SearchView& searchView;
        SeaplanTreeCtrl& tree;
        std::function<CPortCallPanelDlg*()>
            portCalls;  ///< null while it is not made; empty where there is none
        /// Hides the remarks and then the port distance table at a logout; empty where there are none.
        std::function<void()> hideAfterPortCalls{};
    };
    explicit SeaplanViewDlg(const Parts& parts);

    void RegisterHost();
    void UnregisterHost();

    /// -1 empty id; -2 unknown voyage; -3 the row cannot be redrawn.
    int RefreshVoyageRow(const std::string& vi);
    /// Everything out of the recycle bin. -1 a category, -2 a voyage, -3 the reload failed.
    int RecoverAll();
    void Hide();
    FltTreeFilterDlg& Filter() { return filter_; }
    TreeSearch& Search() { return search_; }
    /// -1 when the category cannot be made.
    int AddCategory();
    void RequestHelp();
    void ApplyLanguage();
    /// A key that nothing in the panel has taken: Escape ends a search. False when it means nothing here.
    bool OnKey(Key key);
    /// A press on the panel's free surface.
    void OnSurfacePressed();

  private:
    void OnShowPanel(const Interface::PanelShow& show);
    void OnLogout();
    void OnTimeZone(const std::string* zone);
    const char* OnAddVessel(const std::string* vi);
    void Toggle();

    Parts p_;
    FltTreeFilterDlg filter_;
    TreeSearch search_;
    Interface::Binding showPanel_;
    Interface::Binding switchLanguage_;
    Interface::Binding logout_;
    Interface::Binding switchZone_;
    Interface::Binding addVessel_;
};

}  // namespace Tarvik::Seaplan
