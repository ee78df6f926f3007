// SPDX-License-Identifier: MIT
/// The card of a port of the user's own: it also changes and removes the port.
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

#include "host/plugins/seamap/widget/tests/ChartFixture.h"

namespace Tarvik::Seamap {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

namespace Bus = Interface::Bus;

constexpr GeoPoint kBerth{4.0, 52.0};
constexpr GeoPoint kShipped{4.5, 52.0};

class OwnPortCardTest : public ChartFixture {
  protected:
    OwnPortCardTest() {
        chart_->ShowExtent({2, 51, 6, 53});
        chart_->Change([](ChartScene& scene) {
            scene.SetNames({{.kind = ChartName::Kind::Port,
                             .position = kBerth,
                             .text = "Berth 7",
                             .port = "Berth 7",
                             .own = "1000040",
                             .isMajor = true},
                            {.kind = ChartName::Kind::Port,
                             .position = kShipped,
                             .text = "Rotterdam",
                             .code = "NLRTM",
                             .port = "Rotterdam",
                             .isMajor = true}});
        });
        chart_->grab();
    }
    void OfferDesk() {
        bindings_.Keep(
            Interface::Offer(Bus::ChangeOwnPort, [this](const std::string& id) { changed_.push_back(id); }));
        bindings_.Keep(
            Interface::Offer(Bus::RemoveOwnPort, [this](const std::string& id) { removed_.push_back(id); }));
    }
    void Click(GeoPoint at) { QTest::mouseClick(chart_, Qt::LeftButton, {}, At(at)); }
    QLabel& Card() const { return *chart_->findChild<QLabel*>("portCard"); }
    QPushButton& Button(const char* name) const { return *chart_->findChild<QPushButton*>(name); }

    std::vector<std::string> changed_;
    std::vector<std::string> removed_;
    Interface::BindingList bindings_;
};

TEST_F(OwnPortCardTest, ItChangesAndRemovesThePort) {
    OfferDesk();
    Click(kBerth);
    ASSERT_TRUE(Card().isVisible());
    ASSERT_TRUE(Button("portCardChange").isVisible());
    EXPECT_TRUE(Card().rect().contains(Button("portCardChange").geometry()));
    EXPECT_TRUE(Card().rect().contains(Button("portCardRemove").geometry()));
    EXPECT_FALSE(Button("portCardChange").geometry().intersects(Button("portCardRemove").geometry()));
    EXPECT_GE(Button("portCardChange").y(), Card().fontMetrics().height() * 2) << "below the text";
    QTest::mouseClick(&Button("portCardChange"), Qt::LeftButton);
    EXPECT_THAT(changed_, ElementsAre("1000040"));
    EXPECT_FALSE(Card().isVisible());
    Click(kBerth);
    QTest::mouseClick(&Button("portCardRemove"), Qt::LeftButton);
    EXPECT_THAT(removed_, ElementsAre("1000040"));
    EXPECT_EQ(changed_.size(), 1U);
}

TEST_F(OwnPortCardTest, TheKeyboardReachesItsButtons) {
    OfferDesk();
    Click(kBerth);
    Button("portCardRemove").setFocus();
    QTest::keyClick(&Button("portCardRemove"), Qt::Key_Escape);
    EXPECT_FALSE(Card().isVisible());
    EXPECT_THAT(removed_, IsEmpty());
    Click(kBerth);
    QTest::keyClick(&Button("portCardRemove"), Qt::Key_Space);
    EXPECT_THAT(removed_, ElementsAre("1000040"));
}

TEST_F(OwnPortCardTest, OtherPortsHaveNoButtonsAndNeitherHasACardWithoutTheClient) {
    Click(kBerth);
    EXPECT_TRUE(Card().isVisible());
    EXPECT_FALSE(Button("portCardChange").isVisible());
    const int bare = Card().height();
    OfferDesk();
    Click(kBerth);
    EXPECT_GT(Card().height(), bare);
    Click(kShipped);
    EXPECT_TRUE(Card().isVisible());
    EXPECT_FALSE(Button("portCardRemove").isVisible());
    EXPECT_FALSE(Button("portCardChange").isVisible());
}

}  // namespace

}  // namespace Tarvik::Seamap
