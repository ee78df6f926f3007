// SPDX-License-Identifier: MIT
/// Rows of any list: texts, links and images with their names, tips and places.
#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "seaplan/views/rows/RowParts.h"

namespace Tarvik::Seaplan {

namespace {

/// A remark's row: its text and two images, the second of which has no command yet.
std::vector<SubItem> RemarkRow() {
    const TextWidth tenEach = [](const QString& text, SubItemKind) {
        return static_cast<int>(text.size()) * 10;
    };
    RowParts row(tenEach);
    const int end =
        row.Write({.name = "text", .kind = SubItemKind::Text, .text = "bunkers"}, {5, 0, 30, 200});
    row.Write({.name = "more", .kind = SubItemKind::Link, .text = "and much more"}, {end, 0, 30, 200});
    row.Images({{"edit", "rename", "Edit the remark"}, {"remove", "delete", "Delete it", false}}, {210, 3});
    return row.Take();
}

}  // namespace

TEST(RowParts, TextsHaveTheirWidthAndEndAtTheirBand) {
    const auto row = RemarkRow();
    EXPECT_EQ(row[0].rect, QRect(5, 0, 70, 30));
    EXPECT_EQ(row[1].rect, QRect(75, 0, 125, 30)) << "cut at the right end";
    EXPECT_FALSE(row[0].clickable);
    EXPECT_TRUE(row[1].clickable);
}

TEST(RowParts, ImagesStandSideBySideByName) {
    const auto row = RemarkRow();
    EXPECT_EQ(row[2].rect, QRect(210, 3, 24, 24));
    EXPECT_EQ(row[3].rect, QRect(238, 3, 24, 24));
    const SubItem* hit = SubItemAt(row, {240, 10});
    ASSERT_NE(hit, nullptr);
    EXPECT_EQ(hit->name, "remove");
    EXPECT_FALSE(hit->enabled);
    EXPECT_EQ(SubItemAt(row, {236, 10}), nullptr) << "between two images";
    EXPECT_EQ(SubItemAt(row, {10, 10}), nullptr) << "a text";
}

TEST(RowParts, ATipIsShownForADisabledImageToo) {
    const auto row = RemarkRow();
    ASSERT_NE(TipAt(row, {240, 10}), nullptr);
    EXPECT_EQ(TipAt(row, {240, 10})->toolTip, "Delete it");
    EXPECT_EQ(TipAt(row, {10, 10}), nullptr);
}

TEST(RowParts, OnlyPartsWithACommandCanHaveTheKeyboard) {
    const auto parts = EnabledOf(RemarkRow());
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[0].name, "more");
    EXPECT_EQ(parts[1].name, "edit");
}

TEST(RowParts, TheMenuOffersWhatHasATip) {
    QWidget parent;
    std::string clicked;
    QMenu* menu = MakeRowMenu(&parent, RemarkRow(), [&clicked](const std::string& name) { clicked = name; });
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_TRUE(menu->actions()[0]->isEnabled());
    EXPECT_FALSE(menu->actions()[1]->isEnabled());
    menu->actions()[0]->trigger();
    EXPECT_EQ(clicked, "edit");
}

TEST(RowParts, AnImageWithoutACommandIsDrawnDim) {
    const auto row = RemarkRow();
    const auto drawn = [&row](bool enabled) {
        QImage image(300, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        SubItem part = row[2];
        part.enabled = enabled;
        PaintPart(painter, part, {});
        return image;
    };
    EXPECT_NE(drawn(true), drawn(false));
}

}  // namespace Tarvik::Seaplan
