// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/chart/BookLayer.h"
#include "seaplan/chart/tests/ChartRecording.h"

namespace Tarvik::Seaplan {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class BookLayerTest : public testing::Test {
  protected:
    Testing::ChartRecording chart;
    BookLayer layer;
    BookPicture picture{{"1,0", "2,0", "3,0"}, {"1,0", "3,0"}, 1};

    std::vector<std::string> Labels() {
        std::vector<std::string> texts;
        for (const auto& label : chart.labels) {
            texts.push_back(label.ref.type + " " + label.label + " " + label.position);
        }
        return texts;
    }
    void Forget() {
        chart.calls.clear();
        chart.lines.clear();
        chart.labels.clear();
    }
};

TEST_F(BookLayerTest, TheWayIsALineAndTheRowsAreNumberedPoints) {
    layer.Draw(picture);
    ASSERT_THAT(chart.lines, SizeIs(1));
    EXPECT_THAT(chart.lines[0].points, ElementsAre("1,0", "2,0", "3,0"));
    EXPECT_EQ(chart.lines[0].ref.layer, "VOYAGE_BOOK") << "apart from the voyages";
    EXPECT_THAT(Labels(), ElementsAre("BOOKPOINTTYPE 1 1,0", "BOOKPOINTTYPE 2 3,0", "BOOKFRONTTYPE 2 3,0"));
    EXPECT_GT(chart.labels[2].size, chart.labels[1].size);
}

TEST_F(BookLayerTest, WhatIsThereIsNotDrawnAgain) {
    layer.Draw(picture);
    Forget();
    layer.Draw(picture);
    EXPECT_THAT(chart.calls, IsEmpty());
    picture.front = 0;
    layer.Draw(picture);
    EXPECT_THAT(Labels(), ElementsAre("BOOKFRONTTYPE 1 1,0"));
    EXPECT_THAT(chart.lines, IsEmpty());
}

TEST_F(BookLayerTest, AWayOverTheDateLineIsCut) {
    picture.way = {"179,0", "180,1", "-180,1", "-179,2"};
    layer.Draw(picture);
    ASSERT_THAT(chart.lines, SizeIs(2));
    EXPECT_NE(chart.lines[0].ref.id, chart.lines[1].ref.id);
}

TEST_F(BookLayerTest, ClearingTakesEverythingOffOnce) {
    layer.Clear();
    EXPECT_THAT(chart.calls, IsEmpty()) << "nothing was drawn";
    layer.Draw(picture);
    Forget();
    layer.Clear();
    EXPECT_THAT(chart.calls, SizeIs(3));
    layer.Clear();
    EXPECT_THAT(chart.calls, SizeIs(3));
    layer.Draw(picture);
    EXPECT_THAT(chart.lines, SizeIs(1));
}

}  // namespace

}  // namespace Tarvik::Seaplan
