// SPDX-License-Identifier: MIT
/// Going to a typed position or port, and the chart's commands for it.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "host/plugins/seamap/widget/GoToBar.h"
#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

namespace {

ChartName Port(const char* name, const char* code, GeoPoint position) {
    return {.kind = ChartName::Kind::Port, .position = position, .text = name, .code = code, .port = name};
}

class GoToTest : public ChartFixture {
  protected:
    GoToTest() {
        chart_->SetNames({Port("SANTOS", "BRSSZ", {-46.3, -24}), Port("SANTANDER", "ESSDR", {-3.8, 43.4})});
    }
    static bool Command(const std::string& command) {
        return Interface::Call(Interface::Bus::ChartCommand, &command) != nullptr;
    }
    QLineEdit& Field() const { return *chart_->findChild<QLineEdit*>("goToField"); }
    QListWidget& List() const { return *chart_->findChild<QListWidget*>("goToList"); }
    GeoPoint Middle() const { return chart_->View().ToGeo({400, 250}); }
    void Type(const char* text) {
        Command("goto");
        QTest::keyClicks(&Field(), text);
    }
};

TEST_F(GoToTest, ATypedPositionIsReadBackAndGoneTo) {
    Type("33 30.6S 70 15W");
    ASSERT_EQ(List().count(), 1);
    EXPECT_EQ(List().item(0)->text(), QString::fromUtf8("33° 30.6' S 070° 15.0' W"));
    QTest::keyClick(&Field(), Qt::Key_Return);
    EXPECT_FALSE(Field().isVisible());
    EXPECT_NEAR(Middle().x, -70.25, 0.02);
    EXPECT_NEAR(Middle().y, -33.51, 0.02);
    EXPECT_GE(chart_->View().WorldSize(), 1 << 15);
}

TEST_F(GoToTest, TheArrowsChooseAmongPortsWhoseCardIsShown) {
    Type("sant");
    ASSERT_EQ(List().count(), 2);
    QTest::keyClick(&Field(), Qt::Key_Down);
    const QString chosen = List().currentItem()->text();
    EXPECT_EQ(List().currentRow(), 1);
    QTest::keyClick(&Field(), Qt::Key_Down);
    EXPECT_EQ(List().currentRow(), 1) << "the last stays the last";
    QTest::keyClick(&Field(), Qt::Key_Return);
    const auto* card = chart_->findChild<QLabel*>("portCard");
    ASSERT_TRUE(card->isVisible());
    EXPECT_TRUE(chosen.startsWith(card->text().section('\n', 0, 0)));
}

TEST_F(GoToTest, WhatIsNeitherIsSaidAndEnterStays) {
    const MercatorView before = chart_->View();
    Type("qqqqqq");
    ASSERT_EQ(List().count(), 1);
    EXPECT_FALSE(List().item(0)->flags() & Qt::ItemIsEnabled);
    QTest::keyClick(&Field(), Qt::Key_Return);
    EXPECT_TRUE(Field().isVisible());
    EXPECT_EQ(chart_->View(), before);
    QTest::keyClick(&Field(), Qt::Key_Escape);
    EXPECT_FALSE(Field().isVisible());
}

TEST_F(GoToTest, TheBarLiesWholeOnTheChartAlsoWhenItIsNarrow) {
    chart_->resize(300, 400);
    Type("sant");
    EXPECT_TRUE(chart_->rect().contains(chart_->findChild<GoToBar*>()->geometry()));
    chart_->resize(280, 400);
    EXPECT_TRUE(chart_->rect().contains(chart_->findChild<GoToBar*>()->geometry()));
    EXPECT_EQ(Field().text(), "sant") << "a change of size leaves what is typed";
}

TEST_F(GoToTest, PartsGoByCommandAndAreToldOnTheBusWhenAPersonTurnsThem) {
    std::vector<std::pair<std::string, bool>> told;
    const auto heard = Interface::Subscribe(
        Interface::Bus::ChartPartTurned,
        [&told](const Interface::ChartPart& part) { told.emplace_back(part.name, part.shown); });
    EXPECT_TRUE(Command("hide names"));
    EXPECT_FALSE(chart_->Parts().names);
    EXPECT_TRUE(Command("show daylight"));
    EXPECT_TRUE(chart_->Parts().daylight);
    EXPECT_FALSE(Command("show everything"));
    EXPECT_FALSE(Command("hide"));
    EXPECT_FALSE(Command("paint names"));
    EXPECT_TRUE(told.empty()) << "a command comes from who knows already";
    emit chart_->PartTurned("graticule", false);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], std::pair(std::string("graticule"), false));
}

}  // namespace

}  // namespace Tarvik::Seamap
