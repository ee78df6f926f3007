// SPDX-License-Identifier: MIT
/// A port distance table kept as a voyage.
#include <gmock/gmock.h>

#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "seaplan/panels/tests/PanelDesk.h"
#include "seaplan/panels/tests/TreeViews.h"
#include "seaplan/panels/tree/MadeVoyages.h"
#include "seaplan/panels/tree/TreeParts.h"
#include "testsupport/RecordingHost.h"
#include "testsupport/RecordingMsgSink.h"

namespace Tarvik::Seaplan {

using ::testing::ElementsAre;

namespace {

class TableVoyageTest : public ::testing::Test {
  protected:
    TableVoyageTest() {
        desk.AddCategory("Bulk");
        desk.AddVoyage("Bulk", {.name = "Used"});
        desk.AddVoyage("Bulk", {.name = "Binned", .state = InRecycleBin});
        desk.AddVoyage("Bulk", {.name = "Gone", .state = Destroyed});
        std::string user;
        desk.catalog.Connect(user);
        desk.catalog.Load(user);
        for (const auto& [ci, category] : desk.store.categories) {
            parts.context.categorySorts[ci] = {};
        }
        static_cast<void>(parts.builder.RebuildAll());
        desk.catalog.GetNameMaps(parts.context.categoryNames, parts.context.voyageNames);
        desk.ForgetRecords();
    }
    int Create(const std::string& category, const std::string& voyage) {
        return kTableVoyageCodes.Of(CreateVoyageFromTable(parts, category, voyage, made));
    }
    std::string LastNotice() const {
        return desk.messages.messages.empty() ? std::string() : desk.messages.messages.back().text;
    }

