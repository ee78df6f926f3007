// SPDX-License-Identifier: MIT
#include "seaplan/views/table/PanelTable.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "seaplan/views/editors/QtKeys.h"
#include "seaplan/views/table/TableModel.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kMostTableWidth = 1200;
constexpr int kBesideTable =
    60;  ///< pixels of a screen's width that are left to the edges of a table's window
constexpr int kFewestLines = 4;  ///< of a table whose window is made small

int HeightOf(int lines) {
    return kTableHeader + lines * kTableRow + 4;
}

}  // namespace

void SetUpRows(QAbstractItemView& rows) {
    rows.setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows.setSelectionMode(QAbstractItemView::SingleSelection);
    rows.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    rows.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

PanelTable::PanelTable(QWidget* parent, const char* name, int leastLines, Choice choice)
    : QTableView(parent), lines_(leastLines) {
    setModel(&model_);
    setItemDelegate(new TableDelegate(this));
    setMouseTracking(true);
    setMinimumHeight(HeightOf(std::min(leastLines, kFewestLines)));
    setObjectName(QString::fromLatin1(name));
    SetUpRows(*this);
    if (choice == Choice::SeveralRows) {
        setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kTableRow);
    verticalHeader()->setDefaultSectionSize(kTableRow);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(kTableHeader);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(20);
    horizontalHeader()->setStretchLastSection(true);
    QObject::connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { TellLeft(); });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this] { TellLeft(); });
}

void PanelTable::TellLeft() {
    if (reports_.left && !setting_) {
        reports_.left();
    }
}

void PanelTable::ShowColumns(std::vector<TableColumn> columns) {
    model_.ShowColumns(std::move(columns));
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (std::size_t column = 0; column < model_.Columns().size(); ++column) {
        const TableColumn& shown = model_.Columns()[column];
        setColumnHidden(static_cast<int>(column), shown.hidden);
        setColumnWidth(static_cast<int>(column), shown.width);
        total += shown.hidden ? 0 : shown.width;
    }
    // Columns that a person made very wide are scrolled, and all on a small screen.
    const int most = std::min(kMostTableWidth, screen()->availableGeometry().width() - kBesideTable);
    setMinimumWidth(std::min(total + 4, most));
    setHorizontalScrollBarPolicy(total + 4 > most ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

QSize PanelTable::sizeHint() const {
    return {minimumWidth(), HeightOf(lines_)};
}

bool PanelTable::IsCell(const QModelIndex& index) const {
    return model_.Columns()[static_cast<std::size_t>(index.column())].cells;
}

std::string PanelTable::ImageAt(const QModelIndex& index, const QPoint& point) const {
    return TableDelegate::ImageAt(model_.CellAt(index).images, visualRect(index), point);
}

QString PanelTable::TipOf(const QModelIndex& cell) const {
    if (!cell.isValid()) {
        return {};
    }
    const QString told = cell.data(Qt::ToolTipRole).toString();
    const TableCell shown = model_.CellAt(cell);
    const QString text = shown.text.trimmed();
    if (!TableDelegate::IsCut(shown, font(), visualRect(cell))) {
        return told == text ? QString() : told;
    }
    return told.isEmpty() || told.startsWith(text) ? told : text + u'\n' + told;
}

QRect PanelTable::EditorRect(int row, int column) const {
    QRect rect = visualRect(model()->index(row, column));
    if (rect.bottom() >= viewport()->height()) {
        rect.translate(0, -kTableRow);
    }
    return rect;
}

void PanelTable::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid()) {
        return TellLeft();
    }
    if (ChooseByMouse(index, event->modifiers())) {
        return;
    }
    setting_ = true;
    setCurrentIndex(index);
    setting_ = false;
    const std::string image = ImageAt(index, event->pos());
    if (!image.empty()) {
        if (reports_.imageClicked) {
            reports_.imageClicked(index.row(), image);
        }
    } else if (!IsCell(index)) {
        TellLeft();
    } else if (reports_.cellClicked) {
        reports_.cellClicked(index.row(), index.column());
    }
}

bool PanelTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        BelongsToTable(PressOf(*static_cast<QKeyEvent*>(event)))) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void PanelTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        const QString rows = RowsAsText(model_, ChosenRows());
        if (!rows.isEmpty()) {
            QApplication::clipboard()->setText(rows);
        }
        return;
    }
    const QModelIndex index = currentIndex();
    if (index.isValid() && reports_.key && reports_.key(PressOf(*event), index.row(), index.column())) {
        return;
    }
    const QString text = TextOf(*event);
    if (!ChooseByKey(PressOf(*event)) && (text.isEmpty() || !TellTyped(text))) {
        QTableView::keyPressEvent(event);
    }
}

bool PanelTable::TellTyped(const QString& text) {
    const QModelIndex index = currentIndex();
    return index.isValid() && reports_.typed &&
           reports_.typed(text.toStdString(), index.row(), index.column());
}

/// A text that an input method makes begins on the cell as well; what is still being composed goes on in the
/// editor that opens.
void PanelTable::inputMethodEvent(QInputMethodEvent* event) {
    const QString text = event->commitString();
    if (text.isEmpty() && event->preeditString().isEmpty()) {
        return event->ignore();
    }
    if (TellTyped(text) && text.isEmpty() && QApplication::focusWidget() != this) {
        QApplication::sendEvent(QApplication::focusWidget(), event);
    }
}

/// Its base allows no input method where its own editors do not open.
void PanelTable::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, reports_.typed != nullptr);
}

void PanelTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    setAttribute(Qt::WA_InputMethodEnabled, reports_.typed != nullptr);
    anchor_ = current.row();
    if (!setting_ && current.isValid() && current.row() != previous.row() && reports_.rowSelected) {
        reports_.rowSelected(current.row());
    }
}

bool PanelTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        const std::string image = index.isValid() ? ImageAt(index, help->pos()) : std::string();
        const QString tip = image.empty() ? TipOf(index) : model_.ImageTipAt(index, image);
        // An empty tip takes away the one of the cell where the pointer was.
        QToolTip::showText(help->globalPos(), tip, viewport(), visualRect(index));
        return true;
    }
    return QTableView::viewportEvent(event);
}

}  // namespace Tarvik::Seaplan
