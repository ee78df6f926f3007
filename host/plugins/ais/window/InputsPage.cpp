// SPDX-License-Identifier: MIT
#include "host/plugins/ais/window/InputsPage.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "host/plugins/ais/input/InputAddress.h"
#include "host/plugins/ais/window/Words.h"

namespace Tarvik::Ais {

InputsPage::InputsPage(QWidget* parent, const Settings& settings)
    : QWidget(parent), inputs_(new QPlainTextEdit(this)), ships_(new QCheckBox(Word("SHOW_SHIPS"), this)) {
    setObjectName("aisPage");
    auto* column = new QVBoxLayout(this);
    auto* label = new QLabel(Word("INPUTS"), this);
    label->setBuddy(inputs_);
    column->addWidget(label);
    inputs_->setObjectName("aisInputs");
    inputs_->setAccessibleName(label->text());
    inputs_->setTabChangesFocus(true);
    inputs_->setPlaceholderText("tcp://192.168.1.20:10110");
    for (const std::string& input : settings.inputs) {
        inputs_->appendPlainText(QString::fromStdString(input));
    }
    column->addWidget(inputs_);
    auto* note = new QLabel(Word("INPUTS_NOTE"), this);
    note->setObjectName("aisInputsNote");
    note->setWordWrap(true);
    column->addWidget(note);
    ships_->setObjectName("aisShowShips");
    ships_->setChecked(settings.showShips);
    column->addWidget(ships_);
}

Settings InputsPage::Chosen() const {
    Settings settings;
    settings.showShips = ships_->isChecked();
    for (const QString& line : inputs_->toPlainText().split('\n')) {
        if (!line.trimmed().isEmpty()) {
            settings.inputs.push_back(line.trimmed().toStdString());
        }
    }
    return settings;
}

QString InputsPage::Fault() const {
    for (const std::string& input : Chosen().inputs) {
        if (!InputAddress::Parse(input)) {
            return Word("INPUT_FAULT").arg(QString::fromStdString(input));
        }
    }
    return {};
}

}  // namespace Tarvik::Ais
