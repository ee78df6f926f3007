// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/util/TypedPosition.h>

#include "host/plugins/seamap/core/PortFinder.h"

namespace Tarvik::Seamap {

namespace {

ChartName Port(const char* name, const char* local, const char* code, GeoPoint position) {
    return {.kind = ChartName::Kind::Port,
            .position = position,
            .text = name,
            .code = code,
            .port = name,
            .local = local,
            .isMajor = true};
}

class PortFinderTest : public ::testing::Test {
  protected:
    PortFinder finder_{{{.kind = ChartName::Kind::Water, .position = {3, 56}, .text = "Rotterdam Sea"},
                        Port("ROTTERDAM", "鹿特丹", "NLRTM", {4.4, 51.9}),
                        Port("ANTWERP", "安特卫普", "BEANR", {4.3, 51.3}),
                        Port("SUVA", "", "FJSUV", {178.4, -18.1}),
                        Port("APIA", "", "WSAPW", {-171.8, -13.8})}};
};

TEST_F(PortFinderTest, APositionIsUnderstoodInTheFormsThatAreCopied) {
    const GeoPoint place{-70.25, -33.51};
    const PositionForms forms = PositionForms::Of(place);
    EXPECT_EQ(forms.minutes, "33° 30.6' S 070° 15.0' W");
    EXPECT_EQ(forms.seconds, "33°30'36\"S 070°15'00\"W");
    EXPECT_EQ(forms.decimal, "-33.51000, -70.25000");
    for (const std::string& form : {forms.minutes, forms.seconds, forms.decimal}) {
        const auto found = finder_.Find(form, 5);
        ASSERT_EQ(found.size(), 1U) << form;
        EXPECT_NEAR(found[0].position.x, place.x, 1e-6) << form;
        EXPECT_NEAR(found[0].position.y, place.y, 1e-6) << form;
        EXPECT_EQ(found[0].port, nullptr);
        EXPECT_EQ(found[0].text, forms.minutes);
    }
}

TEST_F(PortFinderTest, APortIsFoundByNameCodeAndChineseNameAndNoWater) {
    for (const char* typed : {"rotterdam", "Rott", "NLRTM", "鹿特丹"}) {
        const auto found = finder_.Find(typed, 5);
        ASSERT_EQ(found.size(), 1U) << typed;
        ASSERT_NE(found[0].port, nullptr) << typed;
        EXPECT_EQ(found[0].port->port, "ROTTERDAM") << typed;
    }
    EXPECT_EQ(finder_.Find("rott", 5)[0].text, "ROTTERDAM  NLRTM");
    EXPECT_EQ(finder_.Find("鹿特", 5)[0].text, "ROTTERDAM  鹿特丹  NLRTM");
    EXPECT_TRUE(finder_.Find("xyzzy", 5).empty());
    EXPECT_TRUE(finder_.Find("", 5).empty());
}

TEST_F(PortFinderTest, TheNearestPortIsNearestOnTheGlobeAlsoOverTheDateLine) {
    EXPECT_EQ(finder_.Nearest({4.3, 51.8})->port, "ROTTERDAM");
    EXPECT_EQ(finder_.Nearest({4.3, 51.5})->port, "ANTWERP");
    EXPECT_EQ(finder_.Nearest({-178, -18})->port, "SUVA");
    EXPECT_EQ(PortFinder({}).Nearest({0, 0}), nullptr);
}

}  // namespace

}  // namespace Tarvik::Seamap
