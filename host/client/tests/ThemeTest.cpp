// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QImage>
#include <QRegularExpression>
#include <cmath>

#include <gtest/gtest.h>

#include "host/client/shell/Icons.h"
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

class EveryTheme : public testing::TestWithParam<const char*> {};

TEST_P(EveryTheme, KeepsTextLegible) {
    const ThemeColors colors = Theme(GetParam()).Colors();
    for (const QColor& ground : {colors.window, colors.panel}) {
        EXPECT_GE(Contrast(colors.text, ground), 4.5);
        EXPECT_GE(Contrast(colors.secondary, ground), 4.5);
        EXPECT_GE(Contrast(colors.error, ground), 4.5);
    }
    EXPECT_GE(Contrast(colors.onAccent, colors.accent), 4.5);
}

TEST_P(EveryTheme, LeavesNoRoleUnfilledInItsSheet) {
    EXPECT_FALSE(Theme(GetParam()).StyleSheet().contains(QRegularExpression("@[A-Za-z]")));
}

INSTANTIATE_TEST_SUITE_P(All, EveryTheme, testing::Values("light", "dark", "night"));

TEST(Theme, StepsThroughAllThreeAndBack) {
    EXPECT_EQ(Theme("light").Next(), "dark");
    EXPECT_EQ(Theme("dark").Next(), "night");
    EXPECT_EQ(Theme("night").Next(), "light");
    EXPECT_EQ(Theme("pink").Name(), "light");
}

TEST(Theme, TellsPluginsItsName) {
    Theme("dark").Apply();
    EXPECT_EQ(qApp->property("tarvik.theme").toString(), "dark");
}

TEST(Icons, AnUnknownDrawingIsEmpty) {
    EXPECT_TRUE(ColoredIcon("nothing", Qt::black).isNull());
}

}  // namespace
}  // namespace Tarvik::Client
