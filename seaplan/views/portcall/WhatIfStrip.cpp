// SPDX-License-Identifier: MIT
#include "seaplan/views/portcall/WhatIfStrip.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringList>

#include <tarvik/skin/Palette.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/portcall/WhatIf.h"
#include "seaplan/panels/texts/WhatIfTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

constexpr int kLinesInColumn = 2;
constexpr int kPortWidth = 150;
constexpr int kArrivalWidth = 140;

const char* NameOf(WhatIfLine line) {
    return line == WhatIfLine::Departure  ? "whatIfDeparture"
           : line == WhatIfLine::OneSpeed ? "whatIfSpeed"
           : line == WhatIfLine::Faster   ? "whatIfFaster"
                                          : "whatIfSlower";
}

QLabel* MakeQuiet(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setProperty("secondary", true);
    return label;
}

}  // namespace

WhatIfStrip::WhatIfStrip(QWidget* parent)
    : QWidget(parent),
      title_(MakeQuiet(this)),
      ports_(new QComboBox(this)),
      at_(MakeQuiet(this)),
      arrival_(new QLineEdit(this)),
      note_(MakeQuiet(this)) {
    setObjectName(QStringLiteral("whatIfStrip"));
    ports_->setObjectName(QStringLiteral("whatIfPort"));
    arrival_->setObjectName(QStringLiteral("whatIfArrival"));
    note_->setObjectName(QStringLiteral("whatIfNote"));
    ports_->setFixedWidth(kPortWidth);
    arrival_->setFixedWidth(kArrivalWidth);
    auto* question = new QHBoxLayout;
    question->setSpacing(2 * Skin::kGrid);
    for (QWidget* part : {static_cast<QWidget*>(title_), static_cast<QWidget*>(ports_),
                          static_cast<QWidget*>(at_), static_cast<QWidget*>(arrival_)}) {
        question->addWidget(part);
    }
    question->addWidget(note_, 1);
    question->addStretch(0);
    auto* answers = new QGridLayout;
    answers->setHorizontalSpacing(2 * Skin::kGrid);
    answers->setVerticalSpacing(Skin::kGrid);
    for (std::size_t i = 0; i < kWhatIfLines; ++i) {
        lines_[i] = MakeLine(static_cast<WhatIfLine>(i));
        const int place = static_cast<int>(i);
        const int column = 2 * (place / kLinesInColumn);
        answers->addWidget(lines_[i].text, place % kLinesInColumn, column);
        answers->addWidget(lines_[i].take, place % kLinesInColumn, column + 1);
        answers->setColumnStretch(column, 1);
    }
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Skin::kGrid);
    rows->addLayout(question);
    rows->addLayout(answers);
    hide();
}

WhatIfStrip::Line WhatIfStrip::MakeLine(WhatIfLine line) {
    const Line made{new QLabel(this), new QPushButton(this)};
    const QString name = QString::fromLatin1(NameOf(line));
    made.text->setObjectName(name);
    // A long answer must not widen the window; its hint tells it whole.
    made.text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    made.take->setObjectName(name + QStringLiteral("Take"));
    made.take->setAutoDefault(false);
    made.take->setFocusPolicy(Qt::TabFocus);
    QObject::connect(made.take, &QPushButton::clicked, this, [this, line] { panel_->OnTake(line); });
    return made;
}

void WhatIfStrip::Attach(WhatIf& panel) {
    panel_ = &panel;
    QObject::connect(ports_, &QComboBox::activated, this, [this](int index) { panel_->OnPortChosen(index); });
    QObject::connect(arrival_, &QLineEdit::textEdited, this,
                     [this](const QString& text) { panel_->OnArrivalTyped(text.toStdString()); });
}

void WhatIfStrip::ApplyTexts() {
    title_->setText(ViewText(TextIds::IDS_VIEW_WHATIF));
    at_->setText(ViewText(TextIds::IDS_VIEW_WHATIFARRIVAL));
    Skin::Describe(ports_, ViewText(TextIds::IDS_VIEW_WHATIFPORT));
    Skin::Describe(arrival_, ViewText(TextIds::IDS_VIEW_WHATIFARRIVAL));
    for (const Line& line : lines_) {
        line.take->setText(ViewText(TextIds::IDS_VIEW_WHATIFTAKE));
        Skin::Describe(line.take, ViewText(TextIds::IDS_VIEW_WHATIFTAKE));
    }
    // The answers are in the language before.
    if (panel_ != nullptr) {
        panel_->Follow();
    }
}

void WhatIfStrip::ShowPorts(const WhatIfState& state) {
    QStringList names;
    for (const std::string& port : state.ports) {
        names.push_back(QString::fromStdString(port));
    }
    const QSignalBlocker silent(ports_);
    ports_->clear();
    ports_->addItems(names);
    ports_->setCurrentIndex(state.port);
    ports_->setEnabled(!names.isEmpty());
}

void WhatIfStrip::ShowWhatIf(const WhatIfState& state) {
    ShowPorts(state);
    const QString arrival = QString::fromStdString(state.arrival);
    // What is being typed keeps its caret.
    if (arrival_->text() != arrival) {
        arrival_->setText(arrival);
    }
    arrival_->setEnabled(!state.ports.empty());
    note_->setText(QString::fromStdString(state.note));
    for (std::size_t i = 0; i < kWhatIfLines; ++i) {
        const QString text = QString::fromStdString(state.lines[i].text);
        lines_[i].text->setText(text);
        lines_[i].text->setToolTip(text);
        lines_[i].take->setEnabled(state.lines[i].canTake);
        Skin::Describe(lines_[i].take, ViewText(TextIds::IDS_VIEW_WHATIFTAKE) + QStringLiteral(": ") + text);
        lines_[i].text->setVisible(state.note.empty());
        lines_[i].take->setVisible(state.note.empty());
    }
    setVisible(state.open);
}

}  // namespace Tarvik::Seaplan
