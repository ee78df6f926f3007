// SPDX-License-Identifier: MIT
/// The consumption dialog over the port call panel and the real server.
#include <string>
#include <vector>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/bunker/CBunkerDlg.h"
#include "seaplan/panels/tests/PortCallFixture.h"
#include "seaplan/panels/tests/RecordingPanelWindow.h"
#include "seaplan/protocol/PortCallCommands.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using Answer = Interface::SysMsgHandleRes;

class RecordingBunkerView final : public RecordingPanelWindow<BunkerView> {
  public:
    BunkerFigures figures{};
    bool canSave = false;
    bool editable = false;
    int written = 0;  ///< how often all fields were written

    void ShowFigures(const BunkerFigures& shown) override {
        figures = shown;
        ++written;
    }
    void ShowState(bool dirty, bool canEdit) override {
        canSave = dirty;
        editable = canEdit;
    }
};

class BunkerTest : public PortCallFixture {
  protected:
    static constexpr BunkerFigures kFigures{10, 20, 30, 40, 50, 60, 70};

    RecordingBunkerView window;
    CBunkerDlg dialog{{window, [this](const BunkerFigures& figures) { return panel.SaveFigures(figures); },
                       [this] {
                           const VoyInfo* voyage = store.FindVoyage(panel.NextVoyage());
                           return voyage == nullptr ? std::string() : voyage->vn;
                       },
                       [] { return kTree; }}};

    BunkerTest() {
        panel.SetVoyageListener([this] { dialog.OnVoyageSet(); });
        panel.SetVoyage(kept);
        dialog.Open(kFigures, true);
    }
    std::string FiguresText(const std::string& vi, const char* vfn) const {
        return "{vi:\"" + vi + "\",vfn:\"" + vfn +
               "\",vff:\"20\",vfa:\"30\",vdn:\"40\",vda:\"50\",vwn:\"60\",vwa:\"70\"}";
    }
};

}  // namespace

TEST_F(BunkerTest, ItOpensUnchangedBesideTheTreeWithTheVoyagesName) {
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.place, (Rect{319, 75, 619, 275}))
        << "9 beyond the tree, 30 below its top, in its own size";
    EXPECT_EQ(window.figures, kFigures);
    EXPECT_EQ(window.caption, "IDC_BK_T_TITLE - Saved");
    EXPECT_FALSE(window.changed);
    EXPECT_FALSE(window.canSave);
    EXPECT_TRUE(window.editable);
}

TEST_F(BunkerTest, AFinishedVoyageCanBeReadOnly) {
    dialog.Open(kFigures, false);
    EXPECT_FALSE(window.editable);
    EXPECT_FALSE(window.canSave);
}

TEST_F(BunkerTest, AChangeIsMarkedAndUndoTakesItBack) {
    dialog.OnTyped(Vff, "21");
    EXPECT_TRUE(window.changed);
    EXPECT_TRUE(window.canSave);
    dialog.OnUndo();
    EXPECT_EQ(window.figures, kFigures);
    EXPECT_FALSE(window.changed);
    EXPECT_FALSE(window.canSave);
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 0);
}

TEST_F(BunkerTest, TheSameValueIsNoChange) {
    dialog.OnTyped(Vff, "020");
    EXPECT_FALSE(window.changed);
    EXPECT_EQ(window.written, 1);
}

TEST_F(BunkerTest, From0To500000IsAcceptedAndAnythingElseRefused) {
    dialog.OnTyped(Vfn, "500000");
    EXPECT_THAT(messages.messages, IsEmpty());
    for (const char* refused : {"500001", "-1", "99999999999", "-99999999999"}) {
        messages.messages.clear();
        window.figures = {};
        dialog.OnTyped(Vfn, refused);
        EXPECT_EQ(LastMessage(), "IDS_BK_ERR_INPUT") << refused;
        EXPECT_EQ(messages.messages.back().flags, 0);
        EXPECT_EQ(messages.messages.back().owner, window.Handle());
        EXPECT_EQ(window.figures, (BunkerFigures{500000, 20, 30, 40, 50, 60, 70})) << refused;
    }
    messages.messages.clear();
    dialog.OnTyped(Vfn, "0");
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(BunkerTest, TextsAreReadAsNumbersAndJunkAsNone) {
    dialog.OnTyped(Vfn, " 12 kg");
    dialog.OnTyped(Vff, "much");
    dialog.OnTyped(Vfa, std::string(128, ' ') + "7");
    dialog.OnTyped(Vdn, "");
    dialog.OnSave();
    EXPECT_EQ(window.figures, (BunkerFigures{12, 0, 0, 0, 50, 60, 70}));
}

TEST_F(BunkerTest, SaveSendsTheSevenFiguresOnce) {
    dialog.OnSave();
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 0) << "nothing has changed";
    dialog.OnTyped(Vfn, "11");
    dialog.OnSave();
    EXPECT_THAT(desk.Sent(Ask::kSaveFigures), ElementsAre(FiguresText(kept, "11")));
    EXPECT_FALSE(window.changed);
    EXPECT_FALSE(window.canSave);
    EXPECT_EQ(store.voyages[kept].figures[Vfn], 11);
    dialog.OnSave();
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 1);
}

