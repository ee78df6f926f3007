// SPDX-License-Identifier: MIT
/// Texts with a rim: where the rim lies, and that it goes with the pixels of the screen.
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/HaloTexts.h"

namespace Tarvik::Seamap {

namespace {

class HaloTextsTest : public ::testing::Test {
  protected:
    /// A red text with a green rim on blue.
    static QImage Draw(qreal ratio) {
        QImage picture(QSize(60, 40) * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::blue);
        QPainter painter(&picture);
        QFont font;
        font.setPixelSize(20);
        painter.setFont(font);
        HaloTexts().Draw(painter, {20, 30}, "H", Qt::red, Qt::green);
        return picture;
    }
    static bool IsInk(QRgb pixel) { return qRed(pixel) > 200; }
    /// The rim lets some of the ground through.
    static bool IsRim(QRgb pixel) { return qGreen(pixel) > 180 && qRed(pixel) < 60 && qBlue(pixel) < 80; }
    static bool IsGround(QRgb pixel) { return pixel == qRgb(0, 0, 255); }
    /// What is left of the text's first ink in the row through its middle, pixel by pixel from it outwards.
    static std::vector<QRgb> Outwards(const QImage& picture) {
        const int row = picture.height() * 24 / 40;
        int x = 0;
        while (x < picture.width() && !IsInk(picture.pixel(x, row))) {
            ++x;
        }
        std::vector<QRgb> found;
        while (x-- > 0) {
            found.push_back(picture.pixel(x, row));
        }
        return found;
    }
};

TEST_F(HaloTextsTest, ARimOfOneAndAHalfPixelsGoesAroundTheInk) {
    const std::vector<QRgb> left = Outwards(Draw(1));
    ASSERT_GT(left.size(), 6U) << "ink was found";
    EXPECT_TRUE(IsRim(left[0]) || IsRim(left[1])) << std::hex << left[0] << " " << left[1];
    EXPECT_FALSE(IsGround(left[1]));
    EXPECT_TRUE(IsGround(left[4])) << std::hex << left[4];
}

TEST_F(HaloTextsTest, OnAFineScreenItHasAsManyMorePixels) {
    const std::vector<QRgb> left = Outwards(Draw(2));
    ASSERT_GT(left.size(), 9U);
    EXPECT_TRUE(IsRim(left[1]) && IsRim(left[2])) << std::hex << left[1] << " " << left[2];
    EXPECT_TRUE(IsGround(left[6])) << std::hex << left[6];
}

TEST_F(HaloTextsTest, ATextThatIsDrawnAgainIsTheSame) {
    HaloTexts texts;
    QImage first(80, 40, QImage::Format_RGB32), second(80, 40, QImage::Format_RGB32);
    for (QImage* picture : {&first, &second}) {
        picture->fill(Qt::gray);
        QPainter painter(picture);
        texts.Draw(painter, {10, 20}, QString::fromUtf8("海 Ag"), Qt::black, Qt::white);
    }
    EXPECT_EQ(first, second);
    EXPECT_NE(first.pixel(12, 15), 0U);
}

}  // namespace
}  // namespace Tarvik::Seamap
