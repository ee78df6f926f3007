// SPDX-License-Identifier: MIT
/// Every name that a click can report acts, each on the kind of row that has it and on no other.
#include <gmock/gmock.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/SiblingContract.h>

#include "seaplan/panels/tests/TreeFixture.h"
#include "seaplan/panels/tree/NoteCommands.h"
#include "seaplan/panels/tree/PortCallOpener.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

/// An item, a row on which it is on show, and what is seen of its action.
struct ItemCase {
    const char* item;
    const char* row;
    const char* seen;
};

constexpr ItemCase kItems[] = {
    // Category rows
    {"Voyage.parent.svr3", "Full", "asked 5"},
    {"Voyage.parent.svr7", "Full", "asked 4"},
    {"Voyage.parent.svr.recover", "Gone", "asked 4"},
    {"Voyage.parent.svr.clear", "Gone", "told IDS_TREE_CLEARVOYORCATE"},
    {"Voyage.parent.svr9", "Full", "sort panel"},
    {"Voyage.parent.svr6", "Full", "shows Voyage.parent.svr6.desc"},
    {"Voyage.parent.svr6.desc", "Backwards", "shows Voyage.parent.svr6"},
    {"Voyage_parent_rename", "Full", "typing Full"},
    {"Voyage.parent.svr2.non", "Full", "remarks of 2"},
    {"Voyage.parent.svr2.exist", "Noted", "remarks of 2"},
    // Voyage rows
    {"Voyage.child.svr1.default", "Plain", "asked 5"},
    {"Voyage.child.svr1.auto", "Kept", "asked 5"},
    {"Voyage.child.svr8", "Plain", "told IDS_TREE_WARNSHOWAIS"},
    {"Voyage.child.svr10", "Kept", "asked 5"},
    {"Voyage_modify", "Plain", "told IDS_TREE_WARNMODAIS"},
    {"Voyage.child.svr4", "Plain", "port calls filled"},
    {"Voyage_setPortCall", "Plain", "port calls empty"},
    {"Voyage.child.svr6", "Plain", "told IDS_TREE_NOONREPORTWARN"},
    {"Voyage.child.svr5", "Plain", "consumption"},
    {"Voyage_ReplaceShip", "Kept", "vessel box with NORA"},
    {"Voyage_AssignShip", "Plain", "vessel box with "},
    {"Voyage_ShipInfo", "Kept", "vessel card of 7001"},
    {"Voyage_Alert", "Typed", "offered ANNA"},
    {"Voyage_child_rename", "Plain", "typing Plain"},
    {"Voyage.child.svr3.non", "Plain", "remarks of 3"},
    {"Voyage.child.svr3.exist", "Kept", "remarks of 3"},
    {"Voyage.child.svr9", "Plain", "asked 5"},
    {"Voyage.child.svr.recover", "Binned", "asked 5"},
    {"Voyage.child.svr.clear", "Binned", "told IDS_TREE_CLEARVOYORCATE"}};

class ItemNamesTest : public TreeFixture, public ::testing::WithParamInterface<ItemCase> {
  protected:
    class Panel final : public PortCallOpener {
      public:
        explicit Panel(std::vector<std::string>& seen) : seen_(seen) {}
        void SetVoyage(const std::string&) override {}
        int FillForVoyage(int) override {
            seen_.emplace_back("port calls filled");
            return 0;
        }
        void Reset() override { seen_.emplace_back("port calls empty"); }
        void ShowBesideTree() override {}
        bool AskToLeave() override { return true; }
        int ShowAisCorrection() override { return 0; }
        void SetCorrectionTime(const std::string&) override {}

      private:
        std::vector<std::string>& seen_;
    };

    std::vector<std::string> seen;
    Panel panel{seen};
    Interface::Binding cards =
        Interface::Offer(Interface::Bus::ShowVesselInfo,
                         [this](const std::string& id) { seen.push_back("vessel card of " + id); });
    Interface::Binding adding =
        Interface::Offer(Interface::Bus::ShowAddVessel, [this](const Interface::FleetEntry& vessel) {
            seen.push_back("offered " + vessel.name);
            return static_cast<const Interface::WindowHandle*>(nullptr);
        });

