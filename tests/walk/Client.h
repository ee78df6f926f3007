// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/interface/SysMsgSink.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/distances/CPortDistTabDlg.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/PortCallParts.h"
#include "seaplan/panels/tests/RecordingKeepView.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "seaplan/panels/tests/RecordingPortCallView.h"
#include "seaplan/panels/tests/TreeViews.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/protocol/VoyCatalogModule.h"

namespace Tarvik::Seaplan::Walk {

/// A person who answers every question of a step alike, and what was asked.
class Person final : public Interface::SysMsgSink {
  public:
    struct Asked {
        std::string text;  ///< without the line below it, which tells a cause or a loss
        bool question = false;
        bool yes = false;  ///< the answer, yes or OK
    };

    Person() { Set(this); }
    ~Person() override { Set(nullptr); }
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    bool yes = false;
    std::vector<Asked> asked;  ///< in this step

    /// Whether a question of this text was answered so.
    bool Answered(const std::string& text, bool with) const;
    Interface::SysMsgHandleRes SyncSendMsg(int level, const std::u16string& text, int flags, void* owner,
                                           const std::u16string& title) override;
};

/// One run of the plug-in from its start to its end, with windows that only remember: the panels, the
/// controllers and the working copy, tied together as the plug-in ties them.
class Client {
  public:
    Client();
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Shows the voyage panel, or hides it.
    static void Toggle();
    /// Rows of the tree that stand for voyages in use or in the bin, in their order.
    std::vector<TreeRow> VoyageRows(DeletionState state) const;
    /// The first row of a category in use, kNoRow without one.
    TreeRow CategoryRow() const;

    VoyageStore store;
    VoyCatalogModule catalogModule{&store};
    VoyCatalogController catalog{&catalogModule, &store};
    PortDirectory directory;
    VoyPortCallModule portCallModule{&store, &directory};
    VoyController voyages{&portCallModule, &catalog, &store};
    RecordingPanelWindow<PanelWindow> window;
    RecordingTree tree;
    RecordingTextBox nameBox;
    RecordingVesselView vesselBox;
    RecordingChoices sortPopup;
    RecordingChoices filterPopup;
    RecordingSearch searchView;
    RecordingPortCallView view;
    SeaplanTreeCtrl ctrl{{store, catalog, voyages, tree, nameBox, vesselBox, sortPopup}};
    RecordingKeepView keepView;
    CPortCallPanelDlg panel{
        {catalog, voyages, directory, view, [] { return Rect(); }, {}, {}, [this] { keepDialog.Open(); }}};
    CPortDistTabDlg keepDialog{{keepView, ctrl, [this](bool) { return &panel; }, [] { return Rect(); }}};
    SeaplanViewDlg mainView{{store, catalog, voyages, window, filterPopup, searchView, ctrl,
                             [this] { return &panel; }, [this] { keepDialog.OnLogout(); }}};

  private:
    void ShowSaved(const std::string& vi);
};

}  // namespace Tarvik::Seaplan::Walk
