// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QImage>
#include <QRegularExpression>
#include <cmath>

#include <gtest/gtest.h>

#include <tarvik/skin/Icons.h>

#include "host/client/shell/Theme.h"

namespace Tarvik::Client {

namespace {

double Luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double x = Luminance(a) + 0.05;
    const double y = Luminance(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

class EveryTheme : public testing::TestWithParam<Skin::Theme> {
  protected:
    EveryTheme() { Skin::SetTheme(GetParam()); }
    ~EveryTheme() override { Skin::SetTheme(Skin::Theme::Light); }
};

TEST_P(EveryTheme, KeepsTextLegible) {
    using Skin::Colour;
    using Skin::Role;
    for (const QColor& ground : {Colour(Role::Window), Colour(Role::Panel)}) {
        EXPECT_GE(Contrast(Colour(Role::Text), ground), 4.5);
        EXPECT_GE(Contrast(Colour(Role::ShellSecondary), ground), 4.5);
        EXPECT_GE(Contrast(Colour(Role::Error), ground), 4.5);
    }
    EXPECT_GE(Contrast(Colour(Role::AccentText), Colour(Role::Accent)), 4.5);
    // Pictures need less than texts.
    EXPECT_GE(Contrast(Colour(Role::Accent), Colour(Role::Window)), 3.0);
    EXPECT_GE(Contrast(Colour(Role::Warning), Colour(Role::Window)), 3.0);
}

TEST_P(EveryTheme, LeavesNoRoleUnfilledInItsSheet) {
    EXPECT_FALSE(ClientStyleSheet().contains(QRegularExpression("@[A-Za-z]")));
}

INSTANTIATE_TEST_SUITE_P(All, EveryTheme, testing::ValuesIn(Skin::kThemes));

TEST(Theme, TellsPluginsItsName) {
    ApplyTheme(Skin::Theme::Dark);
    EXPECT_EQ(qApp->property("tarvik.theme").toString(), "dark");
}

TEST(Icons, EveryToolOfTheClientHasADrawing) {
    for (const char* name :
         {"voyages", "distances", "zoomin", "zoomout", "fit", "theme", "language", "preferences", "logout"}) {
        const std::string file = std::string(CLIENT_ICONS) + "/" + name + ".svg";
        EXPECT_EQ(Skin::MakeIcon(file, {20, 40}).availableSizes().size(), 2) << name;
    }
}

}  // namespace
}  // namespace Tarvik::Client
