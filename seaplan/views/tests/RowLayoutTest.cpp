// SPDX-License-Identifier: MIT
#include <tarvik/skin/Icons.h>

#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

std::vector<std::string> NamesOf(const std::vector<SubItem>& parts) {
    std::vector<std::string> out;
    out.reserve(parts.size());
    for (const SubItem& part : parts) {
        out.push_back(part.name);
    }
    return out;
}

}  // namespace

using ::testing::Contains;
using ::testing::Not;

TEST_F(ViewsFixture, RowsGrowWhenTheyAreSelected) {
    Toggle();
    const TreeRow category = RowOf("Container 2024");
    ClickRow("Container 2024");
    const TreeRowState& state = *Rows().Row(category);
    EXPECT_EQ(RowHeight(state, false), 31);
    EXPECT_EQ(RowHeight(state, true), 61);
    const TreeRowState& voyage = *Rows().Row(RowOf("North Sea"));
    EXPECT_EQ(RowHeight(voyage, false), 30);
    EXPECT_EQ(RowHeight(voyage, true), 123);
    const Rect place = Rows().GetItemRect(category);
    EXPECT_EQ(place.bottom - place.top, 61);
    ClickRow("North Sea");
    const Rect voyagePlace = Rows().GetItemRect(RowOf("North Sea"));
    EXPECT_EQ(voyagePlace.bottom - voyagePlace.top, 123);
}

TEST_F(ViewsFixture, PartsLieInTheirRowAndBesideEachOther) {
    OpenVoyage("Far East 12");
    for (const char* name : {"Container 2024", "Far East 12", "North Sea"}) {
        const auto parts = Tree().PartsOf(RowOf(name));
        const Rect place = Rows().GetItemRect(RowOf(name));
        const QRect row(place.left, place.top, place.right - place.left, place.bottom - place.top);
        for (const SubItem& part : parts) {
            EXPECT_TRUE(row.contains(part.rect)) << name << " " << part.name;
            for (const SubItem& other : parts) {
                EXPECT_TRUE(&part == &other || !part.rect.intersects(other.rect))
                    << part.name << " " << other.name;
            }
        }
    }
}

TEST_F(ViewsFixture, HiddenItemsHaveNoPart) {
    OpenVoyage("Far East 12");
    const auto parts = NamesOf(Tree().PartsOf(RowOf("Far East 12")));
    EXPECT_THAT(parts, Contains("Voyage.child.svr1.auto"));
    EXPECT_THAT(parts, Not(Contains("Voyage.child.svr1.default")));
    EXPECT_THAT(parts, Contains("Voyage_Date"));
    EXPECT_THAT(parts, Not(Contains("Voyage_setPortCall")));
    EXPECT_THAT(parts, Not(Contains("Voyage_AssignShip")));
    ClickRow("North Sea");
    const auto bare = NamesOf(Tree().PartsOf(RowOf("North Sea")));
    EXPECT_THAT(bare, Contains("Voyage_setPortCall"));
    EXPECT_THAT(bare, Contains("Voyage_AssignShip"));
    EXPECT_THAT(bare, Not(Contains("Voyage_Date")));
}

TEST_F(ViewsFixture, TextsOfARowAreNotCut) {
    OpenVoyage("Far East 12");
    for (const SubItem& part : Tree().PartsOf(RowOf("Far East 12"))) {
        if (part.text.isEmpty()) {
            continue;
        }
        const QFontMetrics metrics(PartFont(Tree().font(), part.kind));
        EXPECT_LE(metrics.horizontalAdvance(part.text), part.rect.width()) << part.name;
    }
}

TEST_F(ViewsFixture, EveryItemHasAnIconAndATip) {
    OpenVoyage("Far East 12");
    for (const char* name : {"Container 2024", "Far East 12"}) {
        ClickRow(name);
        for (const SubItem& part : Tree().PartsOf(RowOf(name))) {
            if (part.kind != SubItemKind::Icon) {
                continue;
            }
            EXPECT_TRUE(Skin::HasIcon(part.icon)) << part.name;
            EXPECT_TRUE(!part.clickable || !part.toolTip.isEmpty()) << part.name;
        }
        ClickRow("Container 2024");
        ClickRow("Container 2024");
    }
}

TEST_F(ViewsFixture, AnItemWithoutCommandCannotBeClicked) {
    OpenVoyage("Far East 12");
    for (const SubItem& part : Tree().PartsOf(RowOf("Far East 12"))) {
        EXPECT_EQ(part.enabled, !part.clickable || views.Tree().HasCommand(part.name)) << part.name;
    }
}

}  // namespace Tarvik::Seaplan
