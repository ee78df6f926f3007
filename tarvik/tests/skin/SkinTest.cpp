// SPDX-License-Identifier: MIT
#include <QImage>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>

#include "tarvik/src/skin/icons/IconTexts.h"

namespace Tarvik::Seaplan {

namespace {

double luminance(const QColor& colour) {
    const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

class EveryTheme : public ::testing::TestWithParam<Theme> {
  protected:
    EveryTheme() { SetTheme(GetParam()); }
    ~EveryTheme() override { SetTheme(Theme::Light); }
};

}  // namespace

TEST_P(EveryTheme, TextStandsOutFromItsGround) {
    const SkinPalette& p = Skin();
    const std::pair<QColor, QColor> pairs[] = {
        {p.text, p.window},       {p.text, p.panel},          {p.text, p.list},
        {p.text, p.selection},    {p.text, p.history},        {p.text, p.highlight},
        {p.secondary, p.window},  {p.secondary, p.panel},     {p.secondary, p.selection},
        {p.secondary, p.history}, {p.captionText, p.caption}, {p.accentText, p.accent},
        {p.accent, p.panel},      {p.accent, p.selection},    {p.error, p.panel},
        {p.error, p.selection}};
    for (const auto& [text, ground] : pairs) {
        EXPECT_GE(contrast(text, ground), 4.5)
            << text.name().toStdString() << " on " << ground.name().toStdString();
    }
}

TEST_P(EveryTheme, SignsStandOutFromTheirGround) {
    const SkinPalette& p = Skin();
    for (const QColor& sign : {p.plan, p.underway, p.finished, p.warning}) {
        for (const QColor& ground : {p.panel, p.selection}) {
            EXPECT_GE(contrast(sign, ground), 3.0);
        }
    }
}

TEST_P(EveryTheme, TheStyleSheetHasNoGaps) {
    EXPECT_FALSE(SkinStyleSheet().contains(u'@'));
}

INSTANTIATE_TEST_SUITE_P(Shipped, EveryTheme, ::testing::Values(Theme::Light, Theme::Dark, Theme::Night));

TEST(Icons, EveryIconDrawsSomething) {
    for (const auto& [name, text] : IconTexts()) {
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
}

}  // namespace Tarvik::Seaplan
