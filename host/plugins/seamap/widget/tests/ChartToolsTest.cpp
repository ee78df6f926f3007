// SPDX-License-Identifier: MIT
/// The chart's menu and its measuring tool, by mouse and keyboard.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include <tarvik/util/Clock.h>

#include "host/plugins/seamap/widget/ChartTools.h"
#include "host/plugins/seamap/widget/ChartWidget.h"
#include "host/plugins/seamap/widget/MeasureCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr GeoPoint kRotterdam{4.4, 51.9};

class ChartToolsTest : public ::testing::Test {
  protected:
    ChartToolsTest() : chart_(objects_) {
        chart_.setProperty("pictures", true);
        chart_.resize(800, 500);
        chart_.show();
        chart_.SetNames({{.kind = ChartName::Kind::Port,
                          .position = kRotterdam,
                          .text = "ROTTERDAM",
                          .code = "NLRTM",
                          .port = "ROTTERDAM",
                          .isMajor = true}});
        chart_.ShowExtent({2, 51, 6, 53});
        chart_.grab();
    }
    QPoint At(GeoPoint place) const {
        const PixelPoint pixel = chart_.View().ToScreen(place);
        return {qRound(pixel.x), qRound(pixel.y)};
    }
    void Click(GeoPoint place) { QTest::mouseClick(&chart_, Qt::LeftButton, {}, At(place)); }
    QMenu& OpenMenu(GeoPoint place, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
        QContextMenuEvent event(reason, At(place), chart_.mapToGlobal(At(place)));
        QApplication::sendEvent(&chart_, &event);
        return *chart_.findChildren<QMenu*>("chartMenu").back();
    }
    static QAction& Item(QMenu& menu, const char* name) { return *menu.findChild<QAction*>(name); }
    const Measure& Measured() { return chart_.Tools().Measured(); }

    ChartObjects objects_;
    ChartWidget chart_;
};

TEST_F(ChartToolsTest, TheMenuCopiesThePositionInThreeForms) {
    QMenu& menu = OpenMenu({3, 52});
    const GeoPoint place = chart_.View().ToGeo({double(At({3, 52}).x()), double(At({3, 52}).y())});
    const PositionForms forms = PositionForms::Of(place);
    for (const auto& [name, form] :
         {std::pair("copyMinutes", forms.minutes), std::pair("copySeconds", forms.seconds),
          std::pair("copyDecimal", forms.decimal)}) {
        Item(menu, name).trigger();
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), form);
    }
}

TEST_F(ChartToolsTest, TheMenuTellsTheNearestPortAndLeadsThere) {
    QMenu& menu = OpenMenu({3, 52});
    Item(menu, "nearestPort").trigger();
    EXPECT_NEAR(chart_.View().ToGeo({400, 250}).x, kRotterdam.x, 0.05);
    EXPECT_TRUE(chart_.findChild<QLabel*>("portCard")->isVisible());
}

TEST_F(ChartToolsTest, CentreHereKeepsTheScale) {
    const auto size = chart_.View().WorldSize();
    Item(OpenMenu({3, 52.4}), "centreHere").trigger();
    EXPECT_EQ(chart_.View().WorldSize(), size);
    EXPECT_NEAR(chart_.View().ToGeo({400, 250}).x, 3, 0.02);
    EXPECT_NEAR(chart_.View().ToGeo({400, 250}).y, 52.4, 0.02);
}

TEST_F(ChartToolsTest, ByTheKeyboardTheMenuIsThatOfTheMiddle) {
    Item(OpenMenu({2.2, 51.2}, QContextMenuEvent::Keyboard), "measureFromHere").trigger();
    const GeoPoint middle = chart_.View().ToGeo({400, 250});
    ASSERT_TRUE(Measured().IsRunning());
    EXPECT_NEAR(Measured().Points().front().x, middle.x, 0.05);
}

TEST_F(ChartToolsTest, PartsAreShownAndHiddenAndTold) {
    QSignalSpy turned(&chart_, &ChartWidget::PartTurned);
    const QImage before = chart_.grab().toImage();
    QAction& graticule = Item(OpenMenu({3, 52}), "graticule");
    EXPECT_TRUE(graticule.isChecked());
    graticule.trigger();
    EXPECT_FALSE(chart_.Parts().graticule);
    ASSERT_EQ(turned.count(), 1);
    EXPECT_EQ(turned[0][0].value<std::string>(), "graticule");
    EXPECT_FALSE(turned[0][1].toBool());
    const QImage without = chart_.grab().toImage();
    EXPECT_NE(without, before);
    Item(OpenMenu({3, 52}), "names").trigger();
    EXPECT_NE(chart_.grab().toImage(), without);
    QSignalSpy ports(&chart_, &ChartWidget::PortClicked);
    Click(kRotterdam);
    EXPECT_EQ(ports.count(), 0) << "what is not drawn is not met";
}

