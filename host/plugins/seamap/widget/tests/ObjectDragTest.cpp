// SPDX-License-Identifier: MIT
/// Drags of objects whose owner takes them, and of all others.
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/DragContract.h>
#include <tarvik/interface/ChartRecords.h>

#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class ObjectDragTest : public ChartFixture {
  protected:
    ObjectDragTest() {
        chart_->ShowExtent({-10, -10, 10, 10});
        Interface::TrvMapPointParams point;
        point.ref = {"L", "7", "BOOKPOINTTYPE"};
        point.position = "2,3";
        Interface::Call(Interface::Bus::MapAddPointLabel, &std::as_const(point));
        Interface::TrvMapLineParams line;
        line.ref = {"L", "0", "BOOKLINETYPE"};
        line.points = {"-5,-4", "5,-4"};
        Interface::Call(Interface::Bus::MapAddLine, &std::as_const(line));
        clicks_ = Interface::Subscribe(Interface::Bus::ClickBookPoint,
                                       [this](const std::string& id) -> const char* {
                                           clicked_.push_back(id);
                                           return nullptr;
                                       });
    }
    void OfferDrags() {
        for (const auto& service : {Interface::Bus::DragBookPoint, Interface::Bus::DragBookWay}) {
            offers_.Keep(Interface::Offer(
                service, [this](const Interface::ChartDrag& drag) { drags_.push_back(drag); }));
        }
    }
    void PressAndMove(GeoPoint from, GeoPoint to) {
        QTest::mousePress(chart_, Qt::LeftButton, {}, At(from));
        QTest::mouseMove(chart_, (At(from) + At(to)) / 2);
        QTest::mouseMove(chart_, At(to));
    }
    void Drag(GeoPoint from, GeoPoint to) {
        const QPoint end = At(to);
        PressAndMove(from, to);
        QTest::mouseRelease(chart_, Qt::LeftButton, {}, end);
    }

    std::vector<Interface::ChartDrag> drags_;
    std::vector<std::string> clicked_;
    Interface::BindingList offers_;
    Interface::Binding clicks_;
};

}  // namespace

TEST_F(ObjectDragTest, APointIsToldWithBothPlacesAndTheChartStays) {
    OfferDrags();
    const QPoint before = At({0, 0});
    Drag({2, 3}, {6, 7});
    ASSERT_EQ(drags_.size(), 1U);
    EXPECT_EQ(drags_[0].id, "7");
    EXPECT_NEAR(drags_[0].from.longitude, 2, 0.05);
    EXPECT_NEAR(drags_[0].from.latitude, 3, 0.05);
    EXPECT_NEAR(drags_[0].to.longitude, 6, 0.05);
    EXPECT_NEAR(drags_[0].to.latitude, 7, 0.05);
    EXPECT_EQ(At({0, 0}), before);
    EXPECT_THAT(clicked_, IsEmpty());
}

TEST_F(ObjectDragTest, ALineIsPulledWhereItWasPressed) {
    OfferDrags();
    Drag({1, -4}, {1, -8});
    ASSERT_EQ(drags_.size(), 1U);
    EXPECT_EQ(drags_[0].id, "0");
    EXPECT_NEAR(drags_[0].from.latitude, -4, 0.1);
    EXPECT_NEAR(drags_[0].to.latitude, -8, 0.05);
}

TEST_F(ObjectDragTest, WhereNobodyTakesTheDragTheChartMoves) {
    const QPoint before = At({0, 0});
    Drag({2, 3}, {6, 7});
    EXPECT_NE(At({0, 0}), before);
    OfferDrags();
    const QPoint again = At({0, 0});
    Drag({-8, 8}, {-4, 8});
    EXPECT_NE(At({0, 0}), again) << "on the sea";
    EXPECT_TRUE(drags_.empty());
}

TEST_F(ObjectDragTest, APressWithoutAWayIsAClick) {
    OfferDrags();
    QTest::mouseClick(chart_, Qt::LeftButton, {}, At({2, 3}));
    EXPECT_THAT(clicked_, ElementsAre("7"));
    EXPECT_TRUE(drags_.empty());
}

TEST_F(ObjectDragTest, EscapeTakesTheDragBack) {
    OfferDrags();
    PressAndMove({2, 3}, {6, 7});
    QTest::keyClick(chart_, Qt::Key_Escape);
    QTest::mouseRelease(chart_, Qt::LeftButton, {}, At({6, 7}));
    EXPECT_TRUE(drags_.empty());
    Drag({2, 3}, {4, 3});
    EXPECT_EQ(drags_.size(), 1U);
}

TEST_F(ObjectDragTest, ARingShowsWhereTheObjectWouldGo) {
    OfferDrags();
    const QImage before = chart_->grab().toImage();
    PressAndMove({2, 3}, {6, 7});
    const QPoint ring = At({6, 7}) + QPoint(7, 0);
    EXPECT_NE(chart_->grab().toImage().pixel(ring), before.pixel(ring));
    QTest::mouseRelease(chart_, Qt::LeftButton, {}, At({6, 7}));
}

}  // namespace Tarvik::Seamap
