// SPDX-License-Identifier: MIT
#include "tarvik/skin/ListWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tarvik/skin/WindowMessages.h>

namespace Tarvik::Skin {

namespace {

constexpr int kRowHeight = 24;  ///< pixels

}  // namespace

ListWindow::ListWindow(QWidget* parent, Plan plan, std::vector<Command> commands)
    : ToolWindow(parent, plan.window),
      plan_(std::move(plan)),
      commands_(std::move(commands)),
      table_(new QTableWidget(0, static_cast<int>(plan_.columns.size()), this)),
      note_(new QLabel(this)) {
    AddHelp();
    close_ = AddCaptionButton(plan_.close, "close");
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    MakeTable();
    note_->setObjectName(plan_.note);
    note_->setProperty("secondary", true);
    note_->setWordWrap(true);
    note_->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout;
    auto* apart = new QHBoxLayout;
    for (const Command& command : commands_) {
        AddButton(command);
        (command.scope == Scope::Apart ? apart : row)->addWidget(buttons_.back());
    }
    row->addStretch(1);
    row->addLayout(apart);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(kSide, kSide, kSide, kSide);
    column->addWidget(table_, 1);
    column->addWidget(note_);
    column->addLayout(row);
    Body()->addLayout(column, 1);
    SetResizable();
    resize(plan_.size);
    ApplySkin();
    ApplyTexts();
    UpdateButtons();
}

void ListWindow::AddHelp() {
    if (plan_.topic == nullptr) {
        return;
    }
    help_ = AddCaptionButton("helpButton", "help");
    help_->setShortcut(Qt::Key_F1);
    connect(help_, &QToolButton::clicked, this,
            [this] { SendHelpRequest(parentWidget(), plan_.topic, width(), height()); });
}

void ListWindow::MakeTable() {
    table_->setObjectName(plan_.table);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(kRowHeight);
    QHeaderView* header = table_->horizontalHeader();
    header->setHighlightSections(false);
    for (int i = 0; i < table_->columnCount(); ++i) {
        const int width = plan_.columns[static_cast<std::size_t>(i)].width;
        if (width == 0) {
            header->setSectionResizeMode(i, QHeaderView::Stretch);
        } else {
            header->resizeSection(i, width);
        }
    }
    connect(table_, &QTableWidget::itemSelectionChanged, this, &ListWindow::UpdateButtons);
    connect(table_, &QTableWidget::cellDoubleClicked, this, &ListWindow::OpenChosen);
}

void ListWindow::AddButton(const Command& command) {
    auto* button = new QPushButton(this);
    button->setObjectName(command.name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, act = command.act] { act(Chosen()); });
    buttons_.push_back(button);
}

void ListWindow::ApplyTexts() {
    SetCaption(plan_.word("TITLE"));
    QStringList titles;
    for (const Column& column : plan_.columns) {
        titles << plan_.word(column.title);
    }
    table_->setHorizontalHeaderLabels(titles);
    table_->setAccessibleName(plan_.word(plan_.tableTitle));
    note_->setAccessibleName(plan_.word("NOTE_NAME"));
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        const std::string text = commands_[i].text;
        buttons_[i]->setText(plan_.word(text.c_str()));
        // A new text takes a button's key away.
        buttons_[i]->setShortcut(commands_[i].key);
        buttons_[i]->setToolTip(plan_.word((text + "_TIP").c_str()));
    }
    if (help_ != nullptr) {
        Describe(help_, plan_.word("HELP"));
    }
    Describe(close_, plan_.word("CLOSE"));
    if (table_->rowCount() == 0) {
        Tell({});
    }
}

void ListWindow::AddRow(const Row& row) {
    const int at = table_->rowCount();
    table_->insertRow(at);
    for (std::size_t i = 0; i < plan_.columns.size() && i < row.texts.size(); ++i) {
        auto* item = new QTableWidgetItem(QString::fromStdString(row.texts[i]));
        item->setTextAlignment(Qt::AlignVCenter |
                               (plan_.columns[i].isNumber ? Qt::AlignRight : Qt::AlignLeft));
        item->setToolTip(item->text());
        item->setData(Qt::UserRole, QString::fromStdString(row.id));
        table_->setItem(at, static_cast<int>(i), item);
    }
}

void ListWindow::ShowRows(const std::vector<Row>& rows) {
    const std::string chosen = Chosen();
    table_->clearSelection();
    table_->setRowCount(0);
    // Keys alone cannot select the only row.
    auto at = static_cast<int>(rows.size()) - 1;
    for (const Row& row : rows) {
        AddRow(row);
        if (!chosen.empty() && row.id == chosen) {
            at = table_->rowCount() - 1;
        }
    }
    if (at >= 0) {
        table_->selectRow(at);
    }
    Tell({});
    UpdateButtons();
}

void ListWindow::Tell(const QString& note) {
    note_->setText(note.isEmpty() && table_->rowCount() == 0 ? plan_.word("EMPTY") : note);
    note_->setVisible(!note_->text().isEmpty());
}

std::string ListWindow::Chosen() const {
    const auto rows = table_->selectionModel()->selectedRows();
    return rows.isEmpty() ? std::string() : rows.front().data(Qt::UserRole).toString().toStdString();
}

void ListWindow::UpdateButtons() {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i]->setEnabled(commands_[i].scope != Scope::Row || !Chosen().empty());
    }
}

void ListWindow::OpenChosen() {
    const auto opens = std::find_if(commands_.begin(), commands_.end(),
                                    [](const Command& command) { return command.scope == Scope::Row; });
    if (opens != commands_.end() && !Chosen().empty()) {
        opens->act(Chosen());
    }
}

void ListWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else if (enter && table_->hasFocus() && !Chosen().empty()) {
        OpenChosen();
    } else {
        ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Skin
