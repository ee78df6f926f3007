// SPDX-License-Identifier: MIT
/// The times of plans on the chart: the slider with its ships, numbered ports, and the hours of a leg.
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/PlanContract.h>

#include "host/plugins/seamap/widget/TimeBar.h"
#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

namespace {

constexpr PlanTime kHour = 3600;
constexpr PlanTime kDeparture = 1709272800;  ///< 2024-03-01 14:00 in the zone of plan times

class TimeBarTest : public ChartFixture {
  protected:
    TimeBarTest() { chart_->ShowExtent({-10, -10, 30, 10}); }

    /// From A to B in twenty hours, along the equator.
    static void Tell(bool any = true) {
        Interface::TrvMapPlan plan{"VOYAGE", "7", "SHIP", "RTM-SIN", "ORION", {}};
        if (any) {
            plan.places = {{0, 0, kDeparture, kDeparture, "ALPHA", true},
                           {20, 0, kDeparture + 20 * kHour, kDeparture + 30 * kHour, "BRAVO", true}};
        }
        Interface::Call(Interface::Bus::MapSetPlan, &std::as_const(plan));
    }
    void Key(Qt::Key key) { QTest::keyClick(chart_, key); }
    TimeBar& Bar() const { return *chart_->findChild<TimeBar*>("timeBar"); }
    QSlider& Slider() const { return *Bar().findChild<QSlider*>("timeSlider"); }
    std::string Text() const { return Bar().findChild<QLabel*>("timeText")->text().toStdString(); }
    std::string TipAt(GeoPoint place) {
        QHelpEvent event(QEvent::ToolTip, At(place), chart_->mapToGlobal(At(place)));
        QApplication::sendEvent(chart_, &event);
        return QToolTip::text().toStdString();
    }
    /// Whether the picture differs from that of before around a place.
    static bool Differs(const QImage& a, const QImage& b, QPoint at) {
        const QRect around(at - QPoint(6, 6), QSize(13, 13));
        return a.copy(around) != b.copy(around);
    }
};

TEST_F(TimeBarTest, IsClosedAtFirstAndOpensByKeyMenuAndCommand) {
    EXPECT_TRUE(Bar().isHidden());
    Key(Qt::Key_T);
    EXPECT_FALSE(Bar().isHidden());
    EXPECT_TRUE(chart_->rect().contains(Bar().geometry()));
    Key(Qt::Key_T);
    EXPECT_TRUE(Bar().isHidden());
    QContextMenuEvent event(QContextMenuEvent::Mouse, {200, 200}, chart_->mapToGlobal(QPoint(200, 200)));
    QApplication::sendEvent(chart_, &event);
    auto* menu = chart_->findChildren<QMenu*>("chartMenu").back();
    auto* item = menu->findChild<QAction*>("timeSlider");
    EXPECT_FALSE(item->isChecked());
    item->trigger();
    EXPECT_FALSE(Bar().isHidden());
    menu->close();
    const std::string command = "timeslider";
    EXPECT_NE(Interface::Call(Interface::Bus::ChartCommand, &command), nullptr);
    EXPECT_TRUE(Bar().isHidden());
}

TEST_F(TimeBarTest, WithoutAVoyageNothingCanBeChosen) {
    Key(Qt::Key_T);
    EXPECT_FALSE(Slider().isEnabled());
    EXPECT_EQ(Text(), "TIME_NOTHING");
    Tell();
    EXPECT_TRUE(Slider().isEnabled());
    EXPECT_EQ(Text(), "2024-03-01 14:00");
    Tell(false);
    EXPECT_FALSE(Slider().isEnabled());
    EXPECT_FALSE(Bar().Time().has_value());
}

TEST_F(TimeBarTest, KeysStepWithinTheTimesOfThePlans) {
    Tell();
    Key(Qt::Key_T);
    Slider().setValue(0);
    EXPECT_EQ(Bar().Time(), kDeparture);
    Key(Qt::Key_Period);
    Key(Qt::Key_Period);
    EXPECT_EQ(Bar().Time(), kDeparture + 2 * kHour);
    EXPECT_EQ(Text(), "2024-03-01 16:00");
    Key(Qt::Key_Comma);
    EXPECT_EQ(Bar().Time(), kDeparture + kHour);
    Bar().Step(-9);
    EXPECT_EQ(Bar().Time(), kDeparture);
    Bar().Step(99);
    EXPECT_EQ(Bar().Time(), kDeparture + 20 * kHour) << "the last arrival";
}

TEST_F(TimeBarTest, TheShipStandsWhereThePlanHasItAtTheTime) {
    Tell();
    Key(Qt::Key_T);
    Slider().setValue(0);
    const QImage before = chart_->grab().toImage();
    Bar().Step(10);
    const QImage after = chart_->grab().toImage();
    EXPECT_TRUE(Differs(before, after, At({10, 0})));
    EXPECT_FALSE(Differs(before, after, At({10, 5})));
    const std::string tip = TipAt({10, 0});
    EXPECT_TRUE(tip.starts_with("ORION\nRTM-SIN\n")) << tip;
    EXPECT_NE(tip.find("BRAVO"), std::string::npos);
    QSignalSpy clicked(chart_, &ChartWidget::ObjectClicked);
    QTest::mouseClick(chart_, Qt::LeftButton, {}, At({10, 0}));
    ASSERT_EQ(clicked.size(), 1);
    EXPECT_EQ(clicked[0][0].value<ObjectKey>(), (ObjectKey{"VOYAGE", "SHIP", "7"}));
}

TEST_F(TimeBarTest, ThePicturesOfPlannedShipsStayAwayMeanwhile) {
    const Interface::TrvMapImageParams image{{"VOYAGE", "7", "SHIP"}, "none", "5,4"};
    Interface::Call(Interface::Bus::MapAddImage, &image);
    Tell();
    const QImage drawn = chart_->grab().toImage();
    Key(Qt::Key_T);
    const QImage timed = chart_->grab().toImage();
    EXPECT_TRUE(Differs(drawn, timed, At({5, 4})));
    Key(Qt::Key_T);
    EXPECT_FALSE(Differs(drawn, chart_->grab().toImage(), At({5, 4})));
}

TEST_F(TimeBarTest, TheNightIsThatOfTheTime) {
    Tell();
    chart_->ShowParts({.graticule = false, .names = false, .daylight = true});
    Key(Qt::Key_T);
    Slider().setValue(0);  // six in the morning UTC: day at 10 east
    const int day = qGray(chart_->grab().toImage().pixel(At({8, 8})));
    Bar().Step(14);
    EXPECT_LT(qGray(chart_->grab().toImage().pixel(At({8, 8}))), day - 10);
}

TEST_F(TimeBarTest, RunsByTheKeyAndStopsAtTheEnd) {
    Tell();
    Key(Qt::Key_T);
    Slider().setValue(17 * 60);
    Key(Qt::Key_Space);
    EXPECT_EQ(Bar().findChild<QToolButton*>("timePlay")->accessibleName(), "TIME_STOP");
    for (int step = 0; step < 3; ++step) {
        QTimerEvent tick(1);
        QApplication::sendEvent(&Bar(), &tick);
    }
    EXPECT_EQ(Slider().value(), Slider().maximum());
    QToolButton* play = Bar().findChild<QToolButton*>("timePlay");
    EXPECT_EQ(play->accessibleName(), "TIME_PLAY") << "it has come to rest";
    play->click();
    EXPECT_EQ(Slider().value(), 0) << "and begins anew";
    EXPECT_EQ(play->accessibleName(), "TIME_STOP");
    Key(Qt::Key_Space);
    EXPECT_EQ(play->accessibleName(), "TIME_PLAY");
}

TEST_F(TimeBarTest, ALegTellsItsPortsHoursAndArrival) {
    Interface::TrvMapLineParams line;
    line.ref = {"VOYAGE", "7_5", "LINE"};
    line.points = {"0,0", "20,0"};
    Interface::Call(Interface::Bus::MapAddLine, &std::as_const(line));
    EXPECT_EQ(TipAt({12, 0}).find("20.0 h"), std::string::npos);
    Tell();
    const std::string tip = TipAt({12, 0});
    EXPECT_TRUE(tip.starts_with("ALPHA\nBRAVO\n")) << tip;
    EXPECT_NE(tip.find("1202.2 NM  090°"), std::string::npos) << tip;
    EXPECT_NE(tip.find("20.0 h  ETA_AT"), std::string::npos) << tip;
}

TEST_F(TimeBarTest, ThePortsOfTheOnlyOrChosenVoyageAreNumbered) {
    const QImage before = chart_->grab().toImage();
    Tell();
    const QImage numbered = chart_->grab().toImage();
    EXPECT_TRUE(Differs(before, numbered, At({0, 0})));
    EXPECT_TRUE(Differs(before, numbered, At({20, 0})));
    Interface::TrvMapPlan other{"VOYAGE", "8", "SHIP",
                                "X",      "",  {{5, 5, 0, 0, "C", true}, {6, 6, 9, 9, "D", true}}};
    Interface::Call(Interface::Bus::MapSetPlan, &std::as_const(other));
    EXPECT_FALSE(Differs(before, chart_->grab().toImage(), At({0, 0}))) << "of two neither is the one";
    const std::string chosen = "7";
    Interface::Call(Interface::Bus::MapStandOut, &chosen);
    EXPECT_FALSE(Differs(numbered, chart_->grab().toImage(), At({0, 0})));
}

TEST_F(TimeBarTest, APressOnTheSliderGoesThereAtOnce) {
    Tell();
    Key(Qt::Key_T);
    QTest::mouseClick(&Slider(), Qt::LeftButton, {}, {Slider().width() * 3 / 4, Slider().height() / 2});
    EXPECT_NEAR(static_cast<double>(Bar().Time().value_or(0) - kDeparture), 15.0 * kHour, 0.5 * kHour);
    QTest::mouseClick(&Slider(), Qt::LeftButton, {}, {Slider().width() / 4, Slider().height() / 2});
    EXPECT_NEAR(static_cast<double>(Bar().Time().value_or(0) - kDeparture), 5.0 * kHour, 0.5 * kHour);
}

}  // namespace
}  // namespace Tarvik::Seamap
