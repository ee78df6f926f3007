// SPDX-License-Identifier: MIT
#include "host/client/shell/FirstStartCard.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace Tarvik::Client {

namespace {

constexpr int kCardWidth = 360;
constexpr int kEdge = 20;
constexpr int kGap = 12;

/// A way's object name, and the keys of its texts.
struct WayText {
    FirstChoice choice;
    const char* name;
    const char* word;
    const char* note;
};
constexpr std::array kWays = {
    WayText{FirstChoice::Sample, "firstSample", "FIRST_SAMPLE", "FIRST_SAMPLE_NOTE"},
    WayText{FirstChoice::Empty, "firstEmpty", "FIRST_EMPTY", "FIRST_EMPTY_NOTE"},
    WayText{FirstChoice::Connect, "firstConnect", "FIRST_CONNECT", "FIRST_CONNECT_NOTE"}};

}  // namespace

FirstStartCard::FirstStartCard(QWidget* chart)
    : QFrame(chart), title_(new QLabel(this)), hint_(new QLabel(this)) {
    setObjectName("firstStart");
    setFixedWidth(kCardWidth);
    title_->setObjectName("firstTitle");
    hint_->setObjectName("firstHint");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->addWidget(title_);
    for (std::size_t i = 0; i < kWays.size(); ++i) {
        Way& way = ways_.at(i);
        way.button = new QPushButton(this);
        way.button->setObjectName(kWays.at(i).name);
        // Enter presses it, as in a dialog.
        way.button->setAutoDefault(true);
        way.note = new QLabel(this);
        way.note->setObjectName("firstNote");
        column->addSpacing(kGap);
        column->addWidget(way.button);
        column->addWidget(way.note);
        connect(way.button, &QPushButton::clicked, this,
                [this, choice = kWays.at(i).choice] { emit Chosen(choice); });
    }
    column->addSpacing(kGap);
    column->addWidget(hint_);
    for (QLabel* text : {title_, hint_, ways_[0].note, ways_[1].note, ways_[2].note}) {
        text->setWordWrap(true);
        text->setTextFormat(Qt::PlainText);
    }
    chart->installEventFilter(this);
}

void FirstStartCard::ApplyTexts(const Words& words) {
    title_->setText(words("FIRST_TITLE"));
    hint_->setText(words("FIRST_HINT"));
    setAccessibleName(words("FIRST_TITLE"));
    for (std::size_t i = 0; i < kWays.size(); ++i) {
        ways_.at(i).button->setText(words(kWays.at(i).word));
        ways_.at(i).note->setText(words(kWays.at(i).note));
        ways_.at(i).button->setAccessibleDescription(words(kWays.at(i).note));
    }
    Place();
}

void FirstStartCard::Place() {
    resize(kCardWidth, layout()->totalHeightForWidth(kCardWidth));
    const QSize room = parentWidget()->size() - size();
    move(std::max(0, room.width() / 2), std::max(0, room.height() / 2));
}

bool FirstStartCard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        Place();
    }
    return QFrame::eventFilter(watched, event);
}

}  // namespace Tarvik::Client