TEST_F(BunkerTest, FiguresGoToTheVoyageThatThePanelWasSetToLast) {
    dialog.OnTyped(Vfn, "11");
    panel.SetVoyage(fresh);
    EXPECT_EQ(window.caption, "IDC_BK_T_TITLE - New");
    EXPECT_TRUE(window.changed) << "the mark stays";
    dialog.OnSave();
    EXPECT_THAT(desk.Sent(Ask::kSaveFigures), ElementsAre(FiguresText(fresh, "11")));
}

TEST_F(BunkerTest, AFailedSaveIsToldByTheStatusLineAlone) {
    desk.Refuse(Ask::kSaveFigures);
    dialog.OnTyped(Vfn, "11");
    dialog.OnSave();
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(statusWord, "IDS_VIEW_FIGURESNOTSAVED");
    EXPECT_FALSE(window.changed);
    EXPECT_EQ(store.voyages[kept].figures[Vfn], 0);
    dialog.OnUndo();
    EXPECT_EQ(window.figures[Vfn], 11) << "the saved set stays";
    desk.Heal();
    dialog.OnTyped(Vfn, "12");
    dialog.OnSave();
    EXPECT_EQ(statusWord, "") << "a save that was taken takes the words away";
}

TEST_F(BunkerTest, ClosingAsksForChangesAndYesSavesThem) {
    texts.given[u"IDS_VIEW_LOSTFIGURES"] = u"consumption of %1";
    dialog.OnTyped(Vfn, "11");
    messages.Answer(Answer::Yes);
    dialog.OnClose();
    EXPECT_EQ(LastMessage(), "IDS_BK_TIP_SAVE");
    EXPECT_EQ(LastDetail(), "consumption of Saved") << "the question names what would be lost";
    EXPECT_EQ(messages.messages.back().flags, 4);
    EXPECT_EQ(messages.messages.back().owner, window.Handle());
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 1);
}

TEST_F(BunkerTest, ClosingWithNoDropsTheChangesAtTheNextOpening) {
    dialog.OnTyped(Vfn, "11");
    messages.Answer(Answer::No);
    dialog.OnClose();
    EXPECT_FALSE(window.visible);
    EXPECT_FALSE(window.changed);
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 0);
    dialog.Open(kFigures, true);
    EXPECT_EQ(window.figures, kFigures);
    dialog.OnClose();
    EXPECT_EQ(messages.messages.size(), 1U) << "nothing to ask about";
}

TEST_F(BunkerTest, ALogoutHidesItWithoutSavingOrAsking) {
    dialog.OnTyped(Vfn, "11");
    dialog.OnLogout();
    EXPECT_FALSE(window.visible);
    EXPECT_THAT(messages.messages, IsEmpty());
    EXPECT_EQ(desk.Count(Ask::kSaveFigures), 0);
    dialog.OnClose();
    EXPECT_THAT(messages.messages, IsEmpty());
}

TEST_F(BunkerTest, ALanguageKeepsTheMarkOfChanges) {
    dialog.OnTyped(Vfn, "11");
    texts.prefix = u"zh ";
    dialog.ApplyLanguage();
    EXPECT_EQ(window.caption, "zh IDC_BK_T_TITLE - Saved");
    EXPECT_TRUE(window.changed);
    EXPECT_EQ(window.textsApplied, 1);
}

TEST_F(BunkerTest, ALanguageDropsTheMarkOfAFigureThatWasTypedBack) {
    const BunkerFigures before = window.figures;
    dialog.OnTyped(Vfn, std::to_string(before.at(Vfn) + 1));
    dialog.OnTyped(Vfn, std::to_string(before.at(Vfn)));
    EXPECT_TRUE(window.changed) << "typing marks, whatever is typed";
    dialog.ApplyLanguage();
    EXPECT_FALSE(window.changed);
}

TEST_F(BunkerTest, HelpIsAskedForWithItsTopic) {
    dialog.OnHelp();
    EXPECT_EQ(window.help, "func036 350x370");
}

TEST_F(BunkerTest, FiguresOutliveALoadButForFuelInPort) {
    dialog.OnTyped(Vfn, "11");
    dialog.OnSave();
    store.Clear();
    std::string user;
    ASSERT_EQ(desk.catalog.Connect(user), 0);
    ASSERT_EQ(desk.catalog.Load(user), 0);
    EXPECT_EQ(desk.Voyage("Saved").figures, (BunkerFigures{11, 20, 0, 40, 50, 60, 70}));
}

TEST_F(BunkerTest, ALanguageWithoutATitleHasTheOneOfTheProgram) {
    texts.missing.insert(u"IDC_BK_T_TITLE");
    dialog.ApplyLanguage();
    EXPECT_EQ(window.caption, "消耗设置 - Saved");
}

}  // namespace Tarvik::Seaplan
