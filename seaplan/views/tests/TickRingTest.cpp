// SPDX-License-Identifier: MIT
/// Lines of a popup that are not ticked show where a tick would stand, in every look.
#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>

#include <tarvik/skin/Palette.h>

#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/tests/ViewsFixture.h"

namespace Tarvik::Seaplan {

namespace {

/// The window's colours as the client gives them to the window system.
QPalette PaletteInForce() {
    QPalette palette;
    palette.setColor(QPalette::Window, Skin::Colour(Skin::Role::Window));
    palette.setColor(QPalette::Base, Skin::Colour(Skin::Role::Panel));
    palette.setColor(QPalette::Button, Skin::Colour(Skin::Role::Window));
    palette.setColor(QPalette::Text, Skin::Colour(Skin::Role::Text));
    return palette;
}

class TickRingTest : public ViewsFixture {
  protected:
    const QPalette before = QApplication::palette();
    ~TickRingTest() override { QApplication::setPalette(before); }

    void Wear(Skin::Theme theme) {
        Skin::SetTheme(theme);
        QApplication::setPalette(PaletteInForce());
        Panel().ApplySkin();
        QApplication::processEvents();
    }
    /// The greatest difference of lightness between what is drawn left of a line's text and the ground there.
    static int Drawn(const QAbstractButton& line) {
        constexpr int kBeforeText = 16;
        const QImage image = const_cast<QAbstractButton&>(line).grab().toImage();
        const int ground = qGray(image.pixel(0, 0));
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < std::min(kBeforeText, image.width()); ++x) {
                most = std::max(most, std::abs(qGray(image.pixel(x, y)) - ground));
            }
        }
        return most;
    }
};

/// What a person tells from its ground at night.
constexpr int kSeen = 48;

}  // namespace

TEST_F(TickRingTest, OfRadiosAndChecksInEveryLook) {
    Toggle();
    QTest::keyClick(&Panel(), Qt::Key_F, Qt::ControlModifier);
    for (const Skin::Theme theme : Skin::kThemes) {
        Wear(theme);
        Press(Panel(), "searchFilter");
        EXPECT_GE(Drawn(*Find<QRadioButton>(Panel(), "findUnderWay")), kSeen) << static_cast<int>(theme);
        EXPECT_GE(Drawn(*Find<QRadioButton>(Panel(), "findAll")), kSeen) << static_cast<int>(theme);
        QApplication::activePopupWidget()->close();
        Press(Panel(), "filterButton");
        EXPECT_GE(Drawn(*Find<QCheckBox>(Panel(), "showDeletedCheck")), kSeen) << static_cast<int>(theme);
        QApplication::activePopupWidget()->close();
    }
}

}  // namespace Tarvik::Seaplan