    ItemNamesTest() {
        ctrl.SetPortCallPanel([this] { return &panel; });
        ctrl.Notes().SetRemarks([this](TreeRow, int type, const std::string&, const std::string&) {
            seen.push_back("remarks of " + std::to_string(type));
            return 0;
        });
        ctrl.Notes().SetConsumption([this](const BunkerFigures&, bool) { seen.emplace_back("consumption"); });
        desk.AddCategory("Full");
        desk.AddVoyage("Full", {.name = "Plain", .calls = PanelDesk::Calls(1)});
        desk.AddVoyage("Full", {.name = "Kept",
                                .vsi = "7001",
                                .vsn = "NORA",
                                .vsmsi = 211000001,
                                .pinned = true,
                                .traced = true,
                                .remark = true,
                                .calls = PanelDesk::Calls(5)});
        desk.AddVoyage("Full", {.name = "Typed", .vsn = "ANNA"});
        desk.AddVoyage("Full", {.name = "Binned", .state = InRecycleBin});
        desk.AddCategory("Noted", true);
        desk.AddVoyage("Noted", {.name = "Of noted"});
        desk.AddCategory("Backwards");
        desk.AddVoyage("Backwards", {.name = "Of backwards"});
        desk.AddCategory("Gone");
        desk.MoveCategory("Gone", InRecycleBin);
        ctrl.SetShowDeleted(true);
        ctrl.OnItemClicked(tree.Find("Backwards"), Item::kAscending);
        desk.ForgetRecords();
        box.open = false;
    }
    /// What a click left behind, in words.
    void Look(TreeRow row) {
        for (const std::string& request : desk.host.Texts()) {
            seen.push_back("asked " + request);
        }
        for (const auto& message : messages.messages) {
            seen.push_back("told " + message.text);
        }
        if (sortPopup.visible) {
            seen.emplace_back("sort panel");
        }
        if (box.open) {
            seen.push_back("typing " + box.text);
        }
        if (vessels.box) {
            seen.push_back("vessel box with " + vessels.text);
        }
        for (const char* direction : {Item::kAscending, Item::kDescending}) {
            if (tree.IsItemVisible(row, direction)) {
                seen.push_back(std::string("shows ") + direction);
            }
        }
    }
};

}  // namespace

TEST_P(ItemNamesTest, ActsOnItsRow) {
    const ItemCase& given = GetParam();
    const TreeRow row = tree.Find(given.row);
    ASSERT_NE(row, kNoRow);
    ASSERT_NE(tree.Row(row)->items.Find(given.item), nullptr) << "the row has it";
    EXPECT_TRUE(ctrl.HasCommand(given.item));
    if (tree.GetParentItem(row) != kNoRow) {
        // A click comes in addition to the press that brings book and port calls.
        ctrl.OnRowPressed(row);
        desk.ForgetRecords();
    }
    ctrl.OnItemClicked(row, given.item);
    Look(row);
    EXPECT_THAT(seen, Contains(HasSubstr(given.seen)));
}

TEST_P(ItemNamesTest, DoesNothingOnTheOtherKindOfRow) {
    const bool ofVoyage = tree.GetParentItem(tree.Find(GetParam().row)) != kNoRow;
    EXPECT_EQ(ctrl.OnItemClicked(tree.Find(ofVoyage ? "Full" : "Plain"), GetParam().item), 1);
    Look(kNoRow);
    EXPECT_THAT(seen, IsEmpty());
}

TEST(ItemNames, ThereAreTenOfCategoriesAndNineteenOfVoyages) {
    EXPECT_EQ(std::size(kItems), 29U);
}

INSTANTIATE_TEST_SUITE_P(All, ItemNamesTest, ::testing::ValuesIn(kItems), [](const auto& given) {
    std::string name = given.param.item;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

}  // namespace Tarvik::Seaplan
