// SPDX-License-Identifier: MIT
#include "seaplan/views/vessel/VesselBox.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/language/LoadText.h"
#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/vessel/VoyShipEditDlg.h"
#include "seaplan/views/editors/OutsidePress.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/editors/RowField.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kListBelowTop = 22;

}  // namespace

VesselBox::VesselBox(QWidget* tree) : QObject(tree), box_(new RowField(tree)) {
    box_->setObjectName(QStringLiteral("vesselEditor"));
    box_->hide();
    box_->installEventFilter(this);
    // A window of its own, as it may be higher than what is left of the tree; it never takes the keyboard.
    list_ = new QListWidget(tree);
    list_->setWindowFlags(Qt::ToolTip);
    list_->setAttribute(Qt::WA_ShowWithoutActivating);
    list_->setObjectName(QStringLiteral("vesselList"));
    list_->setFocusPolicy(Qt::NoFocus);
    list_->setProperty("dense", true);
    Skin::SkinWindow(*list_, Skin::ControlClass::ListView, "info.portlistctrl");
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(box_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (panel_ != nullptr) {
            panel_->OnTyped(text.toStdString());
        }
    });
    connect(list_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        if (panel_ != nullptr) {
            panel_->OnChosen(list_->row(item));
        }
    });
    new OutsidePress(
        this, [this](const QWidget& widget) { return BelongsTo(*box_, widget) || BelongsTo(*list_, widget); },
        [this] {
            if (panel_ != nullptr) {
                panel_->OnLeft();
            }
        },
        [this] { OnReleased(); }, Qt::LeftButton);
    ApplySkin();
}

void VesselBox::ApplyTexts() {
    const QString name = QString::fromStdString(Text(TextIds::IDS_VIEW_VESSELEDITOR));
    Skin::Describe(box_, name);
    list_->setAccessibleName(name);
}

void VesselBox::ApplySkin() {
    list_->setStyleSheet(Skin::StyleSheet());
}

void VesselBox::ShowBox(const Rect& inTree, const std::string& text, std::size_t limit) {
    box_->setGeometry(inTree.left, inTree.top, inTree.right - inTree.left, inTree.bottom - inTree.top);
    PutWhole(*box_, text, limit);
    box_->show();
    box_->raise();
    box_->setFocus();
    box_->end(false);
}

void VesselBox::HideBox() {
    if (box_->isHidden()) {
        return;
    }
    const bool focused = box_->hasFocus();
    box_->hide();
    if (focused && box_->parentWidget()->parentWidget() != nullptr) {
        box_->parentWidget()->parentWidget()->setFocus();
    }
}

void VesselBox::ShowList(const std::vector<std::string>& names, const VesselListSize& size) {
    list_->clear();
    for (const std::string& name : names) {
        auto* item = new QListWidgetItem(QString::fromStdString(name), list_);
        item->setSizeHint({size.columnWidth, 18});
        item->setToolTip(item->text());
    }
    list_->setFixedSize(size.width, size.height);
    list_->move(box_->mapToGlobal(QPoint(0, kListBelowTop)));
    list_->setCurrentRow(0);
    list_->scrollToTop();
    list_->show();
}

void VesselBox::SelectRow(int row) {
    list_->setCurrentRow(row);
}

void VesselBox::HideList() {
    list_->hide();
}

void VesselBox::Later(std::function<void()> act) {
    QTimer::singleShot(0, this, std::move(act));
}

void VesselBox::OnReleased() {
    if (panel_ != nullptr && panel_->ClosedByPress()) {
        // The release may still become a click, which is told after it has been delivered.
        QTimer::singleShot(0, this, [this] { panel_->OnReleased(); });
    }
}

bool VesselBox::eventFilter(QObject* watched, QEvent* event) {
    if (panel_ == nullptr || watched != box_) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        panel_->OnBoxPressed();
    }
    return event->type() == QEvent::KeyPress && panel_->OnKey(PressOf(*static_cast<QKeyEvent*>(event)));
}

}  // namespace Tarvik::Seaplan