    KeyTexts texts;
    PanelDesk desk;
    RecordingTree tree;
    RecordingTextBox box;
    RecordingVesselView vessels;
    RecordingChoices sortPopup;
    TreeParts parts{{desk.store, desk.catalog, desk.voyages, tree, box, vessels, sortPopup}};
    TableVoyage made{"old", "old"};
};

}  // namespace

TEST_F(TableVoyageTest, AnEmptyNameIsToldAndNothingIsSent) {
    for (const auto& [category, voyage] : {std::pair("", "A"), std::pair("Bulk", ""), std::pair("", "")}) {
        EXPECT_EQ(Create(category, voyage), -1);
        EXPECT_EQ(LastNotice(), "IDS_PORTDISTAB_NOINFWARN");
        EXPECT_EQ(made.ci + made.vi, "");
    }
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(TableVoyageTest, ATakenNameIsToldInTheWordsOfTheLanguage) {
    EXPECT_EQ(Create("Bulk", "Used"), -2);
    EXPECT_EQ(LastNotice(), "IDS_VOYTREE_SAMENAME_WARN_FORDISTAB");
    EXPECT_EQ(Create("Bulk", "Binned"), -2);
    EXPECT_EQ(LastNotice(), "IDS_VOYTREE_SAMENAME_WARN_FORDISTAB(已被删除)");
    texts.prefix = u"This ";
    EXPECT_EQ(Create("Bulk", "Binned"), -2);
    EXPECT_EQ(LastNotice(), "This IDS_VOYTREE_SAMENAME_WARN_FORDISTAB(have been delete)");
    EXPECT_EQ(Create("Bulk", "Used"), -2);
    EXPECT_EQ(LastNotice(), "This IDS_VOYTREE_SAMENAME_WARN_FORDISTAB");
    EXPECT_TRUE(desk.host.requests.empty());
}

TEST_F(TableVoyageTest, AVoyageGoesIntoTheCategoryOfThisName) {
    EXPECT_EQ(Create("Bulk", "Kept"), 0);
    EXPECT_EQ(made.ci, desk.Category("Bulk").ci);
    EXPECT_EQ(made.vi, desk.Voyage("Kept").vi);
    EXPECT_EQ(desk.Count(Ask::kAddCategory), 0);
    EXPECT_EQ(parts.context.voyageNames.at("Kept"), InUse);
    EXPECT_THAT(tree.Shown(), ElementsAre("Bulk", "  Used", "  Kept"));
    EXPECT_EQ(tree.Row(tree.Find("Bulk"))->items.At("cat.statistic").text, "  (2)");
    EXPECT_EQ(Create("Bulk", "Gone"), 0) << "the name of a destroyed voyage is free";
}

TEST_F(TableVoyageTest, ACategoryThatIsNotThereIsMade) {
    EXPECT_EQ(Create("Tankers", "Kept"), 0);
    EXPECT_EQ(made.ci, desk.Category("Tankers").ci);
    EXPECT_EQ(parts.context.categoryNames.at("Tankers"), InUse);
    EXPECT_THAT(tree.Shown(), ElementsAre("Bulk", "  Used", "Tankers", "  Kept"));
    EXPECT_FALSE(box.open) << "its name was given";
    EXPECT_FALSE(parts.builder.RebuildCategory(made.ci).Failed()) << "it can be sorted";
}

TEST_F(TableVoyageTest, ARefusalOfTheServerEndsItWhereItStands) {
    desk.Refuse(Ask::kAddCategory);
    EXPECT_EQ(Create("Tankers", "Kept"), -3);
    desk.Heal();
    desk.Refuse(Ask::kAddVoyage);
    EXPECT_EQ(Create("Tankers", "Kept"), -4);
    EXPECT_THAT(tree.Shown(), ElementsAre("Bulk", "  Used", "Tankers")) << "what was done stays done";
    EXPECT_FALSE(parts.context.voyageNames.contains("Kept"));
}

TEST_F(TableVoyageTest, NamesGetTheCharactersOfTheTree) {
    const std::string voyage = "A \uFF02B\uFF02\uFF3C\uFF07\uFF06";
    EXPECT_EQ(Create("Bulk", " A \"B\"\\'& "), 0);
    EXPECT_EQ(made.vi, desk.Voyage(voyage).vi);
    EXPECT_EQ(parts.context.voyageNames.at(voyage), InUse);
    EXPECT_EQ(desk.Count(Ask::kAddVoyage, voyage), 1);
    EXPECT_EQ(Create("Oil & \"Gas\"", "B"), 0);
    EXPECT_EQ(made.ci, desk.Category("Oil \uFF06 \uFF02Gas\uFF02").ci);
    EXPECT_EQ(Create("Oil & \"Gas\"", "C"), 0);
    EXPECT_EQ(Create(" Bulk ", "E"), 0);
    EXPECT_EQ(made.ci, desk.Category("Bulk").ci);
    EXPECT_EQ(desk.Count(Ask::kAddCategory), 1) << "the same category the second time";
    EXPECT_EQ(Create("Bulk", "A \"B\"\\'&"), -2) << "taken as it is stored";
}

TEST_F(TableVoyageTest, ACategoryStoredAsItIsTypedIsFound) {
    const std::string ci = desk.Category("Bulk").ci;
    desk.store.categories.at(ci).cn = "Ore & Coal";
    EXPECT_EQ(Create("Ore & Coal", "Kept"), 0);
    EXPECT_EQ(made.ci, ci);
    EXPECT_EQ(desk.Count(Ask::kAddCategory), 0);
}

TEST_F(TableVoyageTest, ANameOfBlanksIsEmptyAndOneTooWideIsTold) {
    EXPECT_EQ(Create("Bulk", "  "), -1);
    EXPECT_EQ(LastNotice(), "IDS_PORTDISTAB_NOINFWARN");
    EXPECT_EQ(Create("Bulk", std::string(21, 'x')), -1);
    EXPECT_EQ(LastNotice(), "IDS_TREE_TOOMUCHNUM20");
    EXPECT_EQ(Create(std::string(31, 'x'), "A"), -1);
    EXPECT_EQ(LastNotice(), "IDS_TREE_TOOMUCHNUM30");
    EXPECT_TRUE(desk.host.requests.empty());
    EXPECT_EQ(Create("Bulk", std::string(20, 'x')), 0);
}

}  // namespace Tarvik::Seaplan
