// SPDX-License-Identifier: MIT
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <tarvik/skin/Colours.h>

#include "host/plugins/seamap/widget/ImageStore.h"

namespace Tarvik::Seamap {

namespace {

class ImageStoreTest : public ::testing::Test {
  protected:
    std::string File(const char* name) const { return folder_.filePath(name).toStdString(); }
    std::string Png(int width, int height) const {
        QImage image(width, height, QImage::Format_ARGB32);
        image.fill(QColor(0, 200, 0));
        image.save(folder_.filePath("ship.png"));
        return File("ship.png");
    }
    QColor MiddleOf(const std::string& path) {
        const QImage image = store_.Picture("ship", path, 1).toImage();
        return image.pixelColor(image.width() / 2, image.height() / 2);
    }
    QTemporaryDir folder_;
    ImageStore store_;
};

TEST_F(ImageStoreTest, SmallPicturesKeepTheirSizeAndLargeOnesAreScaled) {
    const std::string small = Png(20, 10);
    EXPECT_EQ(store_.HalfSize("small", small, 1).x, 10);
    EXPECT_EQ(store_.HalfSize("small", small, 1).y, 5);
    const std::string large = Png(400, 200);
    EXPECT_EQ(store_.HalfSize("large", large, 1).x, ImageStore::kLargestSide / 2);
    EXPECT_EQ(store_.HalfSize("large", large, 1).y, ImageStore::kLargestSide / 4);
    EXPECT_EQ(store_.Picture("large", large, 2).width(), 2 * ImageStore::kLargestSide);
}

TEST_F(ImageStoreTest, VectorPicturesAreDrawnAtTheirSize) {
    QFile svg(folder_.filePath("ship.svg"));
    ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
    svg.write(
        "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='50'>"
        "<rect width='100' height='50' fill='#ff0000'/></svg>");
    svg.close();
    const std::string path = File("ship.svg");
    EXPECT_EQ(store_.HalfSize("ship", path, 1).x, ImageStore::kVectorSide / 2);
    EXPECT_EQ(MiddleOf(path), QColor(255, 0, 0));
}

TEST_F(ImageStoreTest, AMissingOrForeignFileHasAStandIn) {
    QFile foreign(folder_.filePath("text.png"));
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write("no picture");
    foreign.close();
    for (const std::string& path :
         {std::string(), File("missing.png"), File("missing.svg"), File("text.png")}) {
        EXPECT_GT(store_.HalfSize("ship", path, 1).x, 5) << path;
        EXPECT_EQ(MiddleOf(path), QColor(Skin::ColourOf(Skin::Role::Underway, Skin::Theme::Light))) << path;
    }
}

TEST_F(ImageStoreTest, ANewPathIsReadAnew) {
    EXPECT_NE(MiddleOf(File("missing.png")), QColor(0, 200, 0));
    EXPECT_EQ(MiddleOf(Png(20, 20)), QColor(0, 200, 0));
}

TEST_F(ImageStoreTest, ByNightPicturesAreRed) {
    const std::string path = Png(20, 20);
    store_.SetPalette(ChartPalette::Of(ChartPalette::Theme::Night));
    const QColor night = MiddleOf(path);
    EXPECT_GT(night.red(), 2 * night.green());
    store_.SetPalette(ChartPalette::Of(ChartPalette::Theme::Light));
    EXPECT_EQ(MiddleOf(path), QColor(0, 200, 0));
}

}  // namespace
}  // namespace Tarvik::Seamap
