// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QTemporaryFile>
#include <algorithm>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

namespace Tarvik::Skin {

namespace {

double Luminance(const QColor& colour) {
    const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

class EveryTheme : public ::testing::TestWithParam<Theme> {
  protected:
    EveryTheme() { SetTheme(GetParam()); }
    ~EveryTheme() override { SetTheme(Theme::Light); }
};

}  // namespace

TEST_P(EveryTheme, TextStandsOutFromItsGround) {
    const std::pair<Role, Role> pairs[] = {{Role::Text, Role::Window},
                                           {Role::Text, Role::Panel},
                                           {Role::Text, Role::List},
                                           {Role::Text, Role::Selection},
                                           {Role::Text, Role::History},
                                           {Role::Text, Role::Highlight},
                                           {Role::Secondary, Role::Window},
                                           {Role::Secondary, Role::Panel},
                                           {Role::Secondary, Role::Selection},
                                           {Role::Secondary, Role::History},
                                           {Role::CaptionText, Role::Caption},
                                           {Role::AccentText, Role::Accent},
                                           {Role::Accent, Role::Panel},
                                           {Role::Accent, Role::Selection},
                                           {Role::Error, Role::Panel},
                                           {Role::Error, Role::Selection},
                                           {Role::Text, Role::Book},
                                           {Role::ChartText, Role::ChartHalo},
                                           {Role::ChartText, Role::Sea},
                                           {Role::ChartText, Role::Land},
                                           {Role::ChartSecondary, Role::Sea},
                                           {Role::ChartSecondary, Role::Land},
                                           {Role::ChartHalo, Role::ChartAccent},
                                           {Role::ChartSecondary, Role::ChartHalo}};
    for (const auto& [text, ground] : pairs) {
        EXPECT_GE(Contrast(Colour(text), Colour(ground)), 4.5)
            << Colour(text).name().toStdString() << " on " << Colour(ground).name().toStdString();
    }
}

TEST_P(EveryTheme, SignsStandOutFromTheirGround) {
    for (const Role sign : {Role::Plan, Role::Underway, Role::Finished, Role::Warning}) {
        for (const Role ground : {Role::Panel, Role::Selection}) {
            EXPECT_GE(Contrast(Colour(sign), Colour(ground)), 3.0);
        }
    }
}

TEST_P(EveryTheme, ColoursOfASeriesStandOutFromTheChartAndFromEachOther) {
    std::set<std::uint32_t> seen;
    for (std::size_t i = 0; i < kTints; ++i) {
        const std::uint32_t tint = TintOf(i, GetParam());
        EXPECT_TRUE(seen.insert(tint).second) << i;
        EXPECT_EQ(TintOf(i + kTints, GetParam()), tint) << "they come again";
        for (const Role ground : {Role::Sea, Role::Land}) {
            EXPECT_GE(Contrast(QColor(tint), Colour(ground)), 3.0) << i;
        }
    }
}

TEST_P(EveryTheme, TheStyleSheetHasNoGaps) {
    EXPECT_FALSE(StyleSheet().contains(u'@'));
}

INSTANTIATE_TEST_SUITE_P(Shipped, EveryTheme, ::testing::Values(Theme::Light, Theme::Dark, Theme::Night));

TEST(Icons, EveryIconDrawsSomething) {
    for (const std::string& name : IconNames()) {
        QImage image(kIconSize, kIconSize, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        PaintIcon(painter, image.rect(), name, Qt::black);
        painter.end();
        bool drawn = false;
        for (int y = 0; y < kIconSize; ++y) {
            for (int x = 0; x < kIconSize; ++x) {
                drawn = drawn || qAlpha(image.pixel(x, y)) > 128;
            }
        }
        EXPECT_TRUE(drawn) << name;
    }
    EXPECT_FALSE(HasIcon("no such icon"));
}

TEST(Theme, AnUnknownNameIsTheLightOne) {
    EXPECT_EQ(ThemeNamed("dark"), Theme::Dark);
    EXPECT_EQ(ThemeNamed("night"), Theme::Night);
    EXPECT_EQ(ThemeNamed("else"), Theme::Light);
    EXPECT_FALSE(FindTheme("else"));
}

TEST(Theme, StepsThroughAllAndBack) {
    EXPECT_EQ(NextTheme(Theme::Light), Theme::Dark);
    EXPECT_EQ(NextTheme(Theme::Dark), Theme::Night);
    EXPECT_EQ(NextTheme(Theme::Night), Theme::Light);
    for (const Theme theme : kThemes) {
        EXPECT_EQ(FindTheme(ThemeName(theme)), theme);
    }
}

TEST(Coloured, TakesTheLongestNameAndLeavesUnknownOnes) {
    EXPECT_EQ(Coloured("a @captionText b @caption; @nothing @"), "a #17222b b #89a5b9; @nothing @");
}

TEST(Icons, AFileIsADrawingTooAndAnUnknownNameGivesNone) {
    EXPECT_TRUE(MakeIcon("no such icon").isNull());
    QTemporaryFile file("XXXXXX.svg");
    ASSERT_TRUE(file.open());
    file.write(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 2 2"><rect width="2" height="2" fill="currentColor"/></svg>)");
    file.close();
    const QIcon icon = MakeIcon(file.fileName().toStdString(), {20, 40});
    EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{20, 20}, {40, 40}}));
    const QImage drawn = icon.pixmap(20, 20).toImage();
    EXPECT_EQ(drawn.pixelColor(10, 10), Colour(Role::Text));
    EXPECT_EQ(icon.pixmap(20, 20, QIcon::Disabled).toImage().pixelColor(10, 10), Colour(Role::Disabled));
}

TEST(Icons, AreDrawnAnewForEachScaleOfTheScreen) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const QPixmap made = MakeIcon("save").pixmap(QSize(kIconSize, kIconSize), scale);
        EXPECT_EQ(made.width(), qRound(kIconSize * scale)) << scale;
        QImage drawn(made.size(), QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        PaintIcon(painter, drawn.rect(), "save", Colour(Role::Text));
        painter.end();
        EXPECT_EQ(made.toImage().convertToFormat(drawn.format()), drawn) << scale;
    }
}

TEST(ThemeWatch, TellsOfAPublishedThemeWhenThePaletteChanges) {
    int told = 0;
    const ThemeWatch watch([&told] { ++told; });
    EXPECT_EQ(told, 0);
    ThemeWatch::Publish(Theme::Night);
    QApplication::setPalette(QPalette(Colour(Role::Window)));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(qApp->property("tarvik.theme").toString(), "night");
    SetTheme(Theme::Light);
    const ThemeWatch late([] {});
    EXPECT_EQ(CurrentTheme(), Theme::Night) << "a window made later takes the theme, too";
    SetTheme(Theme::Light);
}

}  // namespace Tarvik::Skin
