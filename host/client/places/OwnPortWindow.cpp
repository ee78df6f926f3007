// SPDX-License-Identifier: MIT
#include "host/client/places/OwnPortWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "host/client/places/Words.h"

namespace Tarvik::Client {

namespace {

constexpr QSize kSize(480, 320);  ///< pixels, as the others here
constexpr int kRowHeight = 24;
constexpr int kPlaceWidth = 220;
constexpr int kNameColumn = 0;
constexpr int kPlaceColumn = 1;

}  // namespace

OwnPortWindow::OwnPortWindow(QWidget* mainWindow, Reports reports)
    : ToolWindow(mainWindow, "ownPorts"),
      reports_(std::move(reports)),
      table_(new QTableWidget(0, 2, this)),
      note_(new QLabel(this)),
      add_(MakeButton("ownPortAdd", Qt::CTRL | Qt::Key_N, [this] { reports_.add(); })),
      change_(MakeButton("ownPortChange", Qt::Key_F2, [this] { reports_.change(Chosen()); })),
      remove_(MakeButton("ownPortRemove", Qt::Key_Delete, [this] { reports_.remove(Chosen()); })),
      close_(AddCaptionButton("ownPortsClose", "close")) {
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    MakeTable();
    note_->setObjectName("ownPortNote");
    note_->setProperty("secondary", true);
    note_->setWordWrap(true);
    note_->setTextFormat(Qt::PlainText);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {add_, change_, remove_}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(2 * Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid);
    column->addWidget(table_, 1);
    column->addWidget(note_);
    column->addLayout(buttons);
    Body()->addLayout(column, 1);
    resize(kSize);
    ApplySkin();
    ApplyTexts();
    UpdateButtons();
}

QPushButton* OwnPortWindow::MakeButton(const char* name, const QKeySequence& key,
                                       const std::function<void()>& pressed) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setShortcut(key);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void OwnPortWindow::MakeTable() {
    table_->setObjectName("ownPortTable");
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
    table_->horizontalHeader()->resizeSection(kPlaceColumn, kPlaceWidth);
    connect(table_, &QTableWidget::itemSelectionChanged, this, &OwnPortWindow::UpdateButtons);
    connect(table_, &QTableWidget::cellDoubleClicked, this, [this] { reports_.change(Chosen()); });
}

void OwnPortWindow::ApplyTexts() {
    SetCaption(PortWord("TITLE"));
    table_->setHorizontalHeaderLabels({PortWord("NAME"), PortWord("PLACE")});
    table_->setAccessibleName(PortWord("TITLE"));
    note_->setAccessibleName(PortWord("NOTE_NAME"));
    const std::pair<QPushButton*, const char*> buttons[] = {
        {add_, "ADD"}, {change_, "CHANGE"}, {remove_, "REMOVE"}};
    for (const auto& [button, key] : buttons) {
        // A new text takes a button's key away.
        const QKeySequence shortcut = button->shortcut();
        button->setText(PortWord(key));
        button->setShortcut(shortcut);
        button->setToolTip(PortWord((std::string(key) + "_TIP").c_str()));
    }
    Skin::Describe(close_, PortWord("CLOSE"));
    Tell({});
}

void OwnPortWindow::AddRow(const Ports::Place& port) {
    const OwnPortDraft texts = OwnPortDraft::Of(port);
    const int row = table_->rowCount();
    table_->insertRow(row);
    for (const auto& [column, text] :
         {std::pair(kNameColumn, texts.name), std::pair(kPlaceColumn, texts.position)}) {
        auto* item = new QTableWidgetItem(QString::fromStdString(text));
        item->setToolTip(item->text());
        item->setData(Qt::UserRole, QString::fromStdString(port.id));
        table_->setItem(row, column, item);
    }
}

void OwnPortWindow::ShowPorts(const std::vector<Ports::Place>& ports) {
    const std::string chosen = Chosen();
    table_->clearSelection();
    table_->setRowCount(0);
    for (const Ports::Place& port : ports) {
        AddRow(port);
        if (port.id == chosen) {
            table_->selectRow(table_->rowCount() - 1);
        }
    }
    // Keys alone cannot select the only row.
    if (Chosen().empty() && !ports.empty()) {
        table_->selectRow(table_->rowCount() - 1);
    }
    Tell({});
    UpdateButtons();
}

void OwnPortWindow::Tell(const QString& note) {
    note_->setText(note.isEmpty() && table_->rowCount() == 0 ? PortWord("EMPTY") : note);
    note_->setVisible(!note_->text().isEmpty());
}

std::string OwnPortWindow::Chosen() const {
    const auto rows = table_->selectionModel()->selectedRows();
    return rows.isEmpty() ? std::string() : rows.front().data(Qt::UserRole).toString().toStdString();
}

void OwnPortWindow::UpdateButtons() {
    change_->setEnabled(!Chosen().empty());
    remove_->setEnabled(!Chosen().empty());
}

void OwnPortWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else if (enter && table_->hasFocus() && !Chosen().empty()) {
        reports_.change(Chosen());
    } else {
        ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Client
