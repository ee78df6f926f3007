// SPDX-License-Identifier: MIT
#include "host/plugins/fleet/window/FleetWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <utility>

#include "host/plugins/fleet/core/VesselDraft.h"
#include "host/plugins/fleet/window/Words.h"

namespace Tarvik::Fleet {

namespace {

// Pixels.
constexpr int kWidth = 720;
constexpr int kHeight = 360;
constexpr int kRow = 24;

struct Column {
    const char* key;
    std::string VesselDraft::*text;
    int width;
    bool isNumber;
};

constexpr Column kColumns[] = {
    {"NAME", &VesselDraft::name, 0, false},   {"MMSI", &VesselDraft::mmsi, 86, false},
    {"IMO", &VesselDraft::imo, 72, false},    {"CALLSIGN", &VesselDraft::callSign, 82, false},
    {"TYPE", &VesselDraft::type, 120, false}, {"LENGTH", &VesselDraft::length, 78, true},
    {"SPEED", &VesselDraft::speed, 120, true}};

}  // namespace

FleetWindow::FleetWindow(QWidget* mainWindow, Reports reports)
    : ToolWindow(mainWindow, "fleetPanel"),
      reports_(std::move(reports)),
      table_(new QTableWidget(0, std::size(kColumns), this)),
      note_(new QLabel(this)),
      close_(AddCaptionButton("fleetClose", "close")) {
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    MakeTable();
    note_->setObjectName("fleetNote");
    note_->setProperty("secondary", true);
    note_->setWordWrap(true);
    note_->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(2 * Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid, 2 * Skin::kGrid);
    column->addWidget(table_, 1);
    column->addWidget(note_);
    auto* buttons = new QHBoxLayout;
    add_ = MakeButton("fleetAdd", Qt::CTRL | Qt::Key_N, [this] { reports_.add(); });
    change_ = MakeButton("fleetChange", Qt::Key_F2, [this] { reports_.change(Row()); });
    remove_ = MakeButton("fleetRemove", Qt::Key_Delete, [this] { reports_.remove(Row()); });
    import_ = MakeButton("fleetImport", Qt::CTRL | Qt::Key_O, [this] { reports_.import(); });
    for (QPushButton* button : {add_, change_, remove_}) {
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    buttons->addWidget(import_);
    column->addLayout(buttons);
    Body()->addLayout(column, 1);
    resize(kWidth, kHeight);
    ApplySkin();
    ApplyTexts();
    UpdateButtons();
}

void FleetWindow::MakeTable() {
    table_->setObjectName("fleetTable");
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(kRow);
    QHeaderView* header = table_->horizontalHeader();
    header->setHighlightSections(false);
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i) {
        if (kColumns[i].width == 0) {
            header->setSectionResizeMode(i, QHeaderView::Stretch);
        } else {
            header->resizeSection(i, kColumns[i].width);
        }
    }
    connect(table_, &QTableWidget::itemSelectionChanged, this, &FleetWindow::UpdateButtons);
    connect(table_, &QTableWidget::cellDoubleClicked, this, [this](int row) { reports_.change(row); });
}

QPushButton* FleetWindow::MakeButton(const char* name, const QKeySequence& key,
                                     const std::function<void()>& pressed) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setShortcut(key);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void FleetWindow::ApplyTexts() {
    SetCaption(Word("TITLE"));
    QStringList titles;
    for (const Column& column : kColumns) {
        titles << Word(column.key);
    }
    table_->setHorizontalHeaderLabels(titles);
    table_->setAccessibleName(Word("VESSELS"));
    const std::pair<QPushButton*, const char*> buttons[] = {
        {add_, "ADD"}, {change_, "CHANGE"}, {remove_, "REMOVE"}, {import_, "IMPORT"}};
    for (const auto& [button, key] : buttons) {
        // A new text takes a button's key away.
        const QKeySequence shortcut = button->shortcut();
        button->setText(Word(key));
        button->setShortcut(shortcut);
        button->setToolTip(Word((std::string(key) + "_TIP").c_str()));
    }
    Skin::Describe(close_, Word("CLOSE"));
    if (table_->rowCount() == 0) {
        Tell({});
    }
}

void FleetWindow::ShowVessels(const std::vector<Interface::FleetVessel>& vessels) {
    const int before = Row();
    const std::string chosen = before < 0 ? std::string() : ids_[static_cast<std::size_t>(before)];
    ids_.clear();
    table_->clearSelection();
    table_->setRowCount(static_cast<int>(vessels.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const Interface::FleetVessel& vessel = vessels[static_cast<std::size_t>(row)];
        const VesselDraft texts = VesselDraft::Of(vessel);
        ids_.push_back(vessel.id);
        for (int i = 0; i < table_->columnCount(); ++i) {
            auto* item = new QTableWidgetItem(QString::fromStdString(texts.*kColumns[i].text));
            item->setTextAlignment(Qt::AlignVCenter |
                                   (kColumns[i].isNumber ? Qt::AlignRight : Qt::AlignLeft));
            item->setToolTip(item->text());
            table_->setItem(row, i, item);
        }
    }
    const auto kept = std::find(ids_.begin(), ids_.end(), chosen);
    if (kept != ids_.end() && !chosen.empty()) {
        table_->selectRow(static_cast<int>(kept - ids_.begin()));
    }
    Tell({});
    UpdateButtons();
}

void FleetWindow::Tell(const QString& note) {
    note_->setText(note.isEmpty() && table_->rowCount() == 0 ? Word("EMPTY") : note);
    note_->setVisible(!note_->text().isEmpty());
}

int FleetWindow::Row() const {
    const auto rows = table_->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void FleetWindow::UpdateButtons() {
    change_->setEnabled(Row() >= 0);
    remove_->setEnabled(Row() >= 0);
}

void FleetWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else if (enter && table_->hasFocus() && Row() >= 0) {
        reports_.change(Row());
    } else {
        ToolWindow::keyPressEvent(event);
    }
}

}  // namespace Tarvik::Fleet
