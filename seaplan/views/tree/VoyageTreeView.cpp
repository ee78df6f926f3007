// SPDX-License-Identifier: MIT
#include "seaplan/views/tree/VoyageTreeView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/TreeTexts.h"
#include "seaplan/panels/tree/ItemNames.h"
#include "seaplan/panels/tree/TreeKeys.h"
#include "seaplan/views/editors/ChoiceBox.h"
#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/tree/RenameField.h"
#include "seaplan/views/tree/RowModel.h"
#include "seaplan/views/tree/TreeReach.h"
#include "seaplan/views/tree/VoyageTreeWidget.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

VoyageTreeView::VoyageTreeView(QWidget* parent)
    : QTreeView(parent),
      rows_(std::make_unique<VoyageTreeWidget>(*this)),
      model_(new RowModel(this, *rows_)) {
    setObjectName(QStringLiteral("voyageTree"));
    setModel(model_);
    setItemDelegate(new RowDelegate(this));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setItemsExpandable(false);
    setUniformRowHeights(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    rename_ = new RenameField(viewport());
    sortPopup_ = new ChoiceBox(
        this, ChoiceBox::Kind::Radios, nullptr,
        {{TextIds::IDS_VOY_SORTBYNAME, "sortByName"}, {TextIds::IDS_VOY_SORTBYDATE, "sortByDate"}});
}

VoyageTreeView::~VoyageTreeView() = default;

void VoyageTreeView::SetReports(Reports reports) {
    reports_ = std::move(reports);
    rename_->SetReports(
        {reports_.renameTyped, reports_.renameKey, reports_.renameDone, [this] { setFocus(); }});
}

void VoyageTreeView::ApplyTexts() {
    setAccessibleName(ViewText(TextIds::IDS_VIEW_TREE));
    Skin::Describe(rename_, ViewText(TextIds::IDS_VIEW_RENAMEEDITOR));
    emptyHint_ = ViewText(TextIds::IDS_VIEW_EMPTYTREE);
    viewport()->update();
}

TreeRows& VoyageTreeView::Rows() {
    return *rows_;
}

TreeWidget& VoyageTreeView::Widget() {
    return *rows_;
}

TextBox& VoyageTreeView::RenameBox() {
    return *rename_;
}

ChoiceBox& VoyageTreeView::SortPopup() {
    return *sortPopup_;
}

TreeRow VoyageTreeView::RowAt(const QPoint& point) const {
    return RowModel::RowOf(indexAt(point));
}

std::vector<SubItem> VoyageTreeView::PartsOf(TreeRow row) const {
    const TreeRowState* state = rows_->Row(row);
    if (state == nullptr) {
        return {};
    }
    const Rect place = rows_->GetItemRect(row);
    const QRect rect(place.left, place.top, place.right - place.left, place.bottom - place.top);
    return LayOut(*state, rect, rows_->Selected() == row);
}

std::vector<SubItem> VoyageTreeView::LayOut(const TreeRowState& state, const QRect& rect,
                                            bool selected) const {
    QFont plain = font();
    plain.setBold(state.parent == kNoRow);
    const auto width = [&](const QString& text, SubItemKind kind) {
        return QFontMetrics(PartFont(plain, kind)).horizontalAdvance(text) + 2;
    };
    return LayoutRow(state, rect, selected, width,
                     [this](const std::string& item) { return HasCommand(item); });
}

std::vector<SubItem> VoyageTreeView::ItemsInReach() const {
    const TreeRow row = rows_->Selected();
    return IsOnScreen(*rows_, row) ? EnabledOf(PartsOf(row)) : std::vector<SubItem>();
}

std::string VoyageTreeView::FocusedPart() const {
    const auto parts = ItemsInReach();
    return focusPart_ < 0 || focusPart_ >= static_cast<int>(parts.size()) ? std::string()
                                                                          : parts[focusPart_].name;
}

void VoyageTreeView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    pressed_.row = RowAt(event->pos());
    pressed_.point = event->pos();
    const auto parts = PartsOf(pressed_.row);
    const SubItem* part = SubItemAt(parts, event->pos());
    pressed_.item = part == nullptr ? std::string() : part->name;
    pressed_.beside = !HasCommand(pressed_.item);
    if (reports_.pressed) {
        reports_.pressed(pressed_.row, part == nullptr);
    }
}

