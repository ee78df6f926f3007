// SPDX-License-Identifier: MIT
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "tests/gui/Display.h"
#include "tests/gui/Sitting.h"

namespace Tarvik::Programs {

namespace {

// Of the card in the middle of the chart.
constexpr Place kSample{640, 296};
constexpr Place kEmpty{640, 404};

/// The first start of a new data folder.
class FirstStart : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override { ASSERT_NE(display_.Name(), ""); }
    void Choose(const Sitting& sitting, const Place& way) const {
        person_.PressAt(sitting.main, way.x, way.y);
    }

    Display display_{GetParam()};
    Person person_{display_.Name()};
    ClientTree client_;
};

}  // namespace

TEST_P(FirstStart, TheSampleIsARealVoyageWithItsRoute) {
    {
        Sitting sitting(client_, person_, display_.Name(), Sitting::Folder::New);
        Choose(sitting, kSample);
        person_.AwaitWindow("Voyages");
        EXPECT_EQ(client_.Number("select count(*) from voyages where vn='Rotterdam - Shanghai'"), 1);
        EXPECT_EQ(client_.Number("select count(*) from port_calls"), 3);
        EXPECT_GT(client_.Number("select count(*) from book_rows"), 10);
        EXPECT_EQ(sitting.Leave().exitCode, 0);
    }
    // Nothing is asked any more: the same place is the chart.
    Sitting again(client_, person_, display_.Name(), Sitting::Folder::New);
    Choose(again, kSample);
    EXPECT_EQ(again.Leave().exitCode, 0);
    EXPECT_EQ(client_.Number("select count(*) from voyages"), 1);
}

TEST_P(FirstStart, AnEmptyStartLeavesNothingBehind) {
    Sitting sitting(client_, person_, display_.Name(), Sitting::Folder::New);
    Choose(sitting, kEmpty);
    person_.Look(sitting.main);
    EXPECT_EQ(sitting.Leave().exitCode, 0);
    EXPECT_EQ(client_.Number("select count(*) from voyages"), 0);
    std::ifstream kept(client_.Data("preferences.json"));
    const std::string preferences((std::istreambuf_iterator<char>(kept)), std::istreambuf_iterator<char>());
    EXPECT_NE(preferences.find("\"firstStart\": false"), std::string::npos) << preferences;
}

INSTANTIATE_TEST_SUITE_P(Managers, FirstStart, testing::ValuesIn(Managers()),
                         [](const auto& window) { return ManagerName(window.param); });

}  // namespace Tarvik::Programs
