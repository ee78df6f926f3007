// SPDX-License-Identifier: MIT
#include "seaplan/panels/book/tests/BookFixture.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/RowCommands.h"

/// The table over a book whose waypoints have speeds of their own: what it shows of a leg is the leg's
/// average with two decimals, and that must not become the leg's speed.
namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::FloatNear;

class TableAfterBookTest : public BookFixture {
  protected:
    /// Another speed for the last part of the first leg, saved; the table is in front again.
    void MixSpeeds() {
        OpenBook();
        Type(Hamburg, BookSpeed, "12");
        book.Commands().OnSave();
        ASSERT_FALSE(Changed());
        book.Commands().OnClose();
        ASSERT_FALSE(bookView.visible);
        const float average = SavedRows(kept)[1].psp;
        ASSERT_GT(std::abs(average - CellsToRow(view.table.Rows()[1].cells).psp), 0.0001F)
            << "the cell rounds";
        desk.ForgetRecords();
    }
    /// Speeds of the waypoints of the first leg, in knots.
    std::vector<float> Speeds() {
        std::vector<float> out;
        for (std::size_t i = 1; i <= 3; ++i) {
            out.push_back(store.voyages[kept].positionBook.points[i].psp);
        }
        return out;
    }
    static auto AsTyped() {
        constexpr float kDigits = 0.00001F;
        return ElementsAre(FloatNear(10, kDigits), FloatNear(10, kDigits), FloatNear(12, kDigits));
    }
    void ChoosePurpose(int row) {
        panel.Cells().OnCellClicked(row, ColPurpose);
        panel.Cells().OnPurposeChosen(2);
        ASSERT_TRUE(view.state.changed);
    }
    void TypeSpeed(int row, const std::string& text) { PortCallFixture::Type(row, ColSpeed, text); }
};

TEST_F(TableAfterBookTest, ASaveOfTheTableLeavesTheSpeedsOfTheBook) {
    MixSpeeds();
    ChoosePurpose(1);
    panel.Commands().OnSave();
    EXPECT_EQ(Saves(), 1);
    EXPECT_THAT(Speeds(), AsTyped());
    ChoosePurpose(2);
    panel.Commands().OnSave();
    EXPECT_THAT(Speeds(), AsTyped()) << "the second save has the digits of the first";
}

TEST_F(TableAfterBookTest, ACalculationLeavesThem) {
    MixSpeeds();
    panel.Commands().OnCalculate();
    EXPECT_EQ(Calculations(), 1);
    EXPECT_EQ(Saves(), 1);
    EXPECT_THAT(Speeds(), AsTyped());
}

TEST_F(TableAfterBookTest, AnotherUnitLeavesThem) {
    MixSpeeds();
    ASSERT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH"), 0);
    ChoosePurpose(1);
    panel.Commands().OnSave();
    EXPECT_THAT(Speeds(), AsTyped());
    panel.Commands().OnCalculate();
    EXPECT_THAT(Speeds(), AsTyped());
    ASSERT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "KPH"), 0);
    ASSERT_EQ(panel.Commands().OnUnitChosen(UnitKind::Speed, "kts"), 0);
    panel.Commands().OnCalculate();
    EXPECT_THAT(Speeds(), AsTyped());
}

TEST_F(TableAfterBookTest, ASpeedTypedForAnotherLegLeavesThem) {
    MixSpeeds();
    TypeSpeed(2, "8");
    panel.Commands().OnSave();
    EXPECT_THAT(Speeds(), AsTyped());
    EXPECT_FLOAT_EQ(store.voyages[kept].positionBook.points[5].psp, 8);
}

TEST_F(TableAfterBookTest, ASpeedTypedForTheLegScalesThem) {
    MixSpeeds();
    TypeSpeed(1, "5");
    panel.Commands().OnSave();
    const std::vector<float> speeds = Speeds();
    EXPECT_FLOAT_EQ(SavedRows(kept)[1].psp, 5);
    EXPECT_LT(speeds[2], 6.1F);
    EXPECT_NEAR(speeds[2] / speeds[0], 1.2, 0.00001) << "they keep their proportion";
}

TEST_F(TableAfterBookTest, AMovedRowTakesTheSpeedThatItsCellShows) {
    MixSpeeds();
    const float shown = CellsToRow(view.table.Rows()[1].cells).psp;
    panel.Rows().OnItemImage(1, PortCallImage::kMoveDown);
    panel.Commands().OnCalculate();
    ASSERT_EQ(SavedRows(kept)[2].ppn, "HAMBURG");
    EXPECT_NEAR(SavedRows(kept)[2].psp, shown, 0.00001F) << "the leg from Gdansk is another one";
}

TEST_F(TableAfterBookTest, ASaveThatFailsLeavesThemForTheNextOne) {
    MixSpeeds();
    desk.Refuse(Ask::kSavePortCalls);
    panel.Commands().OnCalculate();
    EXPECT_EQ(LastMessage(), "IDS_PORTCALL_SAVEEXCEPTION");
    desk.Heal();
    panel.Commands().OnSave();
    EXPECT_FALSE(view.state.changed);
    EXPECT_THAT(Speeds(), AsTyped());
}

TEST_F(TableAfterBookTest, ABookThatCannotBeShownOpensNothing) {
    OpenBook();
    book.Commands().OnClose();
    ASSERT_FALSE(bookView.visible);
    store.voyages[kept].positionBook.points.front().pst = PlainPoint;
    panel.Commands().OnPositionBook();
    EXPECT_FALSE(bookView.visible);
    EXPECT_TRUE(view.Enabled());
    EXPECT_TRUE(messages.messages.empty());
}

}  // namespace

}  // namespace Tarvik::Seaplan