void VoyageTreeView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || pressed_.item.empty()) {
        return;
    }
    const TreeRow row = pressed_.row;
    const std::string item = std::exchange(pressed_.item, {});
    // The press may have changed heights, so that another row lies under a pointer that has not moved.
    const bool still = (event->pos() - pressed_.point).manhattanLength() < QApplication::startDragDistance();
    if (rows_->Row(row) != nullptr && (still || RowAt(event->pos()) == row) && HasCommand(item) &&
        reports_.clicked) {
        reports_.clicked(row, item);
    }
}

/// Two presses on a voyage beside its items open it, as Enter does. The first one may have changed heights,
/// so that another row or an item lies under the pointer now: the row that was pressed first is meant.
void VoyageTreeView::mouseDoubleClickEvent(QMouseEvent* event) {
    const TreeRow row = pressed_.row;
    const bool opens = event->button() == Qt::LeftButton && pressed_.beside && reports_.key &&
                       rows_->GetItemStyle(row) == kVoyageStyle;
    if (!opens) {
        mousePressEvent(event);
        return;
    }
    pressed_.item.clear();
    reports_.key({Key::Enter}, row, {});
}

void VoyageTreeView::keyPressEvent(QKeyEvent* event) {
    const TreeRow current = RowModel::RowOf(currentIndex());
    const std::string item = FocusedPart();
    if (!reports_.key || !reports_.key(PressOf(*event), current, item)) {
        event->ignore();
    } else if (!item.empty() && !FocusedPart().empty() && FocusedPart() != item) {
        // The item that stands there now says the other state.
        TellFocus(*this);
    }
}

void VoyageTreeView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const TreeRow current = RowModel::RowOf(currentIndex());
    const TreeRow row = !byKey ? RowAt(event->pos()) : reports_.menuKey ? reports_.menuKey(current) : current;
    // The menu offers what the row has once it was pressed: its port calls may not have been fetched yet.
    if (!byKey && reports_.pressed) {
        reports_.pressed(row, false);
    }
    const TreeRowState* state = rows_->Row(row);
    if (state == nullptr) {
        return;
    }
    QMenu* menu = MakeRowMenu(this, LayOut(*state, {0, 0, viewport()->width(), 0}, true),
                              [this, row](const std::string& item) {
                                  if (reports_.clicked) {
                                      reports_.clicked(row, item);
                                  }
                              });
    AddToMenu(menu, row);
    menu->popup(byKey ? viewport()->mapToGlobal(visualRect(rows_->ItemOf(row)->index()).center())
                      : event->globalPos());
}

/// What has no image in the row.
void VoyageTreeView::AddToMenu(QMenu* menu, TreeRow row) {
    menu->addSeparator();
    if (rows_->GetItemStyle(row) == kVoyageStyle && HasCommand(Item::kDuplicate)) {
        menu->addAction(ViewText(TextIds::IDS_VIEW_DUPLICATE), this,
                        [this, row] { reports_.clicked(row, Item::kDuplicate); });
    }
    if (reports_.undo) {
        menu->addAction(ViewText(TextIds::IDS_VIEW_TREEUNDO), this, reports_.undo);
    }
}

bool VoyageTreeView::focusNextPrevChild(bool next) {
    // While a box is up the keyboard only goes away for a while; its item keeps it.
    if (!isEnabled()) {
        return QTreeView::focusNextPrevChild(next);
    }
    const int count = static_cast<int>(ItemsInReach().size());
    const int target = focusPart_ + (next ? 1 : -1);
    if (!hasFocus() || target < -1 || target >= count) {
        focusPart_ = -1;
        viewport()->update();
        return QTreeView::focusNextPrevChild(next);
    }
    focusPart_ = target;
    viewport()->update();
    TellFocus(*this);
    return true;
}

void VoyageTreeView::Relayout() {
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void VoyageTreeView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(Skin::Colour(Skin::Role::Secondary));
    painter.drawText(viewport()->rect().adjusted(16, 24, -16, -16),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, emptyHint_);
}

bool VoyageTreeView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QTreeView::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto parts = PartsOf(RowAt(help->pos()));
    const SubItem* part = TipAt(parts, help->pos());
    if (part == nullptr) {
        QToolTip::hideText();
        return true;
    }
    const QString why = part->enabled ? QString() : QStringLiteral(": ") + ViewText(TextIds::IDS_VIEW_NOTYET);
    QToolTip::showText(help->globalPos(), part->toolTip + why, viewport(), part->rect);
    return true;
}

void VoyageTreeView::ApplySkin() {
    sortPopup_->ApplySkin();
    viewport()->update();
}

}  // namespace Tarvik::Seaplan
