// SPDX-License-Identifier: MIT
/// Rows with remarks are told from the others, also while they are not open, on the screen and aloud.
#include <QAccessible>

#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

class RemarkSignTest : public ViewsFixture {
  protected:
    /// What a screen reader says of the row whose name begins so.
    QString Told(const QString& begin) {
        QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&Tree());
        for (int i = 1; i < tree->childCount(); ++i) {
            const QString name = tree->child(i)->text(QAccessible::Name);
            if (name.startsWith(begin)) {
                return name;
            }
        }
        return {};
    }
    void MarkCategory() {
        views.Tree().SetRemarkMark(kNoRow, false);
        Rows().SetDrawItemVisibleEx(RowOf("Bulk"), Item::kCategoryRemark, true);
        Rows().SetDrawItemVisibleEx(RowOf("Bulk"), Item::kCategoryNoRemark, false);
    }
};

}  // namespace

TEST_F(RemarkSignTest, AClosedVoyageShowsThatThereAreRemarksAndNotThatThereAreNone) {
    OpenVoyage("North Sea");
    EXPECT_TRUE(Shows("Far East 12", Item::kVoyageRemark));
    EXPECT_FALSE(Shows("Baltic feeder", Item::kVoyageRemark));
    EXPECT_FALSE(Shows("Baltic feeder", Item::kVoyageNoRemark));
    EXPECT_TRUE(Shows("North Sea", Item::kVoyageNoRemark)) << "an open row offers to write one";
}

TEST_F(RemarkSignTest, AClosedCategoryShowsThemToo) {
    Toggle();
    EXPECT_FALSE(Shows("Bulk", Item::kCategoryRemark));
    MarkCategory();
    EXPECT_TRUE(Shows("Bulk", Item::kCategoryRemark));
    EXPECT_FALSE(Shows("Bulk", Item::kCategoryNoRemark));
}

TEST_F(RemarkSignTest, TheImageOfAClosedRowStandsBesideNameCountAndStatus) {
    OpenVoyage("North Sea");
    MarkCategory();
    for (const char* name : {"Far East 12", "Bulk"}) {
        const auto parts = Tree().PartsOf(RowOf(name));
        for (const SubItem& part : parts) {
            for (const SubItem& other : parts) {
                EXPECT_TRUE(&part == &other || !part.rect.intersects(other.rect))
                    << part.name << " " << other.name;
            }
        }
    }
}

TEST_F(RemarkSignTest, APressOnItOpensTheRemarks) {
    OpenVoyage("North Sea");
    ClickPart("Far East 12", Item::kVoyageRemark);
    ASSERT_NE(views.RemarksWindow(), nullptr);
    EXPECT_TRUE(views.RemarksWindow()->isVisible());
    EXPECT_EQ(Rows().Selected(), RowOf("Far East 12"));
}

TEST_F(RemarkSignTest, AScreenReaderTellsThatARowHasRemarks) {
    OpenVoyage("North Sea");
    EXPECT_TRUE(Told("Far East 12").endsWith(", has remarks")) << Told("Far East 12").toStdString();
    EXPECT_FALSE(Told("Baltic feeder").contains("remarks")) << Told("Baltic feeder").toStdString();
    EXPECT_FALSE(Told("Bulk").contains("remarks"));
    MarkCategory();
    EXPECT_TRUE(Told("Bulk").endsWith(", has remarks"));
}

}  // namespace Tarvik::Seaplan
