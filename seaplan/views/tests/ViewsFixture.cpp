// SPDX-License-Identifier: MIT
#include "seaplan/views/tests/ViewsFixture.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QTest>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/preview/SampleVoyages.h"

namespace Tarvik::Seaplan {

ViewsFixture::ViewsFixture() : ports(SamplePorts()) {
    AddSampleVoyages(desk);
}

ViewsFixture::~ViewsFixture() {
    Skin::SetTheme(Skin::Theme::Light);
    qApp->setProperty("tarvik.theme", QVariant());
}

void ViewsFixture::Toggle() {
    const Interface::PanelShow show{3, 0};
    Interface::Raise(Interface::Bus::ShowPanel, &show);
    QApplication::processEvents();
}

VoyageTreeView& ViewsFixture::Tree() {
    return Panel().Tree();
}

TreeRows& ViewsFixture::Rows() {
    return Tree().Rows();
}

TreeRow ViewsFixture::RowOf(const std::string& text) {
    for (TreeRow row = Rows().GetRootItem(); row != kNoRow; row = Rows().GetNextSiblingItem(row)) {
        if (Rows().GetItemText(row) == text) {
            return row;
        }
        for (TreeRow child = Rows().GetChildItem(row); child != kNoRow;
             child = Rows().GetNextSiblingItem(child)) {
            if (Rows().GetItemText(child) == text) {
                return child;
            }
        }
    }
    return kNoRow;
}

void ViewsFixture::ClickPart(const std::string& text, const std::string& name) {
    for (const SubItem& part : Tree().PartsOf(RowOf(text))) {
        if (part.name != name) {
            continue;
        }
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, part.rect.center());
        QApplication::processEvents();
        return;
    }
    FAIL() << text << " shows no " << name;
}

bool ViewsFixture::Shows(const std::string& text, const std::string& name) {
    for (const SubItem& part : Tree().PartsOf(RowOf(text))) {
        if (part.name == name) {
            return true;
        }
    }
    return false;
}

void ViewsFixture::PressAndShake(QWidget& widget, const QPoint& point) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, point);
    for (const QPoint& step : {QPoint(1, 0), QPoint(2, -1)}) {
        const QPointF place = point + step;
        QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&widget, &move);
    }
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, point);
    QApplication::processEvents();
}

void ViewsFixture::Press(QWidget& window, const char* button) {
    auto* found = Find<QAbstractButton>(window, button);
    ASSERT_NE(found, nullptr) << button;
    QTest::mouseClick(found, Qt::LeftButton);
    QApplication::processEvents();
}

void ViewsFixture::OpenVoyage(const std::string& name) {
    Toggle();
    ClickRow("Container 2024");
    ClickRow(name);
}

void ViewsFixture::OpenPortCalls(const std::string& name) {
    OpenVoyage(name);
    ClickPart(name, "Voyage.child.svr4");
}

}  // namespace Tarvik::Seaplan
