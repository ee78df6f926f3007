// SPDX-License-Identifier: MIT
/// A click on a port of the chart: into the distance table while it is open, else its card.
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/VoyageContract.h>

#include "host/plugins/seamap/widget/PortCard.h"
#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr GeoPoint kRotterdam{4.0, 52.0};

ChartName Port(const char* text, GeoPoint position) {
    return {.kind = ChartName::Kind::Port,
            .position = position,
            .text = text,
            .code = "NLRTM",
            .port = "ROTTERDAM",
            .isMajor = true};
}

class PortClickTest : public ChartFixture {
  protected:
    PortClickTest() {
        chart_->ShowExtent({2, 51, 6, 53});
        chart_->Change([](ChartScene& scene) { scene.SetNames({Port("鹿特丹", kRotterdam)}); });
        chart_->grab();
    }
    void Click(QPoint at) { QTest::mouseClick(chart_, Qt::LeftButton, {}, at); }
    QLabel& Card() const { return *chart_->findChild<QLabel*>("portCard"); }
    /// Offers the services of a distance table, which is open or not.
    void OfferTable() {
        bindings_.Keep(Interface::Offer(Interface::Bus::TakesPortNames, [this] { return &open_; }));
        bindings_.Keep(Interface::Offer(Interface::Bus::AddPortName,
                                        [this](const std::string& name) { added_.push_back(name); }));
    }

    bool open_ = true;
    std::vector<std::string> added_;
    Interface::BindingList bindings_;
};

TEST_F(PortClickTest, WithoutATableTheCardTellsOfThePort) {
    EXPECT_FALSE(Card().isVisible());
    Click(At(kRotterdam));
    ASSERT_TRUE(Card().isVisible());
    EXPECT_EQ(Card().text(), QString::fromUtf8("鹿特丹\nROTTERDAM\nNLRTM  Netherlands\n") +
                                 QString::fromStdString(FormatPosition(kRotterdam)));
    EXPECT_TRUE(chart_->rect().contains(Card().geometry()));
}

TEST_F(PortClickTest, AnOpenTableTakesTheDictionarysName) {
    OfferTable();
    Click(At(kRotterdam));
    EXPECT_THAT(added_, ElementsAre("ROTTERDAM")) << "not the name in the language on show";
    EXPECT_FALSE(Card().isVisible());
    open_ = false;
    Click(At(kRotterdam) + QPoint(3, 3));
    EXPECT_EQ(added_.size(), 1U);
    EXPECT_TRUE(Card().isVisible()) << "the table is closed";
}

TEST_F(PortClickTest, TheNameIsThePortTooAndTheSeaBesideItIsNot) {
    OfferTable();
    Click(At(kRotterdam) + QPoint(14, 0));
    EXPECT_EQ(added_.size(), 1U) << "on its name";
    Click(At(kRotterdam) + QPoint(0, 40));
    EXPECT_EQ(added_.size(), 1U) << "on the sea";
}

TEST_F(PortClickTest, ALineUnderThePortGivesWayAndAPointDoesNot) {
    OfferTable();
    const QSignalSpy objects(chart_, &ChartWidget::ObjectClicked);
    Interface::TrvMapLineParams line;
    line.ref = {"L", "1", "ROUTE"};
    line.points = {"3,52", "5,52"};
    Interface::Call(Interface::Bus::MapAddLine, &line);
    chart_->grab();
    Click(At(kRotterdam));
    EXPECT_EQ(added_.size(), 1U);
    EXPECT_EQ(objects.count(), 0);
    Click(At({4.8, 52}));
    EXPECT_EQ(objects.count(), 1);
    EXPECT_EQ(added_.size(), 1U);
}

TEST_F(PortClickTest, TheCardGoesWhenTheChartIsPressedOrMoves) {
    Click(At(kRotterdam));
    Click(At({3, 51.5}));
    EXPECT_FALSE(Card().isVisible());
    Click(At(kRotterdam));
    chart_->ZoomSteps(1);
    EXPECT_FALSE(Card().isVisible());
    chart_->grab();
    Click(At(kRotterdam));
    QTest::keyClick(chart_, Qt::Key_Escape);
    EXPECT_FALSE(Card().isVisible());
}

TEST_F(PortClickTest, APortThatIsNotDrawnCannotBeMet) {
    OfferTable();
    chart_->ShowExtent({-170, -70, 170, 70});
    chart_->grab();
    Click(At(kRotterdam));
    EXPECT_THAT(added_, IsEmpty());
}

TEST(PortCardTest, WhatIsNotKnownIsLeftOut) {
    ChartName port = Port("ROTTERDAM", kRotterdam);
    port.code.clear();
    EXPECT_EQ(PortCard::TextOf(port), QString::fromStdString("ROTTERDAM\n" + FormatPosition(kRotterdam)));
    port.code = "XXABC";
    EXPECT_EQ(PortCard::TextOf(port),
              QString::fromStdString("ROTTERDAM\nXXABC\n" + FormatPosition(kRotterdam)));
}

}  // namespace

}  // namespace Tarvik::Seamap