TEST_F(ChartToolsTest, MeasuresLegsByClicksAndTakesThePointsOfPorts) {
    QSignalSpy ports(&chart_, &ChartWidget::PortClicked);
    chart_.Tools().MeasureFrom({3, 52});
    Click({3.5, 52.2});
    QTest::mouseClick(&chart_, Qt::LeftButton, {}, At(kRotterdam) + QPoint(2, 2));
    ASSERT_EQ(Measured().Legs().size(), 2U);
    EXPECT_EQ(Measured().Points().back(), kRotterdam) << "the port itself, not a pixel beside it";
    EXPECT_EQ(ports.count(), 0);
    const auto* legs = chart_.findChild<QLabel*>("measuredLegs");
    ASSERT_TRUE(legs->isVisible());
    const MeasuredLeg last = Measured().Legs().back();
    EXPECT_TRUE(legs->text().contains(QString::number(last.miles, 'f', 1) + " NM"));
    EXPECT_TRUE(chart_.rect().contains(chart_.findChild<MeasureCard*>()->geometry()));
}

TEST_F(ChartToolsTest, BackspaceTakesThePointBackAndEscapeEnds) {
    chart_.Tools().MeasureFrom({3, 52});
    Click({3.5, 52.2});
    QTest::keyClick(&chart_, Qt::Key_Backspace);
    EXPECT_TRUE(Measured().Legs().empty());
    EXPECT_TRUE(Measured().IsRunning());
    QTest::keyClick(&chart_, Qt::Key_Escape);
    EXPECT_FALSE(Measured().IsRunning());
    EXPECT_FALSE(chart_.findChild<MeasureCard*>()->isVisible());
    QTest::keyClick(&chart_, Qt::Key_Backspace);
    EXPECT_FALSE(Measured().IsRunning());
}

TEST_F(ChartToolsTest, EscapeInTheSpeedEndsTooAndTheSpeedGivesTheHours) {
    chart_.Tools().MeasureFrom({3, 52});
    Click({3, 52.5});
    auto* knots = chart_.findChild<QDoubleSpinBox*>("measureSpeed");
    knots->setValue(10);
    const std::string hours = HoursText(Measured().Legs().front().miles, 10);
    EXPECT_TRUE(chart_.findChild<QLabel*>("measuredLegs")->text().contains(QString::fromStdString(hours)));
    QTest::keyClick(knots, Qt::Key_Escape);
    EXPECT_FALSE(Measured().IsRunning());
}

TEST_F(ChartToolsTest, DraggingWhileMeasuringMovesTheChartAndAddsNoPoint) {
    chart_.Tools().MeasureFrom({3, 52});
    QTest::mousePress(&chart_, Qt::LeftButton, {}, {400, 250});
    QTest::mouseMove(&chart_, {300, 250});
    QTest::mouseRelease(&chart_, Qt::LeftButton, {}, {300, 250});
    EXPECT_EQ(Measured().Points().size(), 1U);
}

/// A clock that stands still.
class StoppedClock : public Util::Clock {
  public:
    std::int64_t NowUtcCsecs() const override { return now; }
    std::int64_t now = 0;
};

TEST_F(ChartToolsTest, TheNightLiesOverTheChartByTheClock) {
    StoppedClock clock;
    clock.now = 178203030000;  // 2026-06-21 08:25 UTC: day in Europe
    Util::Clock::Set(&clock);
    const QRgb plain = chart_.grab().toImage().pixel(200, 420);
    chart_.ShowParts({.daylight = true});
    EXPECT_EQ(chart_.grab().toImage().pixel(200, 420), plain);
    clock.now += 15 * 360000;
    EXPECT_LT(qGray(chart_.grab().toImage().pixel(200, 420)), qGray(plain));
    Util::Clock::Set(nullptr);
}

TEST_F(ChartToolsTest, ALineTellsItsLegToWhoPointsAtIt) {
    objects_.AddLine({{"L", "1", "ROUTE"}, {"2.5,52", "4,52", "5,52.5"}, 0, 2, "solid"});
    QHelpEvent first(QEvent::ToolTip, At({3.2, 52}), chart_.mapToGlobal(At({3.2, 52})));
    QApplication::sendEvent(&chart_, &first);
    const MeasuredLeg leg = MeasureLeg({2.5, 52}, {4, 52}, Track::RhumbLine);
    EXPECT_EQ(QToolTip::text().toStdString(),
              FormatPosition(leg.from) + "\n" + FormatPosition(leg.to) + "\n" + LegText(leg));
    EXPECT_TRUE(QToolTip::text().contains(QString::fromUtf8("090°")));
}

TEST_F(ChartToolsTest, AFitKeepsClearOfAPanelOverTheChart) {
    QWidget panel(&chart_, Qt::Tool);
    panel.setGeometry(QRect(chart_.mapToGlobal(QPoint(0, 0)), QSize(300, 500)));
    panel.show();
    chart_.ShowExtent({-20, -10, 20, 10});
    EXPECT_GE(chart_.View().ToScreen(GeoPoint{-20, 0}).x, panel.frameGeometry().width());
    EXPECT_LT(chart_.View().ToScreen(GeoPoint{20, 0}).x, 800);
    panel.hide();
    chart_.ShowExtent({-20, -10, 20, 10});
    EXPECT_NEAR(chart_.View().ToScreen(GeoPoint{0, 0}).x, 400, 1) << "in the middle again";
}

TEST_F(ChartToolsTest, AVoyageAroundTheWorldIsSeenFrom126EastTo90West) {
    chart_.ShowExtent(*Extent::FromCorners({126, 60, -90, -50}));
    EXPECT_TRUE(chart_.Shown().Contains({180, 0}));
    EXPECT_FALSE(chart_.Shown().Contains({0, 0})) << "not the side of Greenwich";
}

}  // namespace

}  // namespace Tarvik::Seamap
